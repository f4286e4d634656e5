// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include "Request.h"

namespace Zentor::Desktop {

/// What the desktop gave this process with its start, so that it may take the focus: the "platform
/// data" of org.freedesktop.Application. Read it before there is a QGuiApplication, which clears
/// it.
QVariantMap PlatformDataOfStart();

/// The program on the session bus: org.freedesktop.Application at /org/zentor/PxScheduler.
///
/// There is one instance for each settings file, wherever the file's name leads. Its bus name is
/// made of the real path of the file; the one on the default file has the name of the desktop
/// entry, too. Without a session bus every instance counts as the first.
class Instance final : public QObject {
    Q_OBJECT

public:
    /// \a settingsFile need not exist. Calls from the bus arrive with the event loop.
    Instance(const QString& settingsFile, const QString& defaultSettingsFile);
    ~Instance() override;

    /// Becomes the first instance or, when there is one that answers, passes \a request on to it,
    /// with \a platformData, and returns false.
    bool IsFirst(const QVariantMap& platformData, Request request = Request::Show);

    /// Passes \a request on to the first instance without becoming it. Whether there is one that
    /// has taken it.
    bool PassOn(Request request, const QVariantMap& platformData) const;

    /// Does what the action \a name asks for: "start", "stop", "pause" or "quit". Whether there is
    /// such an action.
    bool Do(const QString& name);

    /// The bus name of the instance on \a settingsFile.
    static QString BusName(const QString& settingsFile);

Q_SIGNALS:
    /// The window is to be shown and to get the focus, which \a platformData may allow.
    void Activated(const QVariantMap& platformData);
    /// A recording is to be started, stopped, or paused and, when it is paused, resumed.
    void StartRequested();
    void StopRequested();
    void PauseRequested();
    /// The program is to end, without a question.
    void QuitRequested();

private:
    bool TakeName();

    const QString m_name;
    const bool m_isDefault;
};

} // namespace Zentor::Desktop
