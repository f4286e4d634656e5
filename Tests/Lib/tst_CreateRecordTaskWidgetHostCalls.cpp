// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QValidator>

#include "PanelParts.h"
#include "TaskForm.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

using namespace PX::Scheduler::UI;

/// What the form asked of the host, as in "Style NameLineEdit Normal".
QStringList s_calls;

QStringList TakeCalls()
{
    return std::exchange(s_calls, {});
}

QString ShortNameOf(const QObject* object)
{
    return object->objectName().remove(QLatin1String("scheduledCaptureSettings"));
}

class CountingLanguages final : public App::ILookAndFeelManager {
public:
    std::string GetLanguage() const override
    {
        s_calls << "Language";
        return "de";
    }
};

/// Text and nothing else: does not accept digits.
class NoDigits final : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int& /*position*/) const override
    {
        return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); })
            ? Invalid
            : Acceptable;
    }
};

/// Adds the tool tips that widgets are given to the calls, as in "Tip StartTime set".
class ToolTipChanges final : public QObject {
public:
    ToolTipChanges(std::initializer_list<QWidget*> widgets)
    {
        for (QWidget* widget : widgets) {
            widget->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ToolTipChange) {
            const bool isCleared = static_cast<QWidget*>(watched)->toolTip().isEmpty();
            s_calls << "Tip " + ShortNameOf(watched) + (isCleared ? " cleared" : " set");
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace
} // namespace Zentor::Tests

// These stand in for the functions of the host.

void Zentor::Util::ApplyWidgetStyle(QWidget* widget, const QString& style, const char* property)
{
    Tests::s_calls << QStringList{"Style", Tests::ShortNameOf(widget), style, property}.join(' ');
}

QValidator* Zentor::Util::GetFilenameValidator(QObject* parent)
{
    Tests::s_calls << "Validator";
    return new Tests::NoDigits(parent);
}

void Zentor::PX::UI::ClearAndFillPowerActionsComboBox(QComboBox* comboBox)
{
    Tests::s_calls << "Fill " + Tests::ShortNameOf(comboBox)
            + (comboBox->signalsBlocked() ? " blocked" : "");
    comboBox->clear();
    comboBox->addItems({"A", "B", "C"});
}

namespace Zentor::Tests {

/// What the form calls of its host, and in which order.
class tst_CreateRecordTaskWidgetHostCalls : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        s_calls.clear();
    }

    void isBuilt()
    {
        const CreateRecordTaskWidget form(std::make_shared<CountingLanguages>(), nullptr);
        QCOMPARE(TakeCalls(),
                 QStringList({"Style SelectedAreaInfoButton QuestionButton SubStyle", "Language",
                              "Validator", "Language", "Fill ActionOnFinishBox blocked"}));
        QCOMPARE(form.GetActionOnFinishIndex(), -1);
        auto* name = form.findChild<QLineEdit*>(Desktop::PanelPart::NameField);
        QTest::keyClicks(name, "a1b2");
        QCOMPARE(form.GetTaskName(), QStringLiteral("ab"));
    }

    void isTranslated()
    {
        CreateRecordTaskWidget form(std::make_shared<CountingLanguages>(), nullptr);
        form.ResetForm("a");
        auto* box = form.findChild<QComboBox*>(Desktop::PanelPart::ActionBox);
        box->setCurrentIndex(2);
        TakeCalls();
        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&form, &language);
        QCOMPARE(TakeCalls(), QStringList({"Language", "Fill ActionOnFinishBox blocked"}));
        QCOMPARE(form.GetActionOnFinishIndex(), 2);
        QEvent other(QEvent::FontChange);
        QCoreApplication::sendEvent(&form, &other);
        QCOMPARE(TakeCalls(), QStringList());
    }

    void marksErrors_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("invalid");
        QTest::newRow("none") << int(NoError) << "";
        QTest::newRow("empty") << int(EmptyTitle) << "NameLineEdit";
        QTest::newRow("exists") << int(TitleAlreadyExists) << "NameLineEdit";
        QTest::newRow("overlap") << int(CaptureTimeIntersected) << "StartTime";
    }

    void marksErrors()
    {
        QFETCH(int, error);
        QFETCH(QString, invalid);
        const TaskForm form;
        TakeCalls();
        form.widget->ShowValidateError(static_cast<ValidateError>(error));
        QCOMPARE(TakeCalls(), QStringList());

        QVERIFY(form.Show());
        TakeCalls();
        form.widget->ShowValidateError(static_cast<ValidateError>(error));
        QStringList expected{"Style NameLineEdit Normal SubStyle",
                             "Style StartTime Normal SubStyle"};
        if (!invalid.isEmpty()) {
            expected << "Style " + invalid + " Invalid SubStyle";
        }
        QCOMPARE(TakeCalls(), expected);
    }

    void resetsBothMarksEachTime_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("marked");
        const std::pair<int, const char*> errors[] = {{NoError, ""},
                                                      {EmptyTitle, "NameLineEdit"},
                                                      {TitleAlreadyExists, "NameLineEdit"},
                                                      {CaptureTimeIntersected, "StartTime"},
                                                      {4, ""}};
        for (const auto& [before, unused] : errors) {
            for (const auto& [error, marked] : errors) {
                QTest::addRow("%d after %d", error, before)
                    << before << error << QString::fromLatin1(marked);
            }
        }
    }

    void resetsBothMarksEachTime()
    {
        QFETCH(int, before);
        QFETCH(int, error);
        QFETCH(QString, marked);
        const TaskForm form;
        QVERIFY(form.Show());
        form.widget->ShowValidateError(static_cast<ValidateError>(before));
        const ToolTipChanges tips({form.Name(), form.Start()});
        TakeCalls();
        form.widget->ShowValidateError(static_cast<ValidateError>(error));
        QStringList expected{"Style NameLineEdit Normal SubStyle",
                             "Style StartTime Normal SubStyle", "Tip StartTime cleared",
                             "Tip NameLineEdit cleared"};
        if (!marked.isEmpty()) {
            expected << "Style " + marked + " Invalid SubStyle"
                     << "Tip " + marked + " set";
        }
        QCOMPARE(TakeCalls(), expected);
        QCOMPARE(form.Create()->isEnabled(), error == NoError);
    }

    void asksForNothingOnItsTimer()
    {
        const TaskForm form;
        TakeCalls();
        form.Tick();
        QCOMPARE(TakeCalls(), QStringList());
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_CreateRecordTaskWidgetHostCalls)

#include "tst_CreateRecordTaskWidgetHostCalls.moc"
