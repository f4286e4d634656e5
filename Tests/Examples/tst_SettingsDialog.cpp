// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "SettingsDialog.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTemporaryDir>

#include "Boxes.h"
#include "PanelParts.h"
#include "RecordSchedulerWidget.h"
#include "WidgetTest.h"

Q_DECLARE_METATYPE(QDialogButtonBox::StandardButton)

namespace Zentor::Tests {
namespace {

namespace PanelPart = Desktop::PanelPart;

/// The example's dialog on settings of its own.
struct Fixture {
    Fixture()
    {
        QString error;
        isOpen = store->Open(&error);
        dialog = std::make_unique<SettingsDialog>(store);
        dialog->show();
        dialog->findChild<QListWidget*>()->setCurrentRow(2);
    }

    template <typename Widget> Widget* Find(const QString& name) const
    {
        return dialog->findChild<Widget*>(name);
    }
    void Press(QDialogButtonBox::StandardButton button) const
    {
        dialog->findChild<QDialogButtonBox*>()->button(button)->click();
    }
    /// The folder for recordings, on the page of files.
    QLineEdit* Folder() const
    {
        return dialog->findChild<QStackedWidget*>()->widget(1)->findChild<QLineEdit*>();
    }
    void OpenForm() const
    {
        Find<QRadioButton>(PanelPart::ScheduledModeButton)->click();
        Find<QPushButton>(PanelPart::AddButton)->click();
    }

    const QTemporaryDir folder;
    std::shared_ptr<PX::SettingsStore> store =
        std::make_shared<PX::SettingsStore>(folder.filePath("settings.json"));
    bool isOpen = false;
    std::unique_ptr<SettingsDialog> dialog;
};

} // namespace

class tst_SettingsDialog : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void storesWithOk_data()
    {
        QTest::addColumn<QDialogButtonBox::StandardButton>("button");
        QTest::addColumn<bool>("isStored");
        QTest::newRow("OK") << QDialogButtonBox::Ok << true;
        QTest::newRow("Cancel") << QDialogButtonBox::Cancel << false;
    }

    void storesWithOk()
    {
        QFETCH(const QDialogButtonBox::StandardButton, button);
        QFETCH(const bool, isStored);
        const Fixture fixture;
        QVERIFY(fixture.isOpen);
        const PX::UserSettings before = fixture.store->Settings();
        fixture.Find<QRadioButton>(PanelPart::LimitedModeButton)->click();
        fixture.Folder()->setText(fixture.folder.path());
        QCOMPARE(fixture.store->Settings().limitedCaptureEnabled, false);
        QCOMPARE(fixture.store->Settings().resultsFolderPath, before.resultsFolderPath);

        fixture.Press(button);
        QVERIFY(!fixture.dialog->isVisible());
        QCOMPARE(fixture.store->Settings().limitedCaptureEnabled, isStored);
        QCOMPARE(fixture.store->Settings().resultsFolderPath == fixture.folder.path(), isStored);
    }

    void storesCreatedTasks()
    {
        const Fixture fixture;
        fixture.OpenForm();
        fixture.Find<QPushButton>(PanelPart::CreateButton)->click();
        QVERIFY(fixture.store->Settings().schedule.empty());
        fixture.Press(QDialogButtonBox::Ok);
        QCOMPARE(fixture.store->Settings().schedule.size(), std::size_t(1));
        QVERIFY(fixture.store->Settings().scheduledCaptureEnabled);
    }

    /// A task that is still in the form is not lost without a word.
    void asksAboutTheTaskInTheForm()
    {
        const Fixture fixture;
        fixture.OpenForm();
        const ExpectedBox refused(QMessageBox::Cancel);
        fixture.Press(QDialogButtonBox::Ok);
        QVERIFY(refused.Came());
        QVERIFY(fixture.dialog->isVisible());
        QVERIFY(fixture.store->Settings().schedule.empty());

        const ExpectedBox added(QMessageBox::Yes);
        fixture.Press(QDialogButtonBox::Ok);
        QVERIFY(added.Came());
        QVERIFY(!fixture.dialog->isVisible());
        QCOMPARE(fixture.store->Settings().schedule.size(), std::size_t(1));
    }

    void opensTheFilesPage()
    {
        const Fixture fixture;
        auto* panel = fixture.dialog->findChild<PX::Scheduler::UI::RecordSchedulerWidget*>();
        Q_EMIT panel->OpenFilesSettingsRequested();
        QVERIFY(fixture.Folder()->isVisible());
        QVERIFY(!panel->isVisible());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_SettingsDialog)
#include "tst_SettingsDialog.moc"
