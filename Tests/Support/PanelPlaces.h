// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QStringList>

#include "PanelParts.h"

namespace Zentor::Tests {

inline QRect OnScreen(const QWidget& widget)
{
    return QRect(widget.mapToGlobal(QPoint()), widget.size());
}

inline bool IsInside(const QWidget& inner, const QWidget& outer)
{
    return OnScreen(outer).contains(OnScreen(inner));
}

/// Whether \a label shows all of its text.
inline bool HasRoom(const QLabel& label)
{
    const QSize text = label.fontMetrics().size(Qt::TextShowMnemonic, label.text());
    return text.width() <= label.contentsRect().width()
        && text.height() <= label.contentsRect().height();
}

/// The label above the \a column ("title", "date", …) of the list in \a panel.
inline QLabel* ColumnHeader(const QWidget& panel, const QString& column)
{
    const QString name = column.at(0).toUpper() + column.mid(1);
    return panel.findChild<QLabel*>(QStringLiteral("header%1Label").arg(name));
}

/// Which headers and cells of the list in \a panel do not show all of their text, and which cells
/// do not lie below their headers.
inline QStringList MisplacedCells(const QWidget& panel)
{
    QStringList misplaced;
    const auto rows = panel.findChildren<QWidget*>(Desktop::PanelPart::Row);
    for (const char* column : {"title", "date", "time", "duration"}) {
        const QLabel* header = ColumnHeader(panel, QLatin1String(column));
        if (!HasRoom(*header)) {
            misplaced << header->objectName();
        }
        for (const QWidget* row : rows) {
            const auto* cell =
                row->findChild<QLabel*>(QLatin1String(column) + QStringLiteral("Label"));
            const QRect place = OnScreen(*cell);
            if (place.left() != OnScreen(*header).left()
                || place.right() != OnScreen(*header).right() || !HasRoom(*cell)) {
                misplaced << cell->objectName() + QLatin1Char(' ') + cell->text();
            }
        }
    }
    return misplaced;
}

} // namespace Zentor::Tests
