// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "WidgetTest.h"

#include <ctime>

#include <QApplication>
#include <QToolTip>

#include <glog/logging.h>

namespace Zentor::Tests {
namespace {

struct Warnings {
    QStringList unexpected;
    QList<QRegularExpression> allowed;
    QtMessageHandler next = nullptr;
};

Warnings& CurrentWarnings()
{
    static Warnings warnings;
    return warnings;
}

/// Whether it is what the platform says of itself: what it lacks offscreen, or that it asked for
/// the place of a window whose frame the window manager had just taken away.
bool IsOfPlatform(const QString& message)
{
    static const QRegularExpression ofPlatform(
        QStringLiteral("^This plugin does not support (propagateSizeHints|raise)\\(\\)"
                       "|^QXcbConnection: XCB error: 3 \\(BadWindow\\).*\\(TranslateCoords\\)"));
    return ofPlatform.match(message).hasMatch();
}

bool IsAllowed(const QString& message)
{
    const auto& allowed = CurrentWarnings().allowed;
    return std::any_of(allowed.begin(), allowed.end(),
                       [&](const auto& pattern) { return pattern.match(message).hasMatch(); });
}

void CollectWarning(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (IsOfPlatform(message)) {
        return;
    }
    auto& warnings = CurrentWarnings();
    if ((type == QtWarningMsg || type == QtCriticalMsg) && !IsAllowed(message)) {
        warnings.unexpected << message;
    }
    if (warnings.next != nullptr) {
        warnings.next(type, context, message);
    }
}

QStringList RemainingTopLevelWidgets()
{
    QStringList names;
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets) {
        // Qt keeps the label of its tool tips for itself.
        if (!widget->inherits("QTipLabel")) {
            names << QStringLiteral("%1 \"%2\"")
                         .arg(QString::fromLatin1(widget->metaObject()->className()),
                              widget->objectName());
        }
    }
    return names;
}

} // namespace

void WidgetTest::AllowWarning(const QString& pattern)
{
    CurrentWarnings().allowed << QRegularExpression(pattern);
}

void WidgetTest::init()
{
    CurrentWarnings() = {};
    CurrentWarnings().next = qInstallMessageHandler(CollectWarning);
}

void WidgetTest::cleanup()
{
    QToolTip::hideText();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qInstallMessageHandler(CurrentWarnings().next);
    QCOMPARE(CurrentWarnings().unexpected.join(QLatin1String(" | ")), QString());
    QCOMPARE(RemainingTopLevelWidgets().join(QLatin1String(" | ")), QString());
}

TestEnvironment::TestEnvironment()
{
    constexpr const char* isSetUp = "SCHEDULER_TEST_IS_SET_UP";
    if (qEnvironmentVariableIsSet(isSetUp)) {
        return;
    }
    qputenv(isSetUp, "1");
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("TZ", "UTC");
    tzset();
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->filePath(QStringLiteral("data"))));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder->filePath(QStringLiteral("settings"))));
    const QByteArray platform = qgetenv("SCHEDULER_TEST_PLATFORM");
    if (!platform.isEmpty()) {
        qputenv("QT_QPA_PLATFORM", platform);
    } else if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

int RunTest(int argc, char** argv, QObject& test)
{
    google::InitGoogleLogging(argv[0]);
    FLAGS_logtostderr = true;
    QLocale::setDefault(QLocale::c());
    return QTest::qExec(&test, argc, argv);
}

} // namespace Zentor::Tests
