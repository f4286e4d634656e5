// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <random>

#include <glog/logging.h>

#include "FakeClock.h"
#include "RandomWalk/BoxAnswers.h"
#include "RandomWalk/Stage.h"
#include "WidgetTest.h"

namespace {

std::int64_t s_freeBytes = 0;

} // namespace

/// Takes the place of the reference host's query.
std::int64_t Zentor::Util::GetAvailableDiskSpace(const ioPath& /*path*/)
{
    return s_freeBytes;
}

namespace Zentor::Tests {
namespace {

using namespace RandomWalk;

#ifdef SCHEDULER_SANITIZED
constexpr int StepCount = 20000;
#else
constexpr int StepCount = 100000;
#endif
constexpr int WalkCount = 10;
constexpr std::size_t MostTasks = 7;

/// What a user and the rest of the world do to a panel, step by step at random. The same seed makes
/// the same walk.
class Walk {
public:
    explicit Walk(quint32 seed)
        : m_random(seed)
        , m_clock(QDateTime(QDate(2030, 3, 1), QTime(23, 50)))
        , m_stage(std::make_unique<Stage>())
        , m_model(QDateTime::currentDateTime())
    {
    }

    /// Does something and compares the panel with the model. Returns the differences.
    QString Step();

    /// What was done last, the latest at the end.
    const QStringList& History() const { return m_history; }

private:
    struct Action {
        const char* name;
        int weight;
        bool (Walk::*isPossible)() const;
        void (Walk::*act)();
    };
    static const std::vector<Action>& Actions();
    const Action& Choose();
    std::vector<Answer> ChooseAnswers();
    QStringList Differences();

    int Below(int bound) { return int(m_random() % quint32(bound)); }
    bool IsLucky(int oneIn) { return Below(oneIn) == 0; }
    void Note(const QString& detail) { m_history.last() += ' ' + detail; }
    const Parts& Shown() const { return *m_stage->parts; }

    bool IsAlways() const { return true; }
    bool IsShown() const { return m_model.isWindowShown; }
    bool IsHidden() const { return !m_model.isWindowShown; }
    bool IsLimited() const { return IsShown() && m_model.mode == Mode::Limited; }
    bool IsTable() const
    {
        return IsShown() && m_model.mode == Mode::Scheduled && !m_model.isFormOpen;
    }
    bool HasRoom() const { return IsTable() && m_model.tasks.size() < MostTasks; }
    bool HasTask() const { return IsTable() && !m_model.tasks.empty(); }
    bool IsForm() const { return m_model.IsFormVisible(); }
    bool HasScreens() const
    {
        return IsForm() && m_model.entry.isFullScreen && m_model.screenCount > 1;
    }

    void ClickMode();
    void PressModeKey();
    void TypeLimitedDuration() { m_model.limitedDuration = TypeDuration(*Shown().limitedDuration); }
    void StepLimitedDuration() { m_model.limitedDuration = StepDuration(*Shown().limitedDuration); }
    void PlayWithLimitedDuration();
    void ChooseLimitedAction() { StepBox(*Shown().limitedAction, m_model.limitedAction); }
    void OpenForm();
    void DeleteTask();
    void ForgetAnswer();
    void TypeName();
    void EraseName();
    void TypeFormDuration() { m_model.entry.duration = TypeDuration(*Shown().duration); }
    void StepFormDuration() { m_model.entry.duration = StepDuration(*Shown().duration); }
    void PlayWithDuration();
    void TypeStart();
    void StepStart();
    void PlayWithStart();
    void PlayWithDate();
    void ChooseArea();
    void ChooseScreen() { StepBox(*Shown().screens, m_model.entry.screenIndex); }
    void ChooseAction() { StepBox(*Shown().action, m_model.entry.finishAction); }
    void Create();
    void GoBack();
    void Show();
    void Hide();
    void RestoreFromMinimised() { m_stage->RestoreFromMinimised(); }
    void SwitchLanguage();
    void ChangeScreens();
    void LetTimePass();
    void Validate();
    void Restart();

    void Focus(QWidget& widget);
    void Type(QTimeEdit& editor, const QTime& time);
    QTime TypeDuration(QTimeEdit& editor);
    QTime PressStepKey(QDateTimeEdit& editor);
    QTime StepDuration(QTimeEdit& editor) { return AsDuration(PressStepKey(editor)); }
    template <typename Sync> void PlayWith(QDateTimeEdit& editor, Sync sync);
    void StepBox(QComboBox& box, int& index);
    void EnterStart(const QTime& time);
    void Advance();
    static QTime AsDuration(const QTime& time) { return std::max(time, QTime(0, 0, 5)); }

    std::mt19937 m_random;
    FakeClock m_clock;
    BoxAnswers m_answers;
    std::unique_ptr<Stage> m_stage;
    Model m_model;
    QStringList m_history;
};

const std::vector<Walk::Action>& Walk::Actions()
{
    static const std::vector<Action> actions{
        {"click a mode", 4, &Walk::IsShown, &Walk::ClickMode},
        {"press a mode key", 2, &Walk::IsShown, &Walk::PressModeKey},
        {"type limited duration", 6, &Walk::IsLimited, &Walk::TypeLimitedDuration},
        {"step limited duration", 6, &Walk::IsLimited, &Walk::StepLimitedDuration},
        {"play with limited duration", 6, &Walk::IsLimited, &Walk::PlayWithLimitedDuration},
        {"choose limited action", 6, &Walk::IsLimited, &Walk::ChooseLimitedAction},
        {"open form", 20, &Walk::HasRoom, &Walk::OpenForm},
        {"delete task", 10, &Walk::HasTask, &Walk::DeleteTask},
        {"forget answer", 2, &Walk::IsAlways, &Walk::ForgetAnswer},
        {"type name", 10, &Walk::IsForm, &Walk::TypeName},
        {"erase name", 6, &Walk::IsForm, &Walk::EraseName},
        {"type duration", 6, &Walk::IsForm, &Walk::TypeFormDuration},
        {"step duration", 10, &Walk::IsForm, &Walk::StepFormDuration},
        {"play with duration", 4, &Walk::IsForm, &Walk::PlayWithDuration},
        {"type start", 6, &Walk::IsForm, &Walk::TypeStart},
        {"step start", 10, &Walk::IsForm, &Walk::StepStart},
        {"play with start", 4, &Walk::IsForm, &Walk::PlayWithStart},
        {"play with date", 6, &Walk::IsForm, &Walk::PlayWithDate},
        {"choose area", 4, &Walk::IsForm, &Walk::ChooseArea},
        {"choose screen", 6, &Walk::HasScreens, &Walk::ChooseScreen},
        {"choose action", 4, &Walk::IsForm, &Walk::ChooseAction},
        {"create", 12, &Walk::IsForm, &Walk::Create},
        {"go back", 4, &Walk::IsForm, &Walk::GoBack},
        {"show", 20, &Walk::IsHidden, &Walk::Show},
        {"hide", 1, &Walk::IsShown, &Walk::Hide},
        {"restore from minimised", 1, &Walk::IsShown, &Walk::RestoreFromMinimised},
        {"switch language", 1, &Walk::IsAlways, &Walk::SwitchLanguage},
        {"change screens", 2, &Walk::IsAlways, &Walk::ChangeScreens},
        {"let time pass", 6, &Walk::IsAlways, &Walk::LetTimePass},
        {"validate", 2, &Walk::IsAlways, &Walk::Validate},
        {"restart", 1, &Walk::IsAlways, &Walk::Restart},
    };
    return actions;
}

const Walk::Action& Walk::Choose()
{
    std::vector<const Action*> possible;
    for (const Action& action : Actions()) {
        if ((this->*action.isPossible)()) {
            possible.insert(possible.end(), std::size_t(action.weight), &action);
        }
    }
    return *possible.at(std::size_t(Below(int(possible.size()))));
}

std::vector<Answer> Walk::ChooseAnswers()
{
    // No action is asked more than two questions.
    std::vector<Answer> answers(2);
    for (Answer& answer : answers) {
        answer.way = IsLucky(2) ? Answer::Accept : Answer::Way(Below(Answer::Close + 1));
        answer.isTicked = IsLucky(4);
    }
    return answers;
}

QString Walk::Step()
{
    const Action& action = Choose();
    m_history << QString::fromLatin1(action.name);
    if (m_history.size() > 12) {
        m_history.removeFirst();
    }
    m_model.answers = ChooseAnswers();
    m_model.boxes.clear();
    m_answers.Prepare(m_model.answers);
    (this->*action.act)();
    m_model.Judge();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return Differences().join('\n');
}

QStringList Walk::Differences()
{
    const QStringList shown = m_stage->Shown() << "boxes: " + m_answers.TakeBoxes().join(", ");
    const QStringList expected = m_model.Shown() << "boxes: " + m_model.boxes.join(", ");
    QStringList differences;
    for (int i = 0; i < expected.size(); ++i) {
        if (shown.at(i) != expected.at(i)) {
            differences << "  shown    " + shown.at(i) << "  expected " + expected.at(i);
        }
    }
    const QString broken = m_stage->BrokenLimits(m_model);
    return broken.isEmpty() ? differences : differences << "  " + broken;
}

void Walk::Focus(QWidget& widget)
{
    QApplication::setActiveWindow(m_stage->window.get());
    widget.setFocus();
}

void Walk::ClickMode()
{
    const int mode = Below(3);
    Note(QString::number(mode));
    if (IsLucky(2)) {
        QTest::mouseClick(Shown().captions[mode], Qt::LeftButton);
    } else {
        auto* button = Shown().modes[mode];
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
    }
    m_model.Choose(Mode(mode));
}

void Walk::PressModeKey()
{
    const int mode = int(m_model.mode);
    const bool isDown = IsLucky(2);
    Note(isDown ? "down" : "up");
    Focus(*Shown().modes[mode]);
    QTest::keyClick(Shown().modes[mode], isDown ? Qt::Key_Down : Qt::Key_Up);
    m_model.Choose(Mode(qBound(0, isDown ? mode + 1 : mode - 1, 2)));
}

void Walk::Type(QTimeEdit& editor, const QTime& time)
{
    Note(time.toString());
    Focus(editor);
    editor.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&editor, time.toString(QStringLiteral("hhmmss")));
}

QTime Walk::TypeDuration(QTimeEdit& editor)
{
    const QTime time(IsLucky(2) ? 0 : Below(24), IsLucky(3) ? 0 : Below(60), Below(60));
    Type(editor, time);
    return AsDuration(time);
}

/// Presses Up or Down in one section and returns the time that comes of it.
QTime Walk::PressStepKey(QDateTimeEdit& editor)
{
    const int section = Below(3);
    const int step = IsLucky(2) ? 1 : -1;
    const QTime time = editor.time();
    int values[] = {time.hour(), time.minute(), time.second()};
    values[section] = qBound(0, values[section] + step, section == 0 ? 23 : 59);
    Note(QStringLiteral("section %1 by %2").arg(section).arg(step));
    Focus(editor);
    editor.setCurrentSectionIndex(section);
    QTest::keyClick(&editor, step > 0 ? Qt::Key_Up : Qt::Key_Down);
    return QTime(values[0], values[1], values[2], time.msec());
}

/// Presses some keys as they come, with time passing between. What comes of it is the editor's
/// affair; \a sync tells the model.
template <typename Sync> void Walk::PlayWith(QDateTimeEdit& editor, Sync sync)
{
    constexpr Qt::Key keys[] = {Qt::Key_0,  Qt::Key_1,    Qt::Key_2,      Qt::Key_3,
                                Qt::Key_4,  Qt::Key_5,    Qt::Key_9,      Qt::Key_Colon,
                                Qt::Key_Up, Qt::Key_Down, Qt::Key_Right,  Qt::Key_Left,
                                Qt::Key_Up, Qt::Key_Down, Qt::Key_Delete, Qt::Key_Backspace};
    Focus(editor);
    editor.setCurrentSectionIndex(Below(3));
    for (int count = 1 + Below(4); count > 0; --count) {
        const Qt::Key key = keys[Below(int(std::size(keys)))];
        Note(QStringLiteral("0x%1").arg(int(key), 0, 16));
        QTest::keyClick(&editor, key);
        sync();
        if (IsLucky(4)) {
            Advance();
        }
    }
    // What is not complete is completed when the editor is left.
    editor.clearFocus();
    sync();
}

void Walk::PlayWithLimitedDuration()
{
    auto* editor = Shown().limitedDuration;
    PlayWith(*editor, [&] { m_model.limitedDuration = editor->time(); });
}

void Walk::PlayWithDuration()
{
    auto* editor = Shown().duration;
    PlayWith(*editor, [&] { m_model.entry.duration = editor->time(); });
}

void Walk::PlayWithStart()
{
    auto* editor = Shown().start;
    PlayWith(*editor, [&] { m_model.entry.start = editor->dateTime(); });
}

void Walk::PlayWithDate()
{
    auto* editor = Shown().date;
    PlayWith(*editor, [&] { m_model.MoveToDate(editor->date()); });
}

void Walk::StepBox(QComboBox& box, int& index)
{
    const bool isDown = IsLucky(2);
    Note(isDown ? "down" : "up");
    QTest::keyClick(&box, isDown ? Qt::Key_Down : Qt::Key_Up);
    index = qBound(0, isDown ? index + 1 : index - 1, box.count() - 1);
}

void Walk::OpenForm()
{
    QTest::mouseClick(Shown().add, Qt::LeftButton);
    m_model.OpenForm();
}

void Walk::DeleteTask()
{
    const int row = Below(int(m_model.tasks.size()));
    Note(QString::number(row));
    QTest::mouseClick(m_stage->DeleteButton(row), Qt::LeftButton);
    m_model.Delete(row);
}

void Walk::ForgetAnswer()
{
    m_stage->settingsManager->confirmed.clear();
    m_model.isDeletionRemembered = false;
}

void Walk::TypeName()
{
    const QString numbered = QString(IsLucky(4) ? "~Task " : "Task ");
    const QString names[] = {numbered + QString::number(Below(12)),
                             numbered + QStringLiteral("0") + QString::number(Below(12)),
                             QStringLiteral("lecture %1").arg(Below(5)),
                             QStringLiteral("  lecture %1 ").arg(Below(5)),
                             QStringLiteral("<b>a?b:c*</b>"),
                             QStringLiteral("   ")};
    QString name = names[Below(int(std::size(names)))];
    Note('"' + name + '"');
    Focus(*Shown().name);
    Shown().name->selectAll();
    QTest::keyClicks(Shown().name, name);
    m_model.entry.name = name.remove(QRegularExpression(QStringLiteral("[<>/?:*]")));
}

void Walk::EraseName()
{
    Focus(*Shown().name);
    if (IsLucky(3)) {
        Shown().name->selectAll();
        m_model.entry.name.clear();
    } else {
        Shown().name->end(false);
        m_model.entry.name.chop(1);
    }
    QTest::keyClick(Shown().name, Qt::Key_Backspace);
}

/// On a later day every clock reading is free; on the first one the editor has its own way with
/// those that are over.
void Walk::EnterStart(const QTime& time)
{
    Entry& entry = m_model.entry;
    if (entry.start.date() > m_model.earliestStart.date()) {
        entry.start.setTime(time);
    } else {
        Shown().start->clearFocus();
        entry.start = Shown().start->dateTime();
    }
}

void Walk::TypeStart()
{
    const QTime time(Below(24), Below(60), Below(60), m_model.entry.start.time().msec());
    Type(*Shown().start, time);
    EnterStart(time);
}

void Walk::StepStart()
{
    EnterStart(PressStepKey(*Shown().start));
}

void Walk::ChooseArea()
{
    auto& isFullScreen = m_model.entry.isFullScreen;
    isFullScreen = IsLucky(2);
    auto* button = isFullScreen ? Shown().fullScreen : Shown().selectedArea;
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
}

void Walk::Create()
{
    if (Shown().create->isEnabled()) {
        QTest::mouseClick(Shown().create, Qt::LeftButton);
    }
    m_model.Create();
}

void Walk::GoBack()
{
    QTest::mouseClick(Shown().back, Qt::LeftButton);
    m_model.GoBack();
}

void Walk::Show()
{
    m_stage->window->show();
    m_model.Show();
}

void Walk::Hide()
{
    m_stage->window->hide();
    m_model.Hide();
}

void Walk::SwitchLanguage()
{
    m_stage->language.Toggle();
    m_model.isTranslated = m_stage->language.IsMarking();
}

void Walk::ChangeScreens()
{
    const int count = int(m_stage->screens.size());
    if (count < 3 && (count == 0 || IsLucky(2))) {
        m_stage->PlugScreen();
    } else {
        m_stage->UnplugScreen(Below(count));
    }
    m_model.CountScreens(1 + int(m_stage->screens.size()));
}

void Walk::Advance()
{
    // Mostly the time from one tick to the next; sometimes the computer slept for hours or days.
    constexpr qint64 tick = 300;
    constexpr qint64 hour = 3'600'000;
    m_clock.Advance(IsLucky(4) ? Below(72) * hour : 1 + Below(60) * tick);
    m_model.now = QDateTime::currentDateTime();
    m_stage->Tick();
    m_model.Tick();
}

void Walk::LetTimePass()
{
    Advance();
    Note(m_model.now.toString(Qt::ISODateWithMs));
}

void Walk::Validate()
{
    constexpr std::int64_t amounts[] = {-1, 0, 1000000000, 1000000001,
                                        std::numeric_limits<std::int64_t>::max()};
    s_freeBytes = amounts[Below(int(std::size(amounts)))];
    m_model.freeBytes = s_freeBytes;
    const bool mayStart = m_stage->panel->ValidateSettings();
    if (m_model.Validate() != mayStart) {
        m_model.boxes << (mayStart ? "the capture starts" : "the capture does not start");
    }
}

void Walk::Restart()
{
    m_stage->Restart();
    m_model.Restart(QDateTime::currentDateTime());
    m_model.isWindowShown = false;
}

int FromEnvironment(const char* name, int otherwise)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? value : otherwise;
}

} // namespace

/// Walks through everything that a user can do with the panel, at random.
///
/// A failure tells its seed and step. RANDOM_WALK_SEED walks that way alone, RANDOM_WALK_STEPS says
/// how far.
class tst_RandomWalk : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Every refused start is a warning in the log.
        FLAGS_minloglevel = google::GLOG_ERROR;
        QGuiApplication::setQuitOnLastWindowClosed(false);
    }

    void showsAndStoresWhatItShould_data()
    {
        QTest::addColumn<int>("seed");
        const int only = FromEnvironment("RANDOM_WALK_SEED", -1);
        for (int seed = 1; seed <= WalkCount; ++seed) {
            if (only < 0) {
                QTest::addRow("seed %d", seed) << seed;
            }
        }
        if (only >= 0) {
            QTest::addRow("seed %d", only) << only;
        }
    }

    void showsAndStoresWhatItShould()
    {
        QFETCH(int, seed);
        const int stepCount = FromEnvironment("RANDOM_WALK_STEPS", StepCount / WalkCount);
        Walk walk{quint32(seed)};
        for (int step = 1; step <= stepCount; ++step) {
            const QString differences = walk.Step();
            if (!differences.isEmpty()) {
                QFAIL(qPrintable(
                    QStringLiteral("RANDOM_WALK_SEED=%1 RANDOM_WALK_STEPS=%2\n%3\n    %4")
                        .arg(seed)
                        .arg(step)
                        .arg(differences, walk.History().join("\n    "))));
            }
        }
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_RandomWalk)

#include "tst_RandomWalk.moc"
