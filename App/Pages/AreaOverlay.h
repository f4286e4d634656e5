// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>

namespace Zentor::Desktop {

class AreaPicker;

/// What an AreaPicker shows on one screen: the screen as it is, veiled but for the area, and the
/// figures of the area beside it.
class AreaOverlay final : public QWidget {
    Q_OBJECT
    /// Of the frame around the area. Set by the style sheet.
    Q_PROPERTY(QColor frameColor MEMBER m_frameColor)
    /// Of the letters of figures and help, and of the ground that they stand on.
    Q_PROPERTY(QColor textColor MEMBER m_textColor)
    Q_PROPERTY(QColor groundColor MEMBER m_groundColor)

public:
    /// \a picker outlives the overlay.
    AreaOverlay(AreaPicker& picker, QScreen& screen);

    /// Shows the area that the picker has now.
    void ShowArea();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    /// Of the area, in the coordinates of the overlay.
    QRect AreaHere() const;
    /// Where the mouse is, in pixels of the screens.
    QPoint PixelUnder(const QMouseEvent& event) const;
    QString Figures() const;
    void PaintText(QPainter& painter, const QString& text, QRect place) const;
    void PaintFigures(QPainter& painter) const;
    void PaintHelp(QPainter& painter) const;

    AreaPicker& m_picker;
    QScreen& m_screen;
    const QPixmap m_picture;
    QColor m_frameColor;
    QColor m_textColor;
    QColor m_groundColor;
};

} // namespace Zentor::Desktop
