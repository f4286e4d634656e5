// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

/// \file
/// The small controls of the pages, made alike. The parent owns each.
#pragma once

#include <QString>
#include <QStringList>

class QComboBox;
class QFrame;
class QLabel;
class QPushButton;
class QWidget;

namespace Zentor::Desktop {

/// Distance in pixels between controls that belong together.
constexpr int ControlSpacing = 8;

/// A label that shows its text literally, wrapped where it does not fit.
QLabel* CreateLabel(const QString& objectName, QWidget* parent);

/// A button that Enter presses when it has the focus.
QPushButton* CreateButton(const QString& objectName, QWidget* parent);

/// A frame around settings that belong together.
QFrame* CreateCard(const QString& objectName, QWidget* parent);

/// A combo box with an entry for each of \a values, which are the entries' data; their texts are
/// set later. The mouse wheel does not change it.
QComboBox* CreateComboBox(const QString& objectName, const QStringList& values, QWidget* parent);

/// Has \a box offer \a texts with their \a values as data, and selects \a value. A list that is
/// open stays so where it has nothing new to offer.
void OfferValues(QComboBox& box, const QStringList& texts, const QStringList& values,
                 const QString& value);

/// Makes \a box as wide as its longest text.
void WidenToTexts(QComboBox& box);

/// Selects the entry of \a value in \a box or, where there is none, the first one.
void SelectValue(QComboBox& box, const QString& value);

/// Sets what screen readers are told about \a widget beside its name, and tells them only what is
/// new.
void SetDescription(QWidget* widget, const QString& text);

/// Has screen readers say what \a widget shows.
void AlertScreenReaders(QWidget* widget);

/// Leaves the lists of the combo boxes in \a parent to the style sheet, which Qt does not by
/// itself.
void StyleComboBoxLists(const QWidget& parent);

} // namespace Zentor::Desktop
