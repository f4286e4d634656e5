// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "BackgroundSettings.h"

namespace Zentor::Desktop {
namespace {

namespace Key {

const QString Background = QStringLiteral("background");
const QString KeepRunning = QStringLiteral("keepRunning");
const QString ToldAboutTray = QStringLiteral("toldAboutTray");

} // namespace Key

BackgroundSettings Parse(const PX::SectionReader& section)
{
    BackgroundSettings settings;
    section.Read(Key::KeepRunning, settings.keepRunning, PX::ToBool);
    section.Read(Key::ToldAboutTray, settings.toldAboutTray, PX::ToBool);
    return settings;
}

QJsonObject Format(const BackgroundSettings& settings)
{
    return {{Key::KeepRunning, settings.keepRunning}, {Key::ToldAboutTray, settings.toldAboutTray}};
}

} // namespace

PX::SettingsSection BackgroundSettingsSection()
{
    return {Key::Background, [](const PX::SectionReader& found) { return Format(Parse(found)); }};
}

BackgroundSettings BackgroundSettingsIn(const PX::SettingsStore& store)
{
    QStringList problems;
    return Parse({store.Settings().sections.value(Key::Background), Key::Background, problems});
}

void ChangeBackgroundSettings(PX::SettingsStore& store,
                              const std::function<void(BackgroundSettings&)>& change)
{
    BackgroundSettings settings = BackgroundSettingsIn(store);
    change(settings);
    store.Change(
        [&](PX::UserSettings& all) { all.sections.insert(Key::Background, Format(settings)); });
}

} // namespace Zentor::Desktop
