// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Controls.h"

#include <algorithm>

#include <QAccessible>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QStyledItemDelegate>

#include "HostInterfaces.h"

namespace Zentor::Desktop {

QLabel* CreateLabel(const QString& objectName, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPushButton* CreateButton(const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(objectName);
    button->setAutoDefault(true);
    return button;
}

QFrame* CreateCard(const QString& objectName, QWidget* parent)
{
    auto* card = new QFrame(parent);
    card->setObjectName(objectName);
    return card;
}

QComboBox* CreateComboBox(const QString& objectName, const QStringList& values, QWidget* parent)
{
    auto* box = new QComboBox(parent);
    box->setObjectName(objectName);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const QString& value : values) {
        box->addItem(QString(), value);
    }
    box->setMaxVisibleItems(box->count());
    // Whoever scrolls the page does not mean to change what lies under the mouse by chance.
    new PX::UI::WheelEventsBlocker(box);
    return box;
}

void OfferValues(QComboBox& box, const QStringList& texts, const QStringList& values,
                 const QString& value)
{
    QStringList offered;
    for (int index = 0; index < box.count(); ++index) {
        offered << box.itemText(index) << box.itemData(index).toString();
    }
    QStringList wanted;
    for (int index = 0; index < values.size(); ++index) {
        wanted << texts.at(index) << values.at(index);
    }
    if (offered != wanted) {
        box.clear();
        for (int index = 0; index < values.size(); ++index) {
            box.addItem(texts.at(index), values.at(index));
        }
        box.setMaxVisibleItems(box.count());
        WidenToTexts(box);
    }
    SelectValue(box, value);
}

void WidenToTexts(QComboBox& box)
{
    // By itself a box goes by the ink of the letters, which is less than what they take.
    const QFontMetrics metrics = box.fontMetrics();
    int widest = 0;
    for (int index = 0; index < box.count(); ++index) {
        widest = std::max(widest, metrics.horizontalAdvance(box.itemText(index)));
    }
    box.setMinimumContentsLength(1 + widest / metrics.horizontalAdvance(QLatin1Char('X')));
}

void SelectValue(QComboBox& box, const QString& value)
{
    box.setCurrentIndex(std::max(0, box.findData(value)));
}

void SetDescription(QWidget* widget, const QString& text)
{
    if (widget->accessibleDescription() != text) {
        widget->setAccessibleDescription(text);
    }
}

void AlertScreenReaders(QWidget* widget)
{
    QAccessibleEvent event(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void StyleComboBoxLists(const QWidget& parent)
{
    // Without this delegate a box draws the entries of its list past the style sheet.
    const auto boxes = parent.findChildren<QComboBox*>();
    for (QComboBox* box : boxes) {
        box->setItemDelegate(new QStyledItemDelegate(box));
    }
}

} // namespace Zentor::Desktop
