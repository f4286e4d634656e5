// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LeftToRightEditor.h"

#include <QDateTimeEdit>
#include <QEvent>
#include <QLayout>

namespace Zentor::PX::Scheduler::UI {
namespace {

/// Event filter that mirrors the alignment of an editor in its layout together with the parent.
///
/// A layout aligns a widget by the widget's own direction: in RTL layouts a left-to-right editor
/// would stand at the far edge of its cell.
class AlignmentMirror final : public QObject {
public:
    /// Filters the events of the parent of \a editor; \a editor becomes the owner.
    explicit AlignmentMirror(QDateTimeEdit* editor);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FollowParent();

    QDateTimeEdit* m_editor;
    bool m_isMirrored = false;
};

AlignmentMirror::AlignmentMirror(QDateTimeEdit* editor)
    : QObject(editor)
    , m_editor(editor)
{
    editor->parentWidget()->installEventFilter(this);
    FollowParent();
}

bool AlignmentMirror::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        FollowParent();
    }
    return QObject::eventFilter(watched, event);
}

void AlignmentMirror::FollowParent()
{
    const QWidget* parent = m_editor->parentWidget();
    QLayout* layout = parent->layout();
    if (layout == nullptr || parent->isRightToLeft() == m_isMirrored) {
        return;
    }
    m_isMirrored = !m_isMirrored;
    const QLayoutItem* item = layout->itemAt(layout->indexOf(m_editor));
    layout->setAlignment(m_editor, item->alignment() ^ (Qt::AlignLeft | Qt::AlignRight));
}

} // namespace

void KeepLeftToRight(QDateTimeEdit& editor)
{
    editor.setLayoutDirection(Qt::LeftToRight);
    new AlignmentMirror(&editor);
}

} // namespace Zentor::PX::Scheduler::UI
