// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QLabel>
#include <QPushButton>

#include "MarkingTranslator.h"
#include "NoticeBar.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_NoticeBar : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void isHiddenWithoutText()
    {
        QWidget window;
        Desktop::NoticeBar bar(&window);
        window.show();
        QVERIFY(!bar.isVisible());
        bar.SetText(QStringLiteral("<b>text</b>"));
        QVERIFY(bar.isVisible());
        QCOMPARE(Text(bar).text(), QStringLiteral("<b>text</b>"));
        QCOMPARE(Text(bar).textFormat(), Qt::PlainText);
        bar.SetText({});
        QVERIFY(!bar.isVisible());
    }

    void staysUntilItsTextIsTakenAway()
    {
        QWidget window;
        Desktop::NoticeBar bar(&window);
        bar.SetText(QStringLiteral("text"));
        window.show();
        const QSignalSpy requested(&bar, &Desktop::NoticeBar::CloseRequested);
        CloseButton(bar).click();
        QCOMPARE(requested.count(), 1);
        QVERIFY(bar.isVisible());
    }

    void followsTheLanguage()
    {
        Desktop::NoticeBar bar;
        QCOMPARE(CloseButton(bar).text(), QStringLiteral("Close"));
        QCOMPARE(CloseButton(bar).accessibleName(), QStringLiteral("Close notice"));
        LanguageSwitch language;
        language.Toggle();
        QCOMPARE(CloseButton(bar).text(), QStringLiteral("~Close"));
        QCOMPARE(CloseButton(bar).accessibleName(), QStringLiteral("~Close notice"));
    }

private:
    static QLabel& Text(const Desktop::NoticeBar& bar)
    {
        return *bar.findChild<QLabel*>(QStringLiteral("noticeLabel"));
    }
    static QPushButton& CloseButton(const Desktop::NoticeBar& bar)
    {
        return *bar.findChild<QPushButton*>(QStringLiteral("noticeCloseButton"));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_NoticeBar)

#include "tst_NoticeBar.moc"
