// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QValidator>

#include "HostInterfaces.h"
#include "WidgetTest.h"

using namespace Zentor;

class tst_GetFilenameValidator : public Tests::WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void validate_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("acceptable");
        const auto row = [](const char* name, const QString& text, bool acceptable) {
            QTest::newRow(name) << text << acceptable;
        };
        row("empty", {}, true);
        row("word", QStringLiteral("Task 1"), true);
        row("dots", QStringLiteral("..a.b.."), true);
        row("punctuation", QStringLiteral("a-b_c(d)[e]{f}&g#h%i'j;k,l+m=n!o@p$q^r~s`t"), true);
        row("not Latin", QString::fromUtf8("\u9332\u753b \u05d0\u05d1 \u0639"), true);
        row("beyond 16 bits", QString::fromUtf8("\U0001F3A5"), true);
        for (const char refused : {'\\', '/', ':', '*', '?', '"', '<', '>', '|'}) {
            const QString name(QLatin1Char{refused});
            row(qPrintable(QStringLiteral("only ") + name), name, false);
            row(qPrintable(QStringLiteral("at the start ") + name), name + QLatin1Char('a'), false);
            row(qPrintable(QStringLiteral("inside ") + name),
                QLatin1Char('a') + name + QLatin1Char('b'), false);
            row(qPrintable(QStringLiteral("at the end ") + name), QLatin1Char('a') + name, false);
        }
        for (const int control : {0x00, 0x01, 0x09, 0x0a, 0x0d, 0x1f, 0x7f, 0x80, 0x9f}) {
            row(qPrintable(QStringLiteral("control %1").arg(control)),
                QStringLiteral("a%1b").arg(QChar(control)), false);
        }
        row("after the controls", QString(QChar(0xa0)), true);
        row("before the controls", QStringLiteral("~ "), true);
    }

    void validate()
    {
        QFETCH(QString, text);
        QObject parent;
        const QValidator* validator = Util::GetFilenameValidator(&parent);
        QCOMPARE(validator->parent(), &parent);
        int position = 0;
        const auto state = validator->validate(text, position);
        QTEST(state == QValidator::Acceptable, "acceptable");
        // What is not acceptable cannot become so by typing on.
        QVERIFY(state != QValidator::Intermediate);
    }
};

SCHEDULER_TEST_MAIN(tst_GetFilenameValidator)
#include "tst_GetFilenameValidator.moc"
