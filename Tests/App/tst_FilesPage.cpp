// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTextLayout>

#include "FilesPage.h"
#include "StoreIn.h"
#include "WidgetTest.h"

namespace Zentor::Tests {

class tst_FilesPage : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
        m_store = OpenStoreIn(*m_folder);
        m_store->Change([&](auto& settings) { settings.resultsFolderPath = m_folder->path(); });
        m_page = std::make_unique<Desktop::FilesPage>(m_store, nullptr);
        m_page->show();
    }

    void cleanup()
    {
        m_page.reset();
        m_store.reset();
        m_folder.reset();
        WidgetTest::cleanup();
    }

    void showsTheStoredFolder()
    {
        QCOMPARE(Edit()->text(), QDir::toNativeSeparators(m_folder->path()));
        QVERIFY(IsFreeSpaceTold());
        QVERIFY(!Edit()->accessibleName().isEmpty());
    }

    void storesAFolder_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        const QString home = QDir::homePath();
        QTest::newRow("existing") << home << home;
        QTest::newRow("missing") << home + QStringLiteral("/none")
                                 << home + QStringLiteral("/none");
        QTest::newRow("blanks around it")
            << QStringLiteral("  ") + home + QStringLiteral(" ") << home;
        QTest::newRow("slash at its end") << home + QStringLiteral("/") << home;
        QTest::newRow("round about")
            << home + QStringLiteral("/a/../b//c") << home + QStringLiteral("/b/c");
        QTest::newRow("root") << QStringLiteral("/") << QStringLiteral("/");
    }

    void storesAFolder()
    {
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        const QSignalSpy changed(m_store.get(), &PX::SettingsStore::Changed);
        TypeAndAccept(typed);
        QCOMPARE(m_store->Settings().resultsFolderPath, stored);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(Edit()->text(), QDir::toNativeSeparators(stored));
        QVERIFY(IsUnmarked());
        QVERIFY(IsFreeSpaceTold());
    }

    void refusesWhatIsNoFolder_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("nothing") << QString();
        QTest::newRow("blanks") << QStringLiteral("   ");
        QTest::newRow("relative") << QStringLiteral("recordings");
        QTest::newRow("a file") << QStringLiteral("/etc/passwd");
    }

    void refusesWhatIsNoFolder()
    {
        QFETCH(QString, typed);
        const QSignalSpy changed(m_store.get(), &PX::SettingsStore::Changed);
        TypeAndAccept(typed);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(m_store->Settings().resultsFolderPath, m_folder->path());
        QVERIFY(IsMarked());
        QCOMPARE(Edit()->text(), typed);

        TypeAndAccept(m_folder->path());
        QVERIFY(IsUnmarked());
        QCOMPARE(changed.count(), 0);
    }

    void forgetsAMistakeWhenShownAgain()
    {
        TypeAndAccept(QStringLiteral("recordings"));
        m_page->hide();
        m_page->show();
        QVERIFY(IsUnmarked());
        QCOMPARE(Edit()->text(), QDir::toNativeSeparators(m_folder->path()));
    }

    void saysThatAFolderWillBeCreated()
    {
        const QString sentence = QStringLiteral("It will be created");
        QVERIFY(!Label("freeSpaceLabel")->text().contains(sentence));
        TypeAndAccept(m_folder->filePath(QStringLiteral("not/yet")));
        QVERIFY(IsUnmarked());
        QVERIFY(Label("freeSpaceLabel")->text().contains(sentence));
        QVERIFY(IsFreeSpaceTold());
    }

    void marksAStoredFolderThatCannotBeUsed()
    {
        m_store->Change([](auto& settings) {
            settings.resultsFolderPath = QStringLiteral("/proc/version/recordings");
        });
        m_page->hide();
        m_page->show();
        QVERIFY(!IsUnmarked());
        QCOMPARE(Label("folderProblemLabel")->text(), m_page->Problem());
    }

    void saysWhenFreeSpaceCannotBeTold()
    {
        m_store->Change([](auto& settings) { settings.resultsFolderPath.clear(); });
        m_page->hide();
        m_page->show();
        QVERIFY(!IsFreeSpaceTold());
        QVERIFY(!Label("freeSpaceLabel")->text().isEmpty());
    }

    void writesSizesInTheirOwnOrder_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("Hebrew") << QLocale(QLocale::Hebrew);
        QTest::newRow("Arabic") << QLocale(QLocale::Arabic, QLocale::Morocco);
    }

    /// A Latin unit stands to the right of its number, another to the left.
    void writesSizesInTheirOwnOrder()
    {
        QFETCH(QLocale, locale);
        QLocale::setDefault(locale);
        QEvent languageChange(QEvent::LanguageChange);
        QCoreApplication::sendEvent(m_page.get(), &languageChange);
        QLocale::setDefault(QLocale::c());
        const QString text = Label("freeSpaceLabel")->text();
        // Not its first digit: a cursor there may be shown on either side of the number.
        const int number = int(text.lastIndexOf(QRegularExpression(QStringLiteral("[0-9]"))));
        const int unit = int(text.indexOf(QRegularExpression(QStringLiteral("\\p{L}")), number));
        QVERIFY2(number >= 0 && unit > number, qPrintable(text));
        QTextLayout layout(text, Label("freeSpaceLabel")->font());
        QTextOption option;
        option.setTextDirection(Qt::RightToLeft);
        layout.setTextOption(option);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        const bool isUnitToTheRight = line.cursorToX(unit) > line.cursorToX(number);
        QCOMPARE(isUnitToTheRight, text.at(unit).direction() == QChar::DirL);
    }

private:
    QLineEdit* Edit() const { return m_page->findChild<QLineEdit*>(); }
    QLabel* Label(const char* name) const
    {
        return m_page->findChild<QLabel*>(QLatin1String(name));
    }
    bool IsFreeSpaceTold() const
    {
        static const QRegularExpression size(QStringLiteral("[0-9].*B"));
        return Label("freeSpaceLabel")->isVisible()
            && size.match(Label("freeSpaceLabel")->text()).hasMatch();
    }
    /// Whether the field and the text beside it both say that something is wrong.
    bool IsMarked() const
    {
        const auto* problem = Label("folderProblemLabel");
        return Edit()->property("SubStyle") == QLatin1String("Invalid") && problem->isVisible()
            && !problem->text().isEmpty() && Edit()->accessibleDescription() == problem->text();
    }
    /// Whether neither of them does.
    bool IsUnmarked() const
    {
        return Edit()->property("SubStyle") == QLatin1String("Normal")
            && !Label("folderProblemLabel")->isVisible()
            && Edit()->accessibleDescription().isEmpty();
    }
    void TypeAndAccept(const QString& text)
    {
        Edit()->selectAll();
        QTest::keyClick(Edit(), Qt::Key_Delete);
        QTest::keyClicks(Edit(), text);
        QTest::keyClick(Edit(), Qt::Key_Return);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<PX::SettingsStore> m_store;
    std::unique_ptr<Desktop::FilesPage> m_page;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_FilesPage)

#include "tst_FilesPage.moc"
