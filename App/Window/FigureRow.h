// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QWidget>

namespace Zentor::Desktop {

class FigureLabel;

/// Figures beside one another, as many as there is room for; the tool tip has all.
class FigureRow final : public QWidget {
    Q_OBJECT

public:
    explicit FigureRow(QWidget* parent = nullptr);

    /// Adds a figure at the end. Where there is not room for all, those of the highest \a rank are
    /// shown. The row owns it.
    FigureLabel* Add(const QString& objectName, int rank);

    /// To be called when figures have changed.
    void Arrange();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Figure {
        FigureLabel* label;
        int rank;
    };

    /// Shows the figures for which there is room, and hides the others.
    void Choose();

    std::vector<Figure> m_figures;
};

} // namespace Zentor::Desktop
