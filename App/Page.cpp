#include "Page.h"

#include <QLabel>
#include <QVBoxLayout>

namespace Zentor::App {
namespace {

constexpr int margin = 24;
/// Between the head of the page and its settings.
constexpr int gap = 18;

} // namespace

QLabel* CreateLabel(const QString& objectName, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

Page::Page(const QString& id, QWidget* settings, QWidget* parent)
    : QScrollArea(parent)
    , m_id(id)
{
    setObjectName(QStringLiteral("pageScrollArea"));
    setWidgetResizable(true);
    // The arrow keys and the wheel scroll; a focus of its own would be one more stop for Tab.
    setFocusPolicy(Qt::NoFocus);

    auto* contents = new QWidget(this);
    contents->setObjectName(QStringLiteral("pageContents"));
    m_title = CreateLabel(QStringLiteral("pageTitle"), contents);
    m_description = CreateLabel(QStringLiteral("pageDescription"), contents);

    // The settings grow up to the width that the style sheet allows, and stay at the left.
    auto* row = new QHBoxLayout;
    row->addWidget(settings, 1);
    row->addStretch(0);

    auto* column = new QVBoxLayout(contents);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(0);
    column->addWidget(m_title);
    column->addWidget(m_description);
    column->addSpacing(gap);
    column->addLayout(row);
    column->addStretch(1);
    setWidget(contents);
}

void Page::SetTexts(const QString& title, const QString& description)
{
    m_title->setText(title);
    m_description->setText(description);
    setAccessibleName(title);
    setAccessibleDescription(description);
}

} // namespace Zentor::App
