// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "CalendarArrow.h"

#include <QDateTimeEdit>
#include <QStyleOptionComboBox>

namespace Zentor::Desktop {

QRect CalendarArrowOf(const QDateTimeEdit& field)
{
    // A field with a calendar is drawn, and worked with the mouse, as an editable combo box.
    QStyleOptionComboBox option;
    option.initFrom(&field);
    option.editable = true;
    option.frame = field.hasFrame();
    option.subControls = QStyle::SC_All;
    return field.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow,
                                         &field);
}

} // namespace Zentor::Desktop
