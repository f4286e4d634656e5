// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelNameGuard.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QTimer>
#include <QToolTip>
#include <QValidator>

namespace Zentor::Desktop {
namespace {

constexpr int TipMilliseconds = 10000;

/// The characters of \a text that \a validator does not take, each once.
QString RefusedCharacters(const QValidator& validator, const QString& text)
{
    QString refused;
    for (const QChar character : text) {
        QString alone(character);
        int cursor = 0;
        if (!refused.contains(character)
            && validator.validate(alone, cursor) == QValidator::Invalid) {
            refused += character;
        }
    }
    return refused;
}

QString TextOf(QClipboard::Mode mode)
{
    return QGuiApplication::clipboard()->text(mode);
}

} // namespace

PanelNameGuard::PanelNameGuard(QWidget* panel)
    : QObject(panel)
    , m_parts(*panel)
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(TipMilliseconds);
    connect(m_timer, &QTimer::timeout, this, &PanelNameGuard::HideReason);
    m_parts.nameField->installEventFilter(this);
    connect(m_parts.nameField, &QLineEdit::inputRejected, this, &PanelNameGuard::ShowReason);
    connect(m_parts.nameField, &QLineEdit::textChanged, this, &PanelNameGuard::HideReason);
}

PanelNameGuard::~PanelNameGuard() = default;

bool PanelNameGuard::eventFilter(QObject* watched, QEvent* event)
{
    NoteInput(event);
    return QObject::eventFilter(watched, event);
}

void PanelNameGuard::NoteInput(QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto& key = *static_cast<QKeyEvent*>(event);
        m_input = key.matches(QKeySequence::Paste) ? TextOf(QClipboard::Clipboard) : key.text();
        break;
    }
    case QEvent::InputMethod:
        m_input = static_cast<QInputMethodEvent*>(event)->commitString();
        break;
    case QEvent::Drop:
        m_input = static_cast<QDropEvent*>(event)->mimeData()->text();
        break;
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::MiddleButton) {
            m_input = TextOf(QClipboard::Selection);
        }
        break;
    case QEvent::ContextMenu:
        // It offers to paste.
        m_input = TextOf(QClipboard::Clipboard);
        break;
    case QEvent::FocusOut:
    case QEvent::Hide:
        HideReason();
        break;
    default:
        break;
    }
}

void PanelNameGuard::ShowReason()
{
    const QString refused = RefusedCharacters(*m_parts.nameField->validator(), m_input);
    if (refused.isEmpty()) {
        return;
    }
    QStringList visible;
    for (const QChar character : refused) {
        if (character.isPrint()) {
            visible << QString(character);
        }
    }
    m_reason = visible.isEmpty()
        ? tr("A name cannot contain line breaks or other control characters.")
        : tr("A name cannot contain: %1").arg(visible.join(QLatin1Char(' ')));
    QLineEdit* field = m_parts.nameField;
    QToolTip::showText(field->mapToGlobal(field->rect().bottomLeft()), m_reason, field, QRect(),
                       TipMilliseconds);
    m_timer->start();
    Q_EMIT RefusalChanged(m_reason);
}

void PanelNameGuard::HideReason()
{
    if (m_reason.isEmpty()) {
        return;
    }
    if (QToolTip::text() == m_reason) {
        QToolTip::hideText();
    }
    m_reason.clear();
    m_timer->stop();
    Q_EMIT RefusalChanged(m_reason);
}

} // namespace Zentor::Desktop
