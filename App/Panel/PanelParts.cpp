// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PanelParts.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimeEdit>
#include <QToolButton>

namespace Zentor::Desktop {
namespace {

/// Finds the part called \a name, whatever its type.
class Finder {
public:
    Finder(const QWidget& panel, const QString& name)
        : m_panel(panel)
        , m_name(name)
    {
    }

    template <typename Part> operator Part*() const // NOLINT(google-explicit-constructor)
    {
        auto* part = m_panel.findChild<Part*>(m_name);
        if (part == nullptr) {
            qFatal("The scheduler panel has no %s called \"%s\"",
                   Part::staticMetaObject.className(), qUtf8Printable(m_name));
        }
        return part;
    }

private:
    const QWidget& m_panel;
    const QString& m_name;
};

} // namespace

PanelParts::PanelParts(const QWidget& panel)
    : modeGroup(Finder(panel, PanelPart::ModeGroup))
    , offModeButton(Finder(panel, PanelPart::OffModeButton))
    , limitedModeButton(Finder(panel, PanelPart::LimitedModeButton))
    , scheduledModeButton(Finder(panel, PanelPart::ScheduledModeButton))
    , limitedSettings(Finder(panel, PanelPart::LimitedSettings))
    , limitedDurationField(Finder(panel, PanelPart::LimitedDurationField))
    , limitedActionBox(Finder(panel, PanelPart::LimitedActionBox))
    , stack(Finder(panel, PanelPart::Stack))
    , table(Finder(panel, PanelPart::Table))
    , list(Finder(panel, PanelPart::List))
    , rows(Finder(panel, PanelPart::Rows))
    , addButton(Finder(panel, PanelPart::AddButton))
    , form(Finder(panel, PanelPart::Form))
    , nameField(Finder(panel, PanelPart::NameField))
    , dateField(Finder(panel, PanelPart::DateField))
    , startField(Finder(panel, PanelPart::StartField))
    , durationField(Finder(panel, PanelPart::DurationField))
    , areaGroup(Finder(panel, PanelPart::AreaGroup))
    , selectedAreaButton(Finder(panel, PanelPart::SelectedAreaButton))
    , selectedAreaInfoButton(Finder(panel, PanelPart::SelectedAreaInfoButton))
    , fullScreenButton(Finder(panel, PanelPart::FullScreenButton))
    , screenBox(Finder(panel, PanelPart::ScreenBox))
    , actionBox(Finder(panel, PanelPart::ActionBox))
    , createButton(Finder(panel, PanelPart::CreateButton))
    , backButton(Finder(panel, PanelPart::BackButton))
{
}

bool PanelParts::IsFormVisible() const
{
    return form->isVisible();
}

QList<QToolButton*> PanelParts::DeleteButtons() const
{
    QList<QToolButton*> buttons;
    const QLayout* layout = rows->layout();
    for (int index = 0; index < layout->count(); ++index) {
        if (QToolButton* button = DeleteButtonOf(layout->itemAt(index)->widget())) {
            buttons << button;
        }
    }
    return buttons;
}

QToolButton* DeleteButtonOf(const QWidget* row)
{
    return row == nullptr ? nullptr : row->findChild<QToolButton*>(PanelPart::RowDeleteButton);
}

} // namespace Zentor::Desktop
