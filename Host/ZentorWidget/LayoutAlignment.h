#pragma once

#include <QObject>

class QLabel;

namespace Zentor {

/// Aligns the text of a label with the window and not with its own script, so that the texts of a
/// column stand below each other whatever they are written in.
///
/// Qt puts a right-to-left text at the right edge of its label in every window, and digits at the
/// left edge. An alignment that was set by others is left alone.
class LayoutAlignment final : public QObject {
    Q_OBJECT

public:
    /// Starts watching \a label, which becomes the owner.
    explicit LayoutAlignment(QLabel* label);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Align();

    QLabel* m_label;
    Qt::Alignment m_ownAlignment;
};

} // namespace Zentor
