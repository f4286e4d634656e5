#pragma once

#include <QObject>
#include <QPointer>

class QAbstractButton;
class QLabel;

namespace Zentor {

/// The name that the buddy of \a caption has in front of a screen reader: the caption's text
/// without the mark of its mnemonic.
QString AccessibleNameFrom(const QLabel& caption);

/// Clicks a button when its caption is clicked.
class CaptionClicks final : public QObject {
    Q_OBJECT

public:
    /// Starts watching \a caption, which becomes the owner.
    CaptionClicks(QWidget* caption, QAbstractButton* button);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ClickButton();

    QWidget* m_caption;
    QPointer<QAbstractButton> m_button;
    bool m_isPressed = false;
};

} // namespace Zentor
