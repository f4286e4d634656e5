// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>
#include <QIcon>
#include <QString>

namespace Zentor::Desktop {

/// A page of settings, as the window knows it: by id, title and icon.
///
/// A page retranslates itself; the window asks for title and description anew when the language
/// changes.
class Page : public QFrame {
    Q_OBJECT

public:
    /// Names the page in the stored settings, in links to it, and its icon.
    QString Id() const { return m_id; }

    /// The icon in the colours of the theme in use.
    QIcon Icon() const;

    /// What the page is called, in the language in use.
    virtual QString Title() const = 0;

    /// What the page is for, in a sentence.
    virtual QString Description() const = 0;

    /// Sets the height in pixels that the page can take without being scrolled.
    virtual void SetRoom(int /*height*/) { }

    /// Stores what has been entered and is stored only later otherwise.
    virtual void Apply() { }

    /// Whether there is input that is lost when the page is hidden.
    virtual bool HasUnfinishedInput() const { return false; }

    /// Asks the user what becomes of unfinished input. Returns whether none is left. The page may
    /// be destroyed meanwhile; the answer is false then.
    virtual bool FinishInput() { return true; }

    /// Why nothing can be recorded with what stands on the page, in a sentence; empty when it can.
    virtual QString Problem() const { return {}; }

    /// Gives the focus to the control that unfinished input or the problem is in.
    virtual void FocusInput() { }

Q_SIGNALS:
    /// Something has been done that is hard to see; \a text says what.
    void Announced(const QString& text);
    /// \a part of the page has something to show that has just been asked for.
    void RevealRequested(QWidget* part);

protected:
    Page(const QString& id, QWidget* parent);

private:
    QString m_id;
};

} // namespace Zentor::Desktop
