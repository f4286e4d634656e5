#pragma once

#include <QObject>
#include <QString>

class QLabel;

namespace Zentor {

/// Paints the plain text of a label shortened where it does not fit, and shows the whole of it in
/// the label's tool tip meanwhile. A tip that was set by others is left alone.
class ElidedText final : public QObject {
    Q_OBJECT

public:
    /// Starts watching \a label, which becomes the owner.
    explicit ElidedText(QLabel* label);

    /// Sets or clears the tool tip as the room for the text requires. Also happens by itself when
    /// the label is resized or painted.
    void UpdateToolTip();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HasMnemonic() const;
    bool IsTextTooWide() const;
    QRect TextRect() const;
    QString ShortenedText() const;
    void Paint() const;

    QLabel* m_label;
    QString m_ownToolTip;
};

} // namespace Zentor
