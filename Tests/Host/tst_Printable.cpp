// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CoreInt/Printable.h"
#include "WidgetTest.h"

using namespace Zentor;

class tst_Printable : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void escapesWhatControls_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("printable");
        const auto row = [](const char* name, const QString& text, const QString& printable) {
            QTest::newRow(name) << text << printable;
        };
        const auto character = [](uint code) { return QString(QChar(code)); };
        row("nothing", {}, {});
        row("words", "Talk & <b>tea</b>, \"5 %\"", "Talk & <b>tea</b>, \"5 %\"");
        row("backslash", "a\\b", "a\\b");
        row("other scripts", QString::fromUtf8("\u00fc \u9332\u753b \u05d0 \U0001F3A5"),
            QString::fromUtf8("\u00fc \u9332\u753b \u05d0 \U0001F3A5"));
        row("joiner", "a" + character(0x200d) + "b", "a" + character(0x200d) + "b");
        row("null", "a" + character(0) + "b", "a\\x00b");
        row("escape sequence", "\x1b[31mred\x1b[0m", "\\x1b[31mred\\x1b[0m");
        row("title of the terminal", "\x1b]0;t\x07", "\\x1b]0;t\\x07");
        row("lines", "a\r\nb\tc", "a\\x0d\\x0ab\\x09c");
        row("first", character(1), "\\x01");
        row("last below the blank", character(0x1f), "\\x1f");
        row("blank", " ", " ");
        row("tilde", "~", "~");
        row("delete", character(0x7f), "\\x7f");
        row("first above ASCII", character(0x80), "\\x80");
        row("last above ASCII", character(0x9f), "\\x9f");
        row("no-break space", character(0xa0), character(0xa0));
        row("line separator", character(0x2028), "\\u2028");
        row("paragraph separator", character(0x2029), "\\u2029");
        row("first embedding", character(0x202a), "\\u202a");
        row("right to left", "a" + character(0x202e) + "gpj.exe", "a\\u202egpj.exe");
        row("first isolate", character(0x2066), "\\u2066");
        row("last isolate", character(0x2069), "\\u2069");
    }

    void escapesWhatControls()
    {
        QFETCH(QString, text);
        QFETCH(QString, printable);
        QCOMPARE(QString::fromStdString(Util::Printable(text)), printable);
    }
};

SCHEDULER_TEST_MAIN(tst_Printable)
#include "tst_Printable.moc"
