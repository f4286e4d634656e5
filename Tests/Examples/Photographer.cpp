// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

// Linked into an example, it comes to life with the application object: it gives the example
// settings with tasks in them, waits until the panel is on screen, takes pictures of the list and
// of the task form, and ends the example with the number of things that are not as they should be.
//
// SAMPLE_SETTINGS is the file that the example reads; PICTURES is what the names of the pictures
// begin with; SAMPLE_PALETTE "dark" is a desktop in dark colours.
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>

#include "Palettes.h"
#include "PanelPlaces.h"
#include "RecordSchedulerWidget.h"

namespace {

using namespace Zentor;
using namespace Zentor::Tests;
using PX::Scheduler::UI::RecordSchedulerWidget;

class Photographer final : public QObject {
public:
    Photographer();

private:
    void LookForPanel();
    void TakePictures(const RecordSchedulerWidget& panel);
    void TakePicture(const RecordSchedulerWidget& panel, const QString& name);
    void CheckList(const RecordSchedulerWidget& panel);
    void CheckRoom(const QWidget& window);
    void Check(bool isRight, const QString& what);

    const QTemporaryDir m_folder;
    const QString m_picture = qEnvironmentVariable("PICTURES");
    QTimer m_timer;
    QSize m_sizeBefore;
    int m_problemCount = 0;
};

Photographer::Photographer()
    : QObject(QCoreApplication::instance())
{
    const QFileInfo settings(qEnvironmentVariable("SAMPLE_SETTINGS"));
    QDir::setCurrent(m_folder.path());
    Check(QFile::copy(settings.filePath(), settings.fileName()), QStringLiteral("settings"));
    connect(&m_timer, &QTimer::timeout, this, &Photographer::LookForPanel);
    m_timer.start(10);
}

RecordSchedulerWidget* FindPanel()
{
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (window->isVisible()) {
            if (auto* panel = window->findChild<RecordSchedulerWidget*>()) {
                return panel;
            }
        }
    }
    return nullptr;
}

/// The panel must have the same size twice: layouts follow each other.
void Photographer::LookForPanel()
{
    const RecordSchedulerWidget* panel = FindPanel();
    if (panel == nullptr) {
        return;
    }
    if (!panel->isVisible()) {
        auto* pages = panel->window()->findChild<QListWidget*>();
        pages->setCurrentRow(pages->currentRow() + 1);
        return;
    }
    const bool isSettled = panel->size() == m_sizeBefore;
    m_sizeBefore = panel->size();
    if (isSettled) {
        m_timer.stop();
        TakePictures(*panel);
        QCoreApplication::exit(m_problemCount);
    }
}

void Photographer::TakePictures(const RecordSchedulerWidget& panel)
{
    CheckList(panel);
    // As in a window that the user is not in.
    if (QWidget* focused = QApplication::focusWidget()) {
        focused->clearFocus();
    }
    TakePicture(panel, QString());
    const auto* list = panel.findChild<QScrollArea*>(Desktop::PanelPart::List);
    panel.findChild<QAbstractButton*>(Desktop::PanelPart::AddButton)->click();
    Check(!list->isVisible(), QStringLiteral("the form is not open"));
    TakePicture(panel, QStringLiteral("-form"));
}

void Photographer::TakePicture(const RecordSchedulerWidget& panel, const QString& name)
{
    QCoreApplication::sendPostedEvents();
    CheckRoom(*panel.window());
    const QImage picture = panel.window()->grab().toImage();
    Check(picture.save(m_picture + name + QStringLiteral(".png")), QStringLiteral("not saved"));
    const bool isDark = qEnvironmentVariable("SAMPLE_PALETTE") == QLatin1String("dark");
    constexpr int middle = 128;
    Check((picture.pixelColor(1, 1).lightness() < middle) == isDark, QStringLiteral("its palette"));
}

void Photographer::CheckList(const RecordSchedulerWidget& panel)
{
    const auto rows = panel.findChildren<QWidget*>(Desktop::PanelPart::Row);
    const auto* list = panel.findChild<QScrollArea*>(Desktop::PanelPart::List);
    Check(rows.size() == 3, QStringLiteral("%1 rows").arg(rows.size()));
    for (const QWidget* row : rows) {
        Check(row->isVisible() && row->height() > row->fontMetrics().height()
                  && IsInside(*row, *list->viewport()),
              QStringLiteral("a row is hidden"));
    }
    Check(list->horizontalScrollBar()->maximum() == 0, QStringLiteral("the list scrolls sideways"));
    const QStringList misplaced = MisplacedCells(panel);
    Check(misplaced.isEmpty(), misplaced.join(QLatin1Char(',')));
}

/// Nothing is cut off.
void Photographer::CheckRoom(const QWidget& window)
{
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible() || widget->isWindow()) {
            continue;
        }
        const QString name =
            QStringLiteral("no room for %1 %2")
                .arg(QLatin1String(widget->metaObject()->className()), widget->objectName());
        Check(widget->parentWidget()->rect().contains(widget->geometry()), name);
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            Check(HasRoom(*label), name);
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            const int text = button->fontMetrics().size(0, button->text()).width();
            Check(text <= button->width(), name);
        }
    }
}

void Photographer::Check(bool isRight, const QString& what)
{
    if (!isRight) {
        ++m_problemCount;
        qWarning("%s", qUtf8Printable(what));
    }
}

void CallPhotographer()
{
    if (qEnvironmentVariable("SAMPLE_PALETTE") == QLatin1String("dark")) {
        QApplication::setPalette(DarkPalette());
    }
    new Photographer();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(CallPhotographer)
