#pragma once

#include <QObject>

class QLabel;

namespace Zentor {

/// Event filter that aligns the text of a label by the layout direction and not by the direction of
/// the text, so that the texts of a column line up in any script.
///
/// Qt puts an RTL text at the right edge of its label in LTR layouts too, and digits at the left
/// edge in RTL layouts. An alignment that was set by others is left alone.
class LayoutAlignment final : public QObject {
    Q_OBJECT

public:
    /// Filters the events of \a label, which becomes the owner.
    explicit LayoutAlignment(QLabel* label);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Align();

    QLabel* m_label;
    Qt::Alignment m_ownAlignment;
};

} // namespace Zentor
