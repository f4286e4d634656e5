// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAbstractItemModelTester>

#include "RecordingsModel.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace std::chrono_literals;
using Desktop::RecordingsModel;
using Schedule::Moment;
using Schedule::Outcome;
using Schedule::RecordingEntry;
using Schedule::RecordingsList;

RecordingEntry EntryCalled(const QString& title, const QString& file = {})
{
    return {title, Moment(1'900'000'000s), Moment(1'900'003'600s), Outcome::Complete, file, {}};
}

QStringList Titles(const RecordingsModel& model)
{
    QStringList titles;
    for (int row = 0; row < model.rowCount(); ++row) {
        titles << model.index(row).data().toString();
    }
    return titles;
}

} // namespace

class tst_RecordingsModel : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
        m_list = std::make_shared<RecordingsList>(m_folder->filePath("recordings.json"));
        QCOMPARE(m_list->Open(), QString());
        m_model = std::make_unique<RecordingsModel>();
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_list.reset();
        m_folder.reset();
        WidgetTest::cleanup();
    }

    void isEmptyWithoutAList()
    {
        QCOMPARE(m_model->rowCount(), 0);
        QCOMPARE(m_model->RowOf(1), -1);
        QVERIFY(!m_model->data({}, Qt::DisplayRole).isValid());
    }

    void showsTheNewestFirst()
    {
        m_list->Add(EntryCalled("1"));
        m_list->Add(EntryCalled("2"));
        m_model->SetList(m_list);
        QCOMPARE(Titles(*m_model), (QStringList{"2", "1"}));
        const auto third = m_list->Add(EntryCalled("3"));
        QCOMPARE(Titles(*m_model), (QStringList{"3", "2", "1"}));
        QCOMPARE(m_model->RowOf(third), 0);
        QCOMPARE(m_model->ItemAt(0).id, third);
    }

    void followsTheList()
    {
        m_model->SetList(m_list);
        const auto first = m_list->Add(EntryCalled("1"));
        const auto second = m_list->Add(EntryCalled("2"));
        m_list->Add(EntryCalled("3"));
        const QSignalSpy changed(m_model.get(), &RecordingsModel::dataChanged);
        m_list->Update(first, EntryCalled("1 again"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toModelIndex().row(), 2);
        m_list->Remove(second);
        QCOMPARE(Titles(*m_model), (QStringList{"3", "1 again"}));
        m_list->Remove(first);
        QCOMPARE(Titles(*m_model), QStringList{"3"});
        QCOMPARE(m_model->RowOf(first), -1);
    }

    void tellsDetailsInWords()
    {
        RecordingEntry entry = EntryCalled("Lecture");
        entry.outcome = Outcome::Partial;
        entry.reason = "late";
        m_list->Add(entry);
        m_model->SetList(m_list);
        const QModelIndex row = m_model->index(0);
        QCOMPARE(row.data(RecordingsModel::OutcomeRole).toString(),
                 QStringLiteral("Incomplete: it started late"));
        QVERIFY(row.data(RecordingsModel::IsProblemRole).toBool());
        QVERIFY(row.data(RecordingsModel::DetailsRole).toString().contains("1:00:00"));
        const QString told = row.data(Qt::AccessibleTextRole).toString();
        for (const char* part : {"Lecture", "Incomplete", "1:00:00"}) {
            QVERIFY2(told.contains(part), qPrintable(told));
        }
    }

    void tellsNoLengthWhereNothingWasRecorded()
    {
        for (const Outcome outcome : {Outcome::Missed, Outcome::Failed, Outcome::Recording}) {
            RecordingEntry entry = EntryCalled("Lecture");
            entry.outcome = outcome;
            m_list->Add(entry);
        }
        m_model->SetList(m_list);
        for (int row = 0; row < m_model->rowCount(); ++row) {
            const QString details =
                m_model->index(row).data(RecordingsModel::DetailsRole).toString();
            QVERIFY2(!details.contains("1:00:00"), qPrintable(details));
        }
    }

    void looksAtTheFilesInViewOnly()
    {
        const QString there = m_folder->filePath("there.mkv");
        QFile file(there);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(1500, 'x'));
        file.close();
        m_list->Add(EntryCalled("Gone", m_folder->filePath("gone.mkv")));
        m_list->Add(EntryCalled("There", there));
        m_list->Add(EntryCalled("Without"));
        m_list->Add(EntryCalled("Out of view", m_folder->filePath("above.mkv")));
        m_model->SetList(m_list);
        QTest::qWait(0);
        QVERIFY(!m_model->FactsAt(2));
        const QSignalSpy changed(m_model.get(), &RecordingsModel::dataChanged);
        m_model->LookAt(1, 3);
        QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, Patience);
        QVERIFY(m_model->FactsAt(2)->exists);
        QCOMPARE(m_model->FactsAt(2)->bytes, 1500);
        QVERIFY(!m_model->FactsAt(3)->exists);
        QVERIFY(!m_model->FactsAt(0));
        const auto details = [&](int row) {
            return m_model->index(row).data(RecordingsModel::DetailsRole).toString();
        };
        QVERIFY2(details(2).contains("1.5 kB"), qPrintable(details(2)));
        QVERIFY2(details(3).contains("the file is gone"), qPrintable(details(3)));
    }

    void looksAnewWhenAsked()
    {
        const QString path = m_folder->filePath("a.mkv");
        m_list->Add(EntryCalled("Lecture", path));
        m_model->SetList(m_list);
        m_model->LookAt(0, 0);
        QTRY_VERIFY_WITH_TIMEOUT(m_model->FactsAt(0), Patience);
        QVERIFY(!m_model->FactsAt(0)->exists);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        m_model->LookAt(0, 0);
        QTest::qWait(0);
        QVERIFY(!m_model->FactsAt(0)->exists);
        m_model->ForgetFiles();
        QVERIFY(m_model->FactsAt(0));
        m_model->LookAt(0, 0);
        QTRY_VERIFY_WITH_TIMEOUT(m_model->FactsAt(0)->exists, Patience);
    }

    void showsPictures()
    {
        const QString path = m_folder->filePath("a.mkv");
        m_list->Add(EntryCalled("Lecture", path));
        m_model->SetList(m_list);
        m_model->LookAt(0, 0);
        QTRY_VERIFY_WITH_TIMEOUT(m_model->FactsAt(0), Patience);
        const QSignalSpy changed(m_model.get(), &RecordingsModel::dataChanged);
        m_model->SetPicture(path, QImage(4, 3, QImage::Format_RGB32));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_model->index(0).data(RecordingsModel::PictureRole).value<QImage>().width(), 4);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<RecordingsList> m_list;
    std::unique_ptr<RecordingsModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RecordingsModel)

#include "tst_RecordingsModel.moc"
