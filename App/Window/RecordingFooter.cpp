// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingFooter.h"

#include <algorithm>
#include <utility>

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyleHints>

#include "Controls.h"
#include "DurationText.h"
#include "FigureLabel.h"
#include "FigureRow.h"
#include "HostInterfaces.h"
#include "RecordingTexts.h"
#include "SentenceLabel.h"
#include "SizeText.h"
#include "StatusLine.h"

namespace Zentor::Desktop {
namespace {

/// Which figures are shown where there is not room for all.
namespace Rank {
constexpr int FreeSpace = 0;
constexpr int Size = 1;
constexpr int End = 2;
constexpr int Dropped = 3;
} // namespace Rank

/// Has screen readers say what has come up in \a label.
void Tell(SentenceLabel& label)
{
    if (!label.SpokenText().isEmpty()) {
        AlertScreenReaders(&label);
    }
}

bool IsEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

RecordingFooter::RecordingFooter(QWidget* parent)
    : QFrame(parent)
    , m_timer(this)
{
    setObjectName(QStringLiteral("footer"));
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    BuildWidgets();
    Connect();
    Retranslate();
}

RecordingFooter::~RecordingFooter() = default;

void RecordingFooter::BuildWidgets()
{
    m_headline = CreateHeadline();
    m_statusBar = new StatusLine(this);
    m_statusBar->setSizeGripEnabled(false);
    m_noteLabel = new SentenceLabel(QStringLiteral("recordingNoteLabel"), m_statusBar);
    m_noteLabel->setIndent(0);
    m_figures = new FigureRow(m_statusBar);
    m_endLabel = m_figures->Add(QStringLiteral("recordingEndLabel"), Rank::End);
    m_sizeLabel = m_figures->Add(QStringLiteral("recordingSizeLabel"), Rank::Size);
    m_freeLabel = m_figures->Add(QStringLiteral("recordingFreeSpaceLabel"), Rank::FreeSpace);
    m_droppedLabel = m_figures->Add(QStringLiteral("droppedFramesLabel"), Rank::Dropped);
    m_saveProblemLabel = new ZLabel(m_statusBar);
    m_saveProblemLabel->setObjectName(QStringLiteral("saveProblemLabel"));
    for (QWidget* part : {static_cast<QWidget*>(m_noteLabel), static_cast<QWidget*>(m_figures),
                          static_cast<QWidget*>(m_saveProblemLabel)}) {
        // A long text is shortened; it takes no room from the buttons.
        part->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        m_statusBar->addWidget(part, 1);
        part->hide();
    }

    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(m_headline);
    texts->addWidget(m_statusBar);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(ControlSpacing);
    layout->addLayout(texts, 1);
    CreateButtons();
}

QWidget* RecordingFooter::CreateHeadline()
{
    auto* headline = new QWidget(this);
    m_dot = new QFrame(headline);
    m_dot->setObjectName(QStringLiteral("recordingDot"));
    m_headlineLabel = new SentenceLabel(QStringLiteral("recordingHeadlineLabel"), headline);
    m_headlineLabel->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_lengthLabel = new FigureLabel(QStringLiteral("recordingLengthLabel"), headline);
    auto* layout = new QHBoxLayout(headline);
    // In line with what the status line shows.
    constexpr int statusLineMargin = 6;
    layout->setContentsMargins(statusLineMargin, 0, statusLineMargin, 0);
    layout->setSpacing(ControlSpacing);
    layout->addWidget(m_dot);
    layout->addWidget(m_headlineLabel);
    layout->addWidget(m_lengthLabel);
    layout->addStretch(1);
    headline->hide();
    return headline;
}

void RecordingFooter::CreateButtons()
{
    m_skipButton = AddButton(QStringLiteral("skipTaskButton"));
    m_nowButton = AddButton(QStringLiteral("finishNowButton"));
    m_keepButton = AddButton(QStringLiteral("keepRecordingButton"));
    m_pauseButton = AddButton(QStringLiteral("pauseRecordingButton"));
    m_startButton = AddButton(QStringLiteral("startRecordingButton"));
    m_stopButton = AddButton(QStringLiteral("stopRecordingButton"));
    m_cancelButton = AddButton(QStringLiteral("cancelFinishButton"));
    m_state.buttons = {Button::Start};
    m_startButton->show();
}

QPushButton* RecordingFooter::AddButton(const QString& objectName)
{
    QPushButton* button = CreateButton(objectName, this);
    button->hide();
    button->installEventFilter(this);
    layout()->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this] {
        m_buttonsAtClick = m_state.buttons;
        m_sinceClick.start();
    });
    return button;
}

void RecordingFooter::Connect()
{
    connect(m_startButton, &QPushButton::clicked, this, &RecordingFooter::StartRequested);
    connect(m_stopButton, &QPushButton::clicked, this, &RecordingFooter::StopRequested);
    connect(m_pauseButton, &QPushButton::clicked, this, &RecordingFooter::PauseRequested);
    connect(m_skipButton, &QPushButton::clicked, this,
            [this] { Q_EMIT SkipRequested(m_status.title); });
    connect(m_keepButton, &QPushButton::clicked, this, &RecordingFooter::KeepRequested);
    connect(m_cancelButton, &QPushButton::clicked, this, &RecordingFooter::CancelRequested);
    connect(m_nowButton, &QPushButton::clicked, this, &RecordingFooter::NowRequested);
    connect(&m_timer, &QTimer::timeout, this, [this] { Refresh(Time::SystemClock().Now()); });
    connect(m_statusBar, &QStatusBar::messageChanged, this, &RecordingFooter::ShowNote);
}

void RecordingFooter::Retranslate()
{
    m_dot->setAccessibleName(tr("Recording"));
    m_lengthLabel->SetSubject(tr("Recorded"));
    m_endLabel->SetSubject(tr("End"));
    m_sizeLabel->SetSubject(tr("Size of the file"));
    m_freeLabel->SetSubject(tr("Free space"));
    m_droppedLabel->SetSubject(tr("Dropped frames"));
    m_startButton->setText(tr("&Start recording"));
    m_stopButton->setText(tr("&Stop"));
    m_skipButton->setText(tr("S&kip"));
    m_skipButton->setAccessibleName(tr("Skip this task"));
    m_keepButton->setText(tr("&Keep recording"));
    m_cancelButton->setText(tr("&Cancel"));
    m_nowButton->setText(tr("&Now"));
    const Schedule::Moment now = Time::SystemClock().Now();
    m_state = FooterStateOf(m_status, now);
    Show(now);
}

QPushButton* RecordingFooter::WidgetOf(Button button) const
{
    switch (button) {
    case Button::Start:
        return m_startButton;
    case Button::Stop:
        return m_stopButton;
    case Button::Pause:
    case Button::Resume:
        return m_pauseButton;
    case Button::Skip:
        return m_skipButton;
    case Button::Keep:
        return m_keepButton;
    case Button::Cancel:
        return m_cancelButton;
    case Button::Now:
        return m_nowButton;
    }
    return nullptr;
}

void RecordingFooter::SetStatus(const Schedule::RunnerStatus& status, Schedule::Moment now)
{
    m_status = status;
    Refresh(now);
}

void RecordingFooter::Refresh(Schedule::Moment now)
{
    const FooterState before = std::exchange(m_state, FooterStateOf(m_status, now));
    Show(now);
    if (m_state.event != before.event || m_state.title != before.title) {
        Tell(*m_headlineLabel);
    }
    if (m_state.noteEvent != before.noteEvent || m_state.noteTitle != before.noteTitle) {
        Tell(*m_noteLabel);
    }
}

void RecordingFooter::Show(Schedule::Moment now)
{
    ShowHeadline();
    ShowFigures(now);
    ShowNote();
    ShowButtons();
    // Only now, as it may have had the focus.
    m_headline->setVisible(!m_state.headline.isEmpty());
    if (m_isOnScreen && m_state.untilChange) {
        m_timer.start(*m_state.untilChange);
    } else {
        m_timer.stop();
    }
}

void RecordingFooter::ShowHeadline()
{
    m_headlineLabel->SetSubject(m_state.event);
    m_headlineLabel->SetSentence(m_state.headline, m_state.title);
    m_dot->setVisible(m_state.isRecording);
    m_lengthLabel->setVisible(m_state.isRecording);
    const QString look = m_state.isPaused ? QStringLiteral("Paused") : QStringLiteral("Recording");
    if (m_dot->property("SubStyle") != look) {
        Util::ApplyWidgetStyle(m_dot, look, "SubStyle");
    }
    if (!m_state.headline.isEmpty()) {
        m_headline->show();
    }
}

void RecordingFooter::ShowFigures(Schedule::Moment now)
{
    const bool isShown = m_state.isRecording;
    const Schedule::RecordingProgress progress =
        isShown ? m_status.progress : Schedule::RecordingProgress();
    const auto dropped = static_cast<int>(progress.droppedFrames);
    m_lengthLabel->SetFigure(isShown ? LengthText(progress.length) : QString());
    m_endLabel->SetFigure(isShown && m_status.end ? tr("until %1").arg(TimeText(*m_status.end, now))
                                                  : QString());
    m_sizeLabel->SetFigure(progress.bytes < 0 ? QString() : SizeText(progress.bytes));
    m_freeLabel->SetFigure(
        progress.freeBytes < 0 ? QString() : tr("%1 free").arg(SizeText(progress.freeBytes)));
    m_droppedLabel->SetFigure(dropped == 0 ? QString()
                                           : tr("%n frame(s) dropped", nullptr, dropped));
    m_figures->Arrange();
}

void RecordingFooter::ShowNote()
{
    m_noteLabel->SetSubject(m_state.noteEvent);
    m_noteLabel->SetSentence(m_state.note, m_state.noteTitle);
    // While a message is shown, the status bar hides what is in it.
    if (m_statusBar->currentMessage().isEmpty()) {
        m_noteLabel->setVisible(!m_state.note.isEmpty());
        m_figures->setVisible(m_state.isRecording && m_state.note.isEmpty());
    }
}

void RecordingFooter::ShowButtons()
{
    m_pauseButton->setText(m_state.isPaused ? tr("&Resume") : tr("&Pause"));
    QList<QPushButton*> shown;
    for (const Button button : m_state.buttons) {
        shown << WidgetOf(button);
    }
    QWidget* const heir = HeirOfFocus(shown);
    if (heir != nullptr) {
        // Else the focus would go to the next control of the window in the meantime. Old and new
        // buttons together may be wider than the window.
        setFocus(Qt::OtherFocusReason);
    }
    const auto all = findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QPushButton* button : all) {
        button->setEnabled(!m_state.isBusy);
        if (!shown.contains(button)) {
            button->hide();
        }
    }
    for (QPushButton* button : qAsConst(shown)) {
        button->show();
    }
    if (heir != nullptr) {
        heir->setFocus(Qt::OtherFocusReason);
    }
}

QWidget* RecordingFooter::HeirOfFocus(const QList<QPushButton*>& shown) const
{
    QWidget* focused = window()->focusWidget();
    auto* button = qobject_cast<QPushButton*>(focused);
    const bool isOurs =
        focused != nullptr && (focused == m_headlineLabel || focused->parentWidget() == this);
    if (!isOurs || (!m_state.isBusy && button != nullptr && shown.contains(button))) {
        return nullptr;
    }
    if (m_state.isBusy) {
        // Keeps it until there is a button again.
        return m_headlineLabel;
    }
    // Nobody who meant one of the lesser buttons is to stop a recording.
    const bool wasLesser = button != nullptr && button != m_startButton && button != m_stopButton
        && button != m_cancelButton;
    return wasLesser && m_state.isRecording ? shown.constFirst() : shown.constLast();
}

bool RecordingFooter::IsAccidental(const QObject* button, const QEvent& event) const
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        // The second half of a double click on what was there before.
        const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
        return m_sinceClick.isValid() && m_sinceClick.elapsed() < interval
            && std::none_of(m_buttonsAtClick.begin(), m_buttonsAtClick.end(),
                            [&](Button before) { return WidgetOf(before) == button; });
    }
    case QEvent::KeyPress:
        // Start and Stop would take turns as long as the key is held.
        return static_cast<const QKeyEvent&>(event).isAutoRepeat()
            && IsEnter(static_cast<const QKeyEvent&>(event));
    default:
        return false;
    }
}

QWidget* RecordingFooter::NowButton() const
{
    return m_nowButton;
}

void RecordingFooter::SetSaveProblem(const QString& problem)
{
    m_saveProblemLabel->setOriginalText(problem);
    if (problem.isEmpty()) {
        m_saveProblemLabel->hide();
        return;
    }
    // Not while a message is shown, which would stand in the same place. After the next message,
    // the status bar shows the problem again.
    m_statusBar->clearMessage();
    m_saveProblemLabel->show();
    AlertScreenReaders(m_saveProblemLabel);
}

QString RecordingFooter::SaveProblem() const
{
    return m_saveProblemLabel->originalText();
}

void RecordingFooter::changeEvent(QEvent* event)
{
    // It arrives for the first time while the footer is still being built.
    if (m_cancelButton != nullptr && event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
    QFrame::changeEvent(event);
}

void RecordingFooter::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    m_isOnScreen = true;
    Refresh(Time::SystemClock().Now());
}

void RecordingFooter::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    m_isOnScreen = false;
    m_timer.stop();
}

bool RecordingFooter::eventFilter(QObject* watched, QEvent* event)
{
    return IsAccidental(watched, *event) || QFrame::eventFilter(watched, event);
}

} // namespace Zentor::Desktop
