// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QToolTip>

#include "AppWindow.h"
#include "Boxes.h"
#include "PanelNameGuard.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_PanelNameGuard : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
        for (const auto effect : {Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip}) {
            QApplication::setEffectEnabled(effect, false);
        }
    }

    void cleanup()
    {
        QToolTip::hideText();
        WidgetTest::cleanup();
    }

    void saysWhichCharacterIsRefused_data()
    {
        QTest::addColumn<char>("key");
        for (const char key : {'\\', '/', ':', '*', '?', '"', '<', '>', '|'}) {
            QTest::addRow("%c", key) << key;
        }
    }

    void saysWhichCharacterIsRefused()
    {
        QFETCH(char, key);
        const AppWindow app(1);
        OpenForm(app);
        app.Type("ab");
        const QSignalSpy changes(app.window->findChild<Desktop::PanelNameGuard*>(),
                                 &Desktop::PanelNameGuard::RefusalChanged);
        const char text[] = {key, '\0'};
        app.Type(text);
        QCOMPARE(Name(app).text(), QStringLiteral("ab"));
        const QString reason =
            QStringLiteral("A name cannot contain: ") + QString(QLatin1Char(key));
        QCOMPARE(QToolTip::text(), reason);
        QVERIFY(QToolTip::isVisible());
        // For screen readers, too.
        QCOMPARE(app.StatusText(), reason);
        QCOMPARE(changes.size(), 1);

        app.Type("c");
        QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), Patience);
        QCOMPARE(app.StatusText(), QString());
        QCOMPARE(changes.size(), 2);
        app.Type("d");
        QCOMPARE(changes.size(), 2);
        QCOMPARE(Name(app).text(), QStringLiteral("abcd"));
    }

    void saysWhatOfAPastedTextIsRefused_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("reason");
        QTest::newRow("one") << "9:30"
                             << "A name cannot contain: :";
        QTest::newRow("several, each once") << "a/b/c?"
                                            << "A name cannot contain: / ?";
        QTest::newRow("tags") << "<b>x</b>"
                              << "A name cannot contain: < > /";
        QTest::newRow("line break")
            << "a\nb"
            << "A name cannot contain line breaks or other control characters.";
        QTest::newRow("both") << "a:\tb"
                              << "A name cannot contain: :";
    }

    void saysWhatOfAPastedTextIsRefused()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, reason);
        const AppWindow app(1);
        OpenForm(app);
        app.Type("ab");
        QGuiApplication::clipboard()->setText(pasted);
        app.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Name(app).text(), QStringLiteral("ab"));
        QCOMPARE(app.StatusText(), reason);
        QCOMPARE(QToolTip::text(), reason);
    }

    void saysWhatAnInputMethodMayNotEnter()
    {
        const AppWindow app(1);
        OpenForm(app);
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("何?"));
        QCoreApplication::sendEvent(&Name(app), &event);
        QCOMPARE(app.StatusText(), QStringLiteral("A name cannot contain: ?"));
    }

    void saysNothingOfATextThatIsTooLong()
    {
        const AppWindow app(1);
        OpenForm(app);
        Name(app).setText(QString(100, QLatin1Char('a')));
        app.Type("b");
        QCOMPARE(app.StatusText(), QString());
        QVERIFY(!QToolTip::isVisible());
    }

    void goesBackToWhatIsWrongWithTheName()
    {
        const AppWindow app(1);
        OpenForm(app);
        app.Type("Task 1");
        const QString taken = app.StatusText();
        QVERIFY(!taken.isEmpty());
        app.Type("?");
        QCOMPARE(app.StatusText(), QStringLiteral("A name cannot contain: ?"));
        app.Press(Qt::Key_Tab);
        QCOMPARE(app.StatusText(), taken);
    }

    void forgetsItWithTheForm()
    {
        const AppWindow app(1);
        OpenForm(app);
        app.Type("?");
        QVERIFY(!app.StatusText().isEmpty());
        const ExpectedBox box(QMessageBox::No);
        app.Press(Qt::Key_Escape);
        QVERIFY(box.Came());
        QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), Patience);
        QCOMPARE(app.StatusText(), QString());
    }

private:
    static QLineEdit& Name(const AppWindow& app)
    {
        return *app.Find<QLineEdit>(Desktop::PanelPart::NameField);
    }

    static void OpenForm(const AppWindow& app)
    {
        QVERIFY(app.Show());
        app.Press(Qt::Key_Insert);
        QVERIFY(app.IsFormOpen());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PanelNameGuard)

#include "tst_PanelNameGuard.moc"
