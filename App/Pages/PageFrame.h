// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QScrollArea>

class QLabel;

namespace Zentor::Desktop {

class Page;

/// What the window shows of a page: its title, its description and the page itself.
///
/// Where the window is too small for the page, the frame scrolls: also to what receives the focus
/// other than by mouse.
class PageFrame : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of \a page.
    PageFrame(Page* page, QWidget* parent);

    Page* Content() const { return m_page; }

    /// Shows title and description in the language in use.
    void Retranslate();

    /// Makes everything on the page smaller, for a small window, or as large as it should be.
    void SetCompact(bool isCompact);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void FitPage();
    int Margin() const;

    Page* m_page;
    QWidget* m_head = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_description = nullptr;
    bool m_isCompact = false;
};

} // namespace Zentor::Desktop
