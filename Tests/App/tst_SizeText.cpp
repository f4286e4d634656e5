// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SizeText.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_SizeText : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void isolates()
    {
        QCOMPARE(Desktop::Isolated("1 GB"), QChar(0x2068) + QString("1 GB") + QChar(0x2069));
    }

    void sizes_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("exact");
        QTest::addColumn<QString>("rounded");
        const auto row = [](qint64 bytes, const char* exact, const char* rounded) {
            QTest::addRow("%lld", bytes) << bytes << QString(exact) << QString(rounded);
        };
        row(0, "0 bytes", "0 bytes");
        row(99, "99 bytes", "99 bytes");
        row(1'049, "1.0 kB", "1.0 kB");
        row(1'050, "1.1 kB", "1.1 kB");
        row(9'949'999, "9.9 MB", "9.9 MB");
        row(9'950'000, "9.9 MB", "10 MB");
        row(12'400'000, "12.4 MB", "12 MB");
        row(899'300'000, "899.3 MB", "900 MB");
        row(994'999'999, "995.0 MB", "990 MB");
        row(995'000'000, "995.0 MB", "1.0 GB");
        row(1'486'800'000, "1.5 GB", "1.5 GB");
    }

    void sizes()
    {
        QFETCH(qint64, bytes);
        QFETCH(QString, exact);
        QFETCH(QString, rounded);
        QLocale::setDefault(QLocale(QLocale::English));
        QCOMPARE(Desktop::SizeText(bytes), Desktop::Isolated(exact));
        QCOMPARE(Desktop::RoundSizeText(bytes), Desktop::Isolated(rounded));
        QLocale::setDefault(QLocale::c());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_SizeText)

#include "tst_SizeText.moc"
