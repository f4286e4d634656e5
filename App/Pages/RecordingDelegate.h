// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace Zentor::Desktop {

/// Draws a row of RecordingsModel: the picture, and beside it title, details and outcome.
class RecordingDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit RecordingDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace Zentor::Desktop
