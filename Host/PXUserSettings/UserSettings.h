#pragma once

#include <chrono>
#include <vector>

#include <QByteArray>
#include <QMap>
#include <QString>

#include "HostData.h"

namespace Zentor::PX {

/// The user's folder for videos, or the home folder where there is none.
ZENTOR_HOST_API QString DefaultResultsFolderPath();

/// Everything that the application remembers for its user. The initial values are the defaults.
struct UserSettings {
    bool limitedCaptureEnabled = false;
    /// From five seconds up to, but not including, 24 hours.
    std::chrono::microseconds limitedCaptureDuration{std::chrono::seconds(5)};
    bool scheduledCaptureEnabled = false;
    /// In display order.
    std::vector<RecordTime> schedule;
    PowerAction captureFinishAction = DoNothing;
    /// The folder in which output videos are written.
    QString resultsFolderPath = DefaultResultsFolderPath();
    /// By the names of the questions, whether they were answered for good.
    QMap<QString, bool> confirmations;
    /// A name that QLocale understands, such as "pt_BR"; empty for the language of the system.
    QString language;
    /// "light" or "dark"; empty for the theme of the desktop.
    QString theme;
    /// From QWidget::saveGeometry(); empty before the first time.
    QByteArray windowGeometry;
    /// Name of the settings page that was shown last; empty before the first time.
    QString page;
};

} // namespace Zentor::PX
