// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QPushButton>
#include <QStyle>
#include <QTextDocument>

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

namespace {

QString LongText()
{
    return QStringLiteral("A text that is a good deal too long for its label");
}

QString RightToLeftText()
{
    return QString::fromUtf8("\u05d4\u05e7\u05dc\u05d8\u05d4 \u05d0\u05e8\u05d5\u05db\u05d4 "
                             "\u05de\u05d0\u05d5\u05d3 \u05e9\u05dc \u05d4\u05de\u05e1\u05da");
}

/// What a person reads when \a toolTip is shown.
QString ReadToolTip(const QString& toolTip)
{
    if (!Qt::mightBeRichText(toolTip)) {
        return toolTip;
    }
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

/// The room for the text within the margin, and the indent that a framed label has.
int TextWidth(const QLabel& label)
{
    const int indent = label.fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 - label.margin();
    return label.contentsRect().width() - 2 * label.margin()
        - (label.frameWidth() > 0 ? std::max(indent, 0) : 0);
}

QImage Picture(QWidget& widget)
{
    return widget.grab().toImage();
}

} // namespace

class tst_ZLabel : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void keepsTheText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("word") << QStringLiteral("Duration");
        QTest::newRow("long") << LongText();
        QTest::newRow("markup") << QStringLiteral("<b>bold</b> & <i>more</i>");
        QTest::newRow("mnemonic") << QStringLiteral("R&D");
        QTest::newRow("entity") << QStringLiteral("&lt;b&gt; is an entity");
        QTest::newRow("lines") << QStringLiteral("first of the lines\nsecond of the lines");
        QTest::newRow("right to left") << RightToLeftText();
    }

    void keepsTheText()
    {
        QFETCH(QString, text);
        ZLabel label;
        label.setOriginalText(text);
        for (const int width : {10, 40, 1000}) {
            label.resize(width, 20);
            Picture(label);
            QCOMPARE(label.originalText(), text);
            QCOMPARE(label.text(), text);
        }
    }

    void toolTipHasTheWholeText_data() { keepsTheText_data(); }

    void toolTipHasTheWholeText()
    {
        QFETCH(QString, text);
        ZLabel label;
        label.show();
        label.setOriginalText(text);
        const int width = label.sizeHint().width();
        label.resize(width, 20);
        QCOMPARE(label.toolTip(), QString());
        label.resize(width - 5, 20);
        QCOMPARE(ReadToolTip(label.toolTip()), text);
        label.resize(width, 20);
        QCOMPARE(label.toolTip(), QString());
    }

    void toolTipFollowsTheText()
    {
        ZLabel label;
        label.resize(60, 20);
        label.setOriginalText(LongText());
        QCOMPARE(label.toolTip(), LongText());
        label.setOriginalText(LongText() + LongText());
        QCOMPARE(label.toolTip(), LongText() + LongText());
        label.setOriginalText(QStringLiteral("a"));
        QCOMPARE(label.toolTip(), QString());
    }

    void toolTipFollowsTheFont()
    {
        ZLabel label;
        label.setOriginalText(QStringLiteral("Duration"));
        label.resize(label.sizeHint() + QSize(5, 0));
        label.show();
        QCOMPARE(label.toolTip(), QString());
        QFont font = label.font();
        font.setPixelSize(60);
        label.setFont(font);
        QTRY_COMPARE_WITH_TIMEOUT(label.toolTip(), QStringLiteral("Duration"), Tests::Patience);
    }

    void leavesOtherToolTipsAlone()
    {
        const QString other = QStringLiteral("other");
        ZLabel label;
        label.show();
        label.setToolTip(other);
        label.resize(60, 20);
        label.setOriginalText(LongText());
        QCOMPARE(label.toolTip(), other);
        label.resize(1000, 20);
        QCOMPARE(label.toolTip(), other);

        label.setToolTip({});
        label.resize(60, 20);
        QCOMPARE(label.toolTip(), LongText());
        label.setToolTip(other);
        label.resize(1000, 20);
        QCOMPARE(label.toolTip(), other);
    }

    void showsMarkupLiterally()
    {
        ZLabel label;
        const QString markup = QStringLiteral("<b>A</b>");
        label.setOriginalText(markup);
        QCOMPARE(label.textFormat(), Qt::PlainText);
        QCOMPARE(label.sizeHint().width(), label.fontMetrics().size(0, markup).width());
    }

    void paintsAsALabelWithTheShortenedText_data()
    {
        QTest::addColumn<QString>("styleSheet");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("alignment");
        QTest::addColumn<bool>("mirrored");
        const int normal = Qt::AlignLeft | Qt::AlignVCenter;
        const auto row = [](const char* name, const char* sheet, const QString& text, int alignment,
                            bool mirrored) {
            QTest::newRow(name) << QString::fromLatin1(sheet) << text << alignment << mirrored;
        };
        const char* box = "QLabel { padding: 2px 9px 1px 5px; border: 2px solid blue; "
                          "background: #ffeecc; color: #993300; margin: 1px; }";
        row("plain", "", LongText(), normal, false);
        row("right", "", LongText(), Qt::AlignRight | Qt::AlignTop, false);
        row("centred", "", LongText(), Qt::AlignCenter, false);
        row("mirrored", "", LongText(), normal, true);
        row("right to left", "", RightToLeftText(), normal, false);
        row("right to left, mirrored", "", RightToLeftText(), normal, true);
        row("boxed", box, LongText(), normal, false);
        row("boxed, right to left", box, RightToLeftText(), normal, false);
        row("boxed, disabled", "QLabel:disabled { color: #00ff00; }", LongText(), normal, false);
        row("mark", "", QStringLiteral("R&D && T&E are shown as they were written"), normal, false);
    }

    void paintsAsALabelWithTheShortenedText()
    {
        QFETCH(QString, styleSheet);
        QFETCH(QString, text);
        QFETCH(int, alignment);
        QFETCH(bool, mirrored);
        ZLabel label;
        QLabel plain;
        for (QLabel* each : {static_cast<QLabel*>(&label), &plain}) {
            each->setTextFormat(Qt::PlainText);
            each->setStyleSheet(styleSheet);
            each->setAlignment(Qt::Alignment(alignment));
            each->setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
            each->setEnabled(!styleSheet.contains(QLatin1String("disabled")));
            each->resize(130, 40);
        }
        label.setOriginalText(text);
        label.ensurePolished();
        plain.ensurePolished();
        plain.setText(plain.fontMetrics().elidedText(text, Qt::ElideRight, TextWidth(plain)));
        QVERIFY(plain.text() != text);
        QVERIFY(plain.text() != QString(QChar(0x2026)));
        QCOMPARE(Picture(label), Picture(plain));
    }

    void alignsWithTheLayout_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("left to right") << LongText();
        QTest::newRow("right to left") << RightToLeftText();
        QTest::newRow("digits") << QStringLiteral("05.03.2035");
    }

    void alignsWithTheLayout()
    {
        QFETCH(QString, text);
        ZLabel label;
        label.setOriginalText(text);
        const auto leftmost = QStyle::visualAlignment(Qt::RightToLeft, label.alignment());
        QCOMPARE(leftmost & Qt::AlignHorizontal_Mask, Qt::AlignLeft | Qt::AlignAbsolute);
        label.setLayoutDirection(Qt::RightToLeft);
        const auto rightmost = QStyle::visualAlignment(Qt::LeftToRight, label.alignment());
        QCOMPARE(rightmost & Qt::AlignHorizontal_Mask, Qt::AlignRight | Qt::AlignAbsolute);
        QVERIFY(label.alignment().testFlag(Qt::AlignVCenter));
    }

    void leavesAnotherAlignmentAlone()
    {
        ZLabel label;
        label.setAlignment(Qt::AlignCenter);
        label.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(label.alignment(), Qt::Alignment(Qt::AlignCenter));
    }

    void paintsFrames()
    {
        ZLabel label;
        QLabel plain;
        for (QLabel* each : {static_cast<QLabel*>(&label), &plain}) {
            each->setFrameStyle(int(QFrame::Box) | QFrame::Raised);
            each->setLineWidth(2);
            each->setMidLineWidth(1);
            each->setMargin(3);
            each->resize(130, 40);
        }
        label.setOriginalText(LongText());
        plain.setText(plain.fontMetrics().elidedText(LongText(), Qt::ElideRight, TextWidth(plain)));
        QCOMPARE(Picture(label), Picture(plain));
    }

    void shortensEachLine()
    {
        ZLabel label;
        label.resize(80, 60);
        label.setOriginalText(LongText() + QLatin1Char('\n') + QStringLiteral("short"));
        QLabel plain;
        plain.resize(80, 60);
        plain.setText(plain.fontMetrics().elidedText(LongText(), Qt::ElideRight, 80)
                      + QStringLiteral("\nshort"));
        QCOMPARE(Picture(label), Picture(plain));
    }

    void mnemonicOfACaption()
    {
        QWidget window;
        auto* label = new ZLabel(&window);
        auto* button = new QPushButton(&window);
        label->setBuddy(button);
        window.show();
        label->setOriginalText(QStringLiteral("&Record on schedule"));
        QCOMPARE(button->accessibleName(), QStringLiteral("Record on schedule"));
        const int width = label->sizeHint().width();
        label->resize(width, 20);
        QCOMPARE(label->toolTip(), QString());
        label->resize(width / 2, 20);
        QVERIFY(!label->toolTip().isEmpty());
        Picture(*label);
    }

    void buddyWithANameOfItsOwnKeepsIt()
    {
        QWidget window;
        auto* label = new ZLabel(&window);
        auto* button = new QPushButton(&window);
        label->setBuddy(button);
        label->setOriginalText(QStringLiteral("first"));
        QCOMPARE(button->accessibleName(), QStringLiteral("first"));
        button->setAccessibleName(QStringLiteral("own"));
        label->setOriginalText(QStringLiteral("second"));
        QCOMPARE(button->accessibleName(), QStringLiteral("own"));
    }

    /// A list has thousands of labels, whose texts fit.
    void hasNoObjectsWhileItsTextFits()
    {
        QWidget window;
        ZLabel label(&window);
        label.setOriginalText(QStringLiteral("Duration"));
        label.resize(label.sizeHint());
        window.show();
        Picture(window);
        QVERIFY(label.children().isEmpty());
        label.resize(20, 20);
        QCOMPARE(label.children().size(), 1);
        label.resize(label.sizeHint());
        label.resize(20, 20);
        Picture(window);
        label.setOriginalText(LongText());
        QCOMPARE(label.children().size(), 1);
        QCOMPARE(label.toolTip(), LongText());
    }

    void hasNoObjectsWithoutASize()
    {
        QWidget window;
        ZLabel label(&window);
        label.resize(0, 20);
        label.setOriginalText(LongText());
        window.show();
        QVERIFY(label.children().isEmpty());
        QCOMPARE(label.toolTip(), QString());
    }

    void selectableAndWrappedTextIsNotShortened()
    {
        ZLabel label;
        label.resize(60, 20);
        label.setTextInteractionFlags(Qt::TextSelectableByMouse);
        label.setOriginalText(LongText());
        QCOMPARE(label.toolTip(), QString());
        label.setTextInteractionFlags(Qt::LinksAccessibleByMouse);
        label.setWordWrap(true);
        label.setOriginalText(LongText() + QLatin1Char('.'));
        QCOMPARE(label.toolTip(), QString());
    }
};

SCHEDULER_TEST_MAIN(tst_ZLabel)
#include "tst_ZLabel.moc"
