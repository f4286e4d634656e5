#pragma once

#include <QScrollArea>

class QLabel;

namespace Zentor::Desktop {

/// One page of settings: a title, a line that says what the page is for, and the settings.
///
/// Where the window is too small for the page, the page scrolls: also to what receives the focus
/// other than by mouse.
class Page : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of \a settings. \a id names the page in the stored settings.
    Page(const QString& id, QWidget* settings, QWidget* parent);

    /// The id given to the constructor.
    QString Id() const { return m_id; }

    /// Puts \a settings in the place of those before, which are deleted. Takes ownership.
    void ReplaceSettings(QWidget* settings);

    /// Sets the title and the line below it.
    void SetTexts(const QString& title, const QString& description);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QString m_id;
    QWidget* m_settings = nullptr;
    QWidget* m_head = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_description = nullptr;
};

/// A new label that shows its text literally, wrapped where it does not fit; \a parent owns it.
QLabel* CreateLabel(const QString& objectName, QWidget* parent);

} // namespace Zentor::Desktop
