// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "FigureRow.h"

#include <algorithm>

#include <QEvent>
#include <QStyle>

#include "FigureLabel.h"

namespace Zentor::Desktop {
namespace {

constexpr int Spacing = 16;
/// In line with the messages of the status line.
constexpr int Indent = 4;

} // namespace

FigureRow::FigureRow(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

FigureLabel* FigureRow::Add(const QString& objectName, int rank)
{
    auto* label = new FigureLabel(objectName, this);
    label->hide();
    m_figures.push_back({label, rank});
    return label;
}

QSize FigureRow::sizeHint() const
{
    QSize size(Indent, 0);
    for (const Figure& figure : m_figures) {
        const QSize hint = figure.label->sizeHint();
        size = {size.width() + hint.width() + Spacing, std::max(size.height(), hint.height())};
    }
    return size;
}

void FigureRow::Choose()
{
    std::vector<Figure> byRank = m_figures;
    std::stable_sort(byRank.begin(), byRank.end(),
                     [](const Figure& one, const Figure& other) { return one.rank > other.rank; });
    int room = width() - Indent;
    for (const Figure& figure : byRank) {
        const bool isThere = !figure.label->text().isEmpty();
        const int needed = figure.label->sizeHint().width();
        figure.label->setVisible(isThere && needed <= room);
        // A figure that does not fit leaves no room to those of a lower rank, which would come and
        // go with it.
        room = isThere && needed > room ? 0 : room - (isThere ? needed + Spacing : 0);
    }
}

void FigureRow::Arrange()
{
    Choose();
    QStringList all;
    int x = Indent;
    for (const Figure& figure : m_figures) {
        if (!figure.label->text().isEmpty()) {
            all << figure.label->SpokenText();
        }
        if (figure.label->isVisibleTo(this)) {
            const QRect place(x, 0, figure.label->sizeHint().width(), height());
            figure.label->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
            x += place.width() + Spacing;
        }
    }
    setToolTip(all.join(QLatin1Char('\n')));
}

void FigureRow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange
        || event->type() == QEvent::LayoutDirectionChange) {
        Arrange();
    }
}

void FigureRow::resizeEvent(QResizeEvent* event)
{
    Arrange();
    QWidget::resizeEvent(event);
}

} // namespace Zentor::Desktop
