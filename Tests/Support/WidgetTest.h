// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QtTest>

#include "Patience.h"

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

/// What a test does not take from whoever starts it: zone, locale and folders for data and
/// settings. Create it before the application object.
///
/// The platform is the one in QT_QPA_PLATFORM, offscreen where that is not set. What is in
/// SCHEDULER_TEST_PLATFORM comes before both: ctest sets the former.
class TestEnvironment {
public:
    TestEnvironment();

private:
    std::unique_ptr<const QTemporaryDir> m_folder;
};

/// Runs \a test in an application with a fixed locale.
int RunTest(int argc, char** argv, QObject& test);

} // namespace Zentor::Tests

#define SCHEDULER_TEST_MAIN(TestClass)                                                             \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        const Zentor::Tests::TestEnvironment environment;                                          \
        const QApplication application(argc, argv);                                                \
        TestClass test;                                                                            \
        return Zentor::Tests::RunTest(argc, argv, test);                                           \
    }
