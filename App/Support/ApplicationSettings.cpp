// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "ApplicationSettings.h"

#include "ThemeName.h"

namespace Zentor::Desktop {
namespace {

namespace Key {

const QString Appearance = QStringLiteral("appearance");
const QString Language = QStringLiteral("language");
const QString Theme = QStringLiteral("theme");
const QString WindowGeometry = QStringLiteral("windowGeometry");
const QString Page = QStringLiteral("page");

} // namespace Key

std::optional<QString> ToTheme(const QJsonValue& value)
{
    const auto name = PX::ToText(value);
    return name && (name->isEmpty() || ThemeNames().contains(*name)) ? name : std::nullopt;
}

ApplicationSettings Parse(const PX::SectionReader& section)
{
    ApplicationSettings settings;
    section.Read(Key::Language, settings.language, PX::ToText);
    section.Read(Key::Theme, settings.theme, ToTheme);
    section.Read(Key::WindowGeometry, settings.windowGeometry, PX::ToBytes);
    section.Read(Key::Page, settings.page, PX::ToText);
    return settings;
}

QJsonObject Format(const ApplicationSettings& settings)
{
    return {{Key::Language, settings.language},
            {Key::Theme, settings.theme},
            {Key::WindowGeometry, QString::fromLatin1(settings.windowGeometry.toBase64())},
            {Key::Page, settings.page}};
}

} // namespace

PX::SettingsSection ApplicationSettingsSection()
{
    return {Key::Appearance, [](const PX::SectionReader& found) { return Format(Parse(found)); }};
}

ApplicationSettings ApplicationSettingsIn(const PX::SettingsStore& store)
{
    QStringList problems;
    return Parse({store.Settings().sections.value(Key::Appearance), Key::Appearance, problems});
}

void ChangeApplicationSettings(PX::SettingsStore& store,
                               const std::function<void(ApplicationSettings&)>& change)
{
    ApplicationSettings settings = ApplicationSettingsIn(store);
    change(settings);
    store.Change(
        [&](PX::UserSettings& all) { all.sections.insert(Key::Appearance, Format(settings)); });
}

} // namespace Zentor::Desktop
