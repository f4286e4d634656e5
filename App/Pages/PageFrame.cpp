// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PageFrame.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include "Controls.h"
#include "HostInterfaces.h"
#include "Page.h"

namespace Zentor::Desktop {
namespace {

constexpr int WideMargin = 24;
constexpr int CompactMargin = 12;
/// Between the description and the page.
constexpr int Gap = 18;

/// A row in which \a widget grows up to its maximum width, at the leading edge.
QLayout* CreateRow(QWidget* widget)
{
    auto* row = new QHBoxLayout;
    row->addWidget(widget, 1);
    row->addStretch(0);
    return row;
}

/// Scrolls by \a bar until \a start to \a end, counted from where the view starts, is in it, with
/// something of what is around it where there is room. What is longer than the view fills half of
/// it at least: before its start there may be its caption.
void Scroll(QScrollBar& bar, int start, int end)
{
    constexpr int wanted = 8;
    const int length = bar.pageStep();
    const int last = end - start > length ? start + length / 2 : end;
    const int around = qBound(0, (length - (last - start)) / 2, wanted);
    if (start < around) {
        bar.setValue(bar.value() + start - around);
    } else if (last > length - around) {
        bar.setValue(bar.value() + last - length + around);
    }
}

/// Not by means of the area: it shows no more of a field than its cursor, and takes left for right
/// in RTL layouts. Leaves what is in view where it is.
void ScrollTo(const QScrollArea& area, const QWidget& control)
{
    const QRect place(control.mapTo(area.viewport(), QPoint(0, 0)), control.size());
    const QRect fromStart =
        QStyle::visualRect(area.layoutDirection(), area.viewport()->rect(), place);
    Scroll(*area.horizontalScrollBar(), fromStart.left(), fromStart.right() + 1);
    Scroll(*area.verticalScrollBar(), fromStart.top(), fromStart.bottom() + 1);
}

void ScrollToFocused(const QWidget& focused)
{
    for (const QWidget* parent = focused.parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        const auto* area = qobject_cast<const QScrollArea*>(parent);
        if (area != nullptr && area->widget() != nullptr
            && area->widget()->isAncestorOf(&focused)) {
            ScrollTo(*area, focused);
        }
    }
}

/// Has the style sheet look again at what depends on a property of \a root.
void RestyleDescendants(const QWidget& root)
{
    const auto widgets = root.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        widget->style()->unpolish(widget);
        widget->style()->polish(widget);
        QEvent event(QEvent::StyleChange);
        QCoreApplication::sendEvent(widget, &event);
    }
}

void WatchFocus(const QWidget* contents)
{
    QObject::connect(qApp, &QApplication::focusChanged, contents, [contents](auto*, auto* now) {
        // What is pressed with the mouse must not move away from under it.
        if (now != nullptr && contents->isAncestorOf(now)
            && QGuiApplication::mouseButtons() == Qt::NoButton) {
            ScrollToFocused(*now);
        }
    });
}

} // namespace

PageFrame::PageFrame(Page* page, QWidget* parent)
    : QScrollArea(parent)
    , m_page(page)
{
    setObjectName(QStringLiteral("pageScrollArea"));
    setWidgetResizable(true);
    // The arrow keys and the wheel scroll; a focus of its own would be one more stop for Tab.
    setFocusPolicy(Qt::NoFocus);

    auto* contents = new QWidget(this);
    contents->setObjectName(QStringLiteral("pageContents"));
    m_head = new QWidget(contents);
    m_title = CreateLabel(QStringLiteral("pageTitle"), m_head);
    m_description = CreateLabel(QStringLiteral("pageDescription"), m_head);
    auto* headColumn = new QVBoxLayout(m_head);
    headColumn->setContentsMargins(0, 0, 0, 0);
    headColumn->setSpacing(0);
    headColumn->addWidget(m_title);
    headColumn->addWidget(m_description);

    auto* column = new QVBoxLayout(contents);
    column->setContentsMargins(WideMargin, WideMargin, WideMargin, WideMargin);
    column->setSpacing(0);
    column->addLayout(CreateRow(m_head));
    column->addSpacing(Gap);
    // The page grows up to the width that the style sheet allows.
    column->addLayout(CreateRow(page));
    column->addStretch(1);
    setWidget(contents);
    WatchFocus(contents);
    connect(page, &Page::RevealRequested, this, [this](QWidget* part) {
        // Later: the part may have grown, and has its new size only then.
        QTimer::singleShot(0, part, [this, part] { ScrollTo(*this, *part); });
    });
}

void PageFrame::Retranslate()
{
    m_title->setText(m_page->Title());
    m_description->setText(m_page->Description());
    setAccessibleName(m_page->Title());
    setAccessibleDescription(m_page->Description());
    FitPage();
}

void PageFrame::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    // The head is wrapped for the view, whether scroll bars are shown or not: a page that becomes
    // wider or longer than the view does not move what is above it.
    const int barWidth = verticalScrollBar()->sizeHint().width();
    m_head->setMaximumWidth(qMax(0, maximumViewportSize().width() - barWidth - 2 * Margin()));
    FitPage();
}

int PageFrame::Margin() const
{
    return m_isCompact ? CompactMargin : WideMargin;
}

void PageFrame::SetCompact(bool isCompact)
{
    if (isCompact == m_isCompact) {
        return;
    }
    m_isCompact = isCompact;
    widget()->layout()->setContentsMargins(Margin(), Margin(), Margin(), Margin());
    Util::ApplyWidgetStyle(
        widget(), isCompact ? QStringLiteral("Compact") : QStringLiteral("Normal"), "SubStyle");
    RestyleDescendants(*widget());
}

void PageFrame::FitPage()
{
    const int headHeight = m_head->heightForWidth(m_head->maximumWidth());
    m_page->SetRoom(maximumViewportSize().height() - headHeight - Gap - 2 * Margin());
}

} // namespace Zentor::Desktop
