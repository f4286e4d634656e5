// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "NoticeBar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "Controls.h"

namespace Zentor::Desktop {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent)
    , m_text(CreateLabel(QStringLiteral("noticeLabel"), this))
    , m_closeButton(CreateButton(QStringLiteral("noticeCloseButton"), this))
{
    setObjectName(QStringLiteral("noticeBar"));
    // So that the name of a file in it can be copied.
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_closeButton, 0, Qt::AlignTop);
    connect(m_closeButton, &QPushButton::clicked, this, &NoticeBar::CloseRequested);
    Retranslate();
    hide();
}

void NoticeBar::SetText(const QString& text)
{
    if (text == m_text->text()) {
        return;
    }
    m_text->setText(text);
    setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        AlertScreenReaders(m_text);
    }
}

void NoticeBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
    QFrame::changeEvent(event);
}

void NoticeBar::Retranslate()
{
    m_closeButton->setText(tr("Close"));
    m_closeButton->setAccessibleName(tr("Close notice"));
}

} // namespace Zentor::Desktop
