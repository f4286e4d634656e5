// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <QTimer>

#include "FooterState.h"

class QPushButton;
class QStatusBar;

namespace Zentor {
class ZLabel;
}

namespace Zentor::Desktop {

class FigureLabel;
class FigureRow;
class SentenceLabel;

/// The foot of the window: what is recorded, what comes next, and the buttons that fit it. It has
/// the window's status line, too.
///
/// Times to wait are counted down while the footer is on screen. Screen readers are told when
/// something else begins, not of each second.
class RecordingFooter final : public QFrame {
    Q_OBJECT

public:
    explicit RecordingFooter(QWidget* parent = nullptr);
    ~RecordingFooter() override;

    /// Shows \a status, which is that of \a now. Nothing is recorded or scheduled before the first
    /// call. The focus goes from a button that disappears to the one in its place.
    void SetStatus(const Schedule::RunnerStatus& status, Schedule::Moment now);

    /// Where messages are shown for some time. They take the place of figures and notes, not of
    /// what is recorded.
    QStatusBar* StatusBar() const { return m_statusBar; }

    /// The button that sends NowRequested().
    QWidget* NowButton() const;

    /// Says why the user's changes could not be saved, until that is cleared by an empty text.
    void SetSaveProblem(const QString& problem);
    QString SaveProblem() const;

Q_SIGNALS:
    void StartRequested();
    void StopRequested();
    /// The recording is to be paused, or to go on if it is.
    void PauseRequested();
    /// The task called \a title is not to be recorded.
    void SkipRequested(const QString& title);
    /// The recording is to go on although a task is due.
    void KeepRequested();
    /// The finish action is not to be done.
    void CancelRequested();
    /// The finish action is to be done at once.
    void NowRequested();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Button = FooterState::Button;

    void BuildWidgets();
    QWidget* CreateHeadline();
    void CreateButtons();
    QPushButton* AddButton(const QString& objectName);
    void Connect();
    void Retranslate();
    QPushButton* WidgetOf(Button button) const;
    /// Brings everything up to date, and has screen readers say what has changed.
    void Refresh(Schedule::Moment now);
    void Show(Schedule::Moment now);
    void ShowHeadline();
    void ShowFigures(Schedule::Moment now);
    void ShowNote();
    void ShowButtons();
    /// What has to take over the focus when only the buttons \a shown are left; nothing when the
    /// focus can stay.
    QWidget* HeirOfFocus(const QList<QPushButton*>& shown) const;
    /// Whether \a event would press \a button although nobody meant that.
    bool IsAccidental(const QObject* button, const QEvent& event) const;

    Schedule::RunnerStatus m_status;
    FooterState m_state;
    QTimer m_timer;
    bool m_isOnScreen = false;
    QElapsedTimer m_sinceClick;
    /// Those that were there at the last click.
    std::vector<Button> m_buttonsAtClick;
    QStatusBar* m_statusBar = nullptr;
    QWidget* m_headline = nullptr;
    QFrame* m_dot = nullptr;
    SentenceLabel* m_headlineLabel = nullptr;
    FigureLabel* m_lengthLabel = nullptr;
    SentenceLabel* m_noteLabel = nullptr;
    FigureRow* m_figures = nullptr;
    FigureLabel* m_endLabel = nullptr;
    FigureLabel* m_sizeLabel = nullptr;
    FigureLabel* m_freeLabel = nullptr;
    FigureLabel* m_droppedLabel = nullptr;
    ZLabel* m_saveProblemLabel = nullptr;
    QPushButton* m_skipButton = nullptr;
    QPushButton* m_nowButton = nullptr;
    QPushButton* m_keepButton = nullptr;
    QPushButton* m_pauseButton = nullptr;
    QPushButton* m_startButton = nullptr;
    QPushButton* m_stopButton = nullptr;
    QPushButton* m_cancelButton = nullptr;
};

} // namespace Zentor::Desktop
