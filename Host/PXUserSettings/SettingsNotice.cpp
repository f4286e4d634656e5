// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SettingsNotice.h"

#include <QCoreApplication>

#include "../CoreInt/Printable.h"

namespace Zentor::PX {
namespace {

const char* TextOf(SettingsNotice::Cause cause, bool dropsTasks)
{
    switch (cause) {
    case SettingsNotice::Cause::NotUnderstood:
        return QT_TRANSLATE_NOOP("SettingsStore",
                                 "The settings file could not be understood, so the defaults are "
                                 "in use. What it held is kept in %1.");
    case SettingsNotice::Cause::PartlyUnusable:
        return dropsTasks
            ? QT_TRANSLATE_NOOP("SettingsStore",
                                "Some of the settings could not be used. Tasks left out: %2. What "
                                "the file held is kept in %1.")
            : QT_TRANSLATE_NOOP("SettingsStore",
                                "Some of the settings could not be used. What the file held is "
                                "kept in %1.");
    case SettingsNotice::Cause::ChangedOutside:
        break;
    }
    return QT_TRANSLATE_NOOP("SettingsStore",
                             "Another program has changed the settings file. Its version is kept "
                             "in %1; the settings shown here stay in use.");
}

} // namespace

QString SettingsNotice::Text() const
{
    const QString text =
        QCoreApplication::translate("SettingsStore", TextOf(cause, droppedTasks > 0));
    const QString path = Util::PrintableText(keptPath);
    return droppedTasks > 0 ? text.arg(path, QString::number(droppedTasks)) : text.arg(path);
}

} // namespace Zentor::PX
