#pragma once

#include <QRegularExpression>
#include <QStringList>
#include <QtTest>

namespace Zentor::Tests {

/// Base of the test classes: an unexpected warning fails the test that it came in, and so does a
/// top-level widget that outlives it.
///
/// A test class that has its own init() or cleanup() calls these.
class WidgetTest : public QObject {
    Q_OBJECT

public:
    /// Allows warnings that match \a pattern until the end of the running test.
    static void AllowWarning(const QString& pattern);

protected Q_SLOTS:
    void init();
    void cleanup();
};

/// Runs \a test in an application with a fixed locale.
int RunTest(int argc, char** argv, QObject& test);

} // namespace Zentor::Tests

#define SCHEDULER_TEST_MAIN(TestClass)                                                             \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        const QApplication application(argc, argv);                                                \
        TestClass test;                                                                            \
        return Zentor::Tests::RunTest(argc, argv, test);                                           \
    }
