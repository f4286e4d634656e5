// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "RecordingDelegate.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

#include "RecordingsModel.h"
#include "Theme.h"

namespace Zentor::Desktop {
namespace {

constexpr int Padding = 8;
constexpr int Gap = 12;
constexpr int Lines = 3;
constexpr qreal Radius = 4;

/// Of most screens.
constexpr int PictureWidth = 16;
constexpr int PictureHeight = 9;

struct Colors {
    QColor ground;
    QColor danger;
};

/// Of the theme in use. Made once for each, as it is asked for with each row.
const Colors& ColorsNow()
{
    static const auto colorsOf = [](Theme theme) {
        const ColorTable table = ColorsOf(theme);
        return Colors{QColor(table.value(QStringLiteral("surfacePressed"))),
                      QColor(table.value(QStringLiteral("danger")))};
    };
    static const Colors light = colorsOf(Theme::Light);
    static const Colors dark = colorsOf(Theme::Dark);
    return ThemeOf(QApplication::palette()) == Theme::Dark ? dark : light;
}

int LineHeight(const QStyleOptionViewItem& option)
{
    return option.fontMetrics.height() + 2;
}

void DrawPicture(QPainter& painter, const QRect& place, const QImage& picture)
{
    QPainterPath frame;
    frame.addRoundedRect(place, Radius, Radius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillPath(frame, ColorsNow().ground);
    if (picture.isNull()) {
        const int size = place.height() / 3;
        QRect icon(0, 0, size, size);
        icon.moveCenter(place.center());
        ThemedIcon(QStringLiteral("recordings")).paint(&painter, icon);
        return;
    }
    QRect fitting(QPoint(), picture.size().scaled(place.size(), Qt::KeepAspectRatio));
    fitting.moveCenter(place.center());
    painter.setClipPath(frame);
    painter.drawImage(fitting, picture);
    painter.setClipping(false);
}

void DrawLine(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place,
              const QString& text)
{
    const QString shown =
        painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width(), Qt::TextSingleLine);
    const auto alignment =
        QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawText(place, static_cast<int>(alignment) | Qt::TextSingleLine, shown);
}

void DrawTexts(QPainter& painter, const QStyleOptionViewItem& option, QRect place,
               const QModelIndex& index)
{
    const auto text = [&](int role) { return index.data(role).toString(); };
    place.setHeight(place.height() / Lines);
    QFont bold = option.font;
    bold.setWeight(QFont::DemiBold);
    painter.setFont(bold);
    painter.setPen(option.palette.color(QPalette::Text));
    DrawLine(painter, option, place, text(Qt::DisplayRole));
    painter.setFont(option.font);
    painter.setPen(option.palette.color(QPalette::PlaceholderText));
    DrawLine(painter, option, place.translated(0, place.height()),
             text(RecordingsModel::DetailsRole));
    painter.setPen(index.data(RecordingsModel::IsProblemRole).toBool()
                       ? ColorsNow().danger
                       : option.palette.color(QPalette::PlaceholderText));
    DrawLine(painter, option, place.translated(0, 2 * place.height()),
             text(RecordingsModel::OutcomeRole));
}

} // namespace

RecordingDelegate::RecordingDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

void RecordingDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QWidget* view = row.widget;
    const QStyle* style = view != nullptr ? view->style() : QApplication::style();
    // Ground and focus frame as in the style sheet.
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, view);
    const auto mirrored = [&](const QRect& place) {
        return QStyle::visualRect(row.direction, row.rect, place);
    };
    const QRect inside = row.rect.adjusted(Padding, Padding, -Padding, -Padding);
    QRect picture = inside;
    picture.setWidth(inside.height() * PictureWidth / PictureHeight);
    QRect texts = inside;
    texts.setLeft(picture.right() + 1 + Gap);
    painter->save();
    DrawPicture(*painter, mirrored(picture),
                index.data(RecordingsModel::PictureRole).value<QImage>());
    DrawTexts(*painter, row, mirrored(texts), index);
    painter->restore();
}

QSize RecordingDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& /*index*/) const
{
    const int height = Lines * LineHeight(option) + 2 * Padding;
    return {height * PictureWidth / PictureHeight, height};
}

} // namespace Zentor::Desktop
