/// \file
/// What it takes to type comfortably in a date or time editor that is also changed by program.
#pragma once

#include <QObject>
#include <QString>

class QDateTimeEdit;
class QLineEdit;

namespace Zentor::PX::Scheduler::UI {

/// Keeps what a user is typing in an editor while its value is set by program.
///
/// From construction to destruction: cursor and selection are put back, which a new value sends to
/// the start of the section, and so are digits of a section that is not complete yet. The value
/// that was set stays until the user goes on typing or leaves the section.
class TypingKeeper {
public:
    explicit TypingKeeper(QDateTimeEdit& editor);
    ~TypingKeeper();
    TypingKeeper(const TypingKeeper&) = delete;
    TypingKeeper& operator=(const TypingKeeper&) = delete;

private:
    QLineEdit* m_lineEdit;
    QString m_incompleteText;
    int m_cursor;
    int m_selectionStart;
    int m_selectionLength;
};

/// Makes \a editor comfortable to type in: the separators may be typed too, and the reading is
/// written from left to right in every language. Takes effect with the next display format. The
/// editor has its place in the layout of its parent already.
///
/// Where people write from right to left, Qt turns the sections round: the seconds would come first
/// in a clock reading, and typing would go from the hours to the end of the field.
void PrepareForTyping(QDateTimeEdit& editor);

/// Mirrors the place of an editor that is itself written from left to right in every language.
///
/// A layout aligns a widget by the widget's own direction, so where people write from right to left
/// such an editor would stand at the far edge of its cell.
class PlaceMirror final : public QObject {
public:
    /// Starts watching the parent of \a editor, which becomes the owner.
    explicit PlaceMirror(QDateTimeEdit* editor);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FollowParent();

    QDateTimeEdit* m_editor;
    bool m_isMirrored = false;
};

/// Lets the user type the separators too: 00:01:30 as well as 000130.
///
/// The digit that fills a section makes the editor move on to the next one. A separator typed then
/// would skip that section, so the filter drops it. In any other place a separator moves on.
class SeparatorKeyFilter final : public QObject {
public:
    /// Starts watching \a editor, which becomes the owner.
    explicit SeparatorKeyFilter(QDateTimeEdit* editor);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsSeparatorBeforeSection(const QString& key) const;

    QDateTimeEdit* m_editor;
    /// The section that the last key was a digit of; -1 when it was another key.
    int m_sectionOfDigit = -1;
};

} // namespace Zentor::PX::Scheduler::UI
