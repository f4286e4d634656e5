// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Application/PlainStyle.h"

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "Contrast.h"
#include "MarkingTranslator.h"
#include "Palettes.h"
#include "Panel.h"
#include "PanelPlaces.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

constexpr double TextContrast = 4.5;
constexpr double ShapeContrast = 3.0;

QStringList Titles(int count)
{
    QStringList titles;
    for (int i = 0; i < count; ++i) {
        titles << QStringLiteral("Task %1").arg(i);
    }
    return titles;
}

/// The panel with \a taskCount tasks on screen, in the style that the application has.
std::unique_ptr<Panel> ShowPanel(int taskCount)
{
    auto panel = std::make_unique<Panel>();
    (new QVBoxLayout(panel->window.get()))->addWidget(panel->widget);
    panel->RestoreScheduled(Titles(taskCount));
    panel->Scheduled()->setChecked(true);
    panel->window->show();
    QApplication::setActiveWindow(panel->window.get());
    QCoreApplication::sendPostedEvents();
    return panel;
}

QWidget* Row(const Panel& panel, int index)
{
    return panel.widget->findChildren<QWidget*>(Desktop::PanelPart::Row).at(index);
}

QToolButton* DeleteButton(const Panel& panel)
{
    return Row(panel, 0)->findChild<QToolButton*>();
}

QScrollArea* List(const Panel& panel)
{
    return panel.Find<QScrollArea>(Desktop::PanelPart::List);
}

/// What changes with the palette, as pictures: the list with its header, and a field with an error.
QList<QImage> Pictures(const Panel& panel)
{
    Util::ApplyWidgetStyle(panel.Name(), QStringLiteral("Invalid"), "SubStyle");
    QCoreApplication::sendPostedEvents();
    return {panel.window->grab().toImage(), ColumnHeader(*panel.widget, "title")->grab().toImage(),
            Row(panel, 0)->grab().toImage(), DeleteButton(panel)->grab().toImage(),
            panel.Name()->grab().toImage()};
}

void AddPalettes()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("as it is") << QApplication::palette();
    QTest::newRow("dark") << DarkPalette();
    QTest::newRow("black and white") << QPalette(Qt::white, Qt::black);
    QTest::newRow("pale") << QPalette(Qt::white, QColor(0xf0, 0xf0, 0xd8));
    QPalette faint(DarkPalette());
    faint.setColor(QPalette::Highlight, QColor(0x40, 0x40, 0x48));
    QTest::newRow("faint highlight") << faint;
}

} // namespace

class tst_PlainStyle : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_palette = QApplication::palette();
        m_font = QApplication::font();
    }

    void init()
    {
        WidgetTest::init();
        App::ApplyPlainStyle(*qApp);
    }

    void cleanup()
    {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setPalette(m_palette);
        QApplication::setFont(m_font);
        WidgetTest::cleanup();
    }

    void fillsEveryValue()
    {
        const QString sheet = App::PlainStyleSheet();
        QVERIFY(sheet.contains(QStringLiteral("#recordTableScrollArea")));
        QVERIFY2(!sheet.contains('@'), qUtf8Printable(sheet));
        QCOMPARE(qApp->styleSheet(), sheet);
    }

    void showsRowsInColumns_data()
    {
        QTest::addColumn<int>("pointSize");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QString>("style");
        for (const int size : {9, 12, 16}) {
            QTest::addRow("%d pt", size) << size << Qt::LeftToRight << QStringLiteral("Fusion");
        }
        QTest::newRow("RTL") << 10 << Qt::RightToLeft << QStringLiteral("Fusion");
        QTest::newRow("style Windows") << 10 << Qt::LeftToRight << QStringLiteral("Windows");
    }

    void showsRowsInColumns()
    {
        QFETCH(const int, pointSize);
        QFETCH(const Qt::LayoutDirection, direction);
        QFETCH(const QString, style);
        QApplication::setStyle(style);
        QFont font = m_font;
        font.setPointSize(pointSize);
        QApplication::setFont(font);
        QApplication::setLayoutDirection(direction);

        const auto panel = ShowPanel(8);
        QCOMPARE(MisplacedCells(*panel->widget), QStringList());
        const auto* list = List(*panel);
        for (int i = 0; i < 5; ++i) {
            QVERIFY(IsInside(*Row(*panel, i), *list->viewport()));
        }
        QVERIFY(OnScreen(*Row(*panel, 5)).intersects(OnScreen(*list->viewport())));
        QVERIFY(list->verticalScrollBar()->isVisible());
        QVERIFY(IsInside(*DeleteButton(*panel), *list->viewport()));
        QCOMPARE(list->horizontalScrollBar()->maximum(), 0);
    }

    /// Where all tasks are shown, none of the list is hidden.
    void showsShortLists_data()
    {
        QTest::addColumn<int>("taskCount");
        for (const int count : {0, 1, 5}) {
            QTest::addRow("%d tasks", count) << count;
        }
    }

    void showsShortLists()
    {
        QFETCH(const int, taskCount);
        const auto panel = ShowPanel(taskCount);
        const auto* list = List(*panel);
        QCOMPARE(list->verticalScrollBar()->maximum(), 0);
        QCOMPARE(list->horizontalScrollBar()->maximum(), 0);
        const auto* slot = panel->Find<QWidget>(Desktop::PanelPart::PlaceholderRow);
        QCOMPARE(slot != nullptr, taskCount == 0);
        QVERIFY(slot == nullptr || IsInside(*slot, *list->viewport()));
    }

    void givesHeadersRoomInEveryLanguage()
    {
        const auto panel = ShowPanel(2);
        LanguageSwitch language;
        language.Toggle();
        QCoreApplication::sendPostedEvents();
        QCOMPARE(ColumnHeader(*panel->widget, "duration")->text(), QStringLiteral("~Duration"));
        QCOMPARE(MisplacedCells(*ShowPanel(2)->widget), QStringList());
    }

    void keepsCaptionsBesideTheirButtons()
    {
        const auto panel = ShowPanel(0);
        const QRect button = OnScreen(*panel->None());
        const QRect caption = OnScreen(*panel->Find<QWidget>("disableScheduledCaptureLabel"));
        QVERIFY(button.width() < 2 * button.height());
        QCOMPARE(caption.left(), button.right() + 1);
    }

    void followsThePalette()
    {
        const auto panel = ShowPanel(3);
        const auto light = Pictures(*panel);
        QApplication::setPalette(DarkPalette());
        const auto dark = Pictures(*panel);
        QApplication::setPalette(m_palette);
        const auto lightAgain = Pictures(*panel);
        for (int i = 0; i < light.size(); ++i) {
            QVERIFY(light.at(i) != dark.at(i));
            QVERIFY(light.at(i) == lightAgain.at(i));
            const QColor ground = dark.at(i).pixelColor(5, dark.at(i).height() / 2);
            QVERIFY2(ground.lightness() < 128, qPrintable(QString::number(i) + ground.name()));
        }
    }

    void canBeReadInEveryPalette_data() { AddPalettes(); }

    void canBeReadInEveryPalette()
    {
        QFETCH(const QPalette, palette);
        QApplication::setPalette(palette);
        const auto panel = ShowPanel(1);
        const QColor base = palette.color(QPalette::Base);
        const auto text = [](const QWidget* widget) {
            return widget->palette().color(widget->foregroundRole());
        };
        QVERIFY(
            Contrast(text(ColumnHeader(*panel->widget, "date")), palette.color(QPalette::Window))
            >= TextContrast);
        QVERIFY(Contrast(text(DeleteButton(*panel)), base) >= TextContrast);

        Util::ApplyWidgetStyle(panel->Name(), QStringLiteral("Invalid"), "SubStyle");
        const auto& field = panel->Name()->palette();
        QVERIFY(field.color(QPalette::Base) != base);
        QVERIFY(Contrast(field.color(QPalette::Text), field.color(QPalette::Base)) >= TextContrast);
    }

    void showsTheFocus_data() { AddPalettes(); }

    /// The ring is there in a colour that can be told from what it lies on.
    void showsTheFocus()
    {
        QFETCH(const QPalette, palette);
        QApplication::setPalette(palette);
        const auto panel = ShowPanel(1);
        const QWidgetList widgets{panel->Scheduled(), DeleteButton(*panel), List(*panel)};
        for (QWidget* widget : widgets) {
            panel->Add()->setFocus();
            const QImage without = widget->grab().toImage();
            widget->setFocus();
            const QImage with = widget->grab().toImage();
            QVERIFY(with != without);
            const int middle = with.height() / 2;
            const QColor ring = with.pixelColor(0, middle);
            const QColor inside = without.pixelColor(0, middle);
            QVERIFY(ring != inside);
            QVERIFY(Contrast(ring, palette.color(QPalette::Base)) >= ShapeContrast);
            QVERIFY(Contrast(ring, palette.color(QPalette::Window)) >= ShapeContrast);
        }
    }

    void marksTheDeleteButton()
    {
        const auto panel = ShowPanel(1);
        const auto* button = DeleteButton(*panel);
        QCOMPARE(button->text(), QString(QChar(0xd7)));
        QCOMPARE(button->accessibleName(), QStringLiteral("Delete Task 0"));
        QVERIFY(button->width() >= 16 && button->height() >= 16);
    }

    /// In a row that is alike apart from the state.
    void showsTheRowUnderTheMouse()
    {
        const auto panel = ShowPanel(1);
        auto* cell = Row(*panel, 0)->findChild<QLabel*>(Desktop::PanelPart::RowTitle);
        const QImage before = cell->grab().toImage();
        Util::ApplyWidgetStyle(cell, QStringLiteral("Hover"), "SubStyle");
        QVERIFY(cell->grab().toImage() != before);
        Util::ApplyWidgetStyle(cell, QStringLiteral("Normal"), "SubStyle");
        QVERIFY(cell->grab().toImage() == before);
    }

    void showsTheChosenMode()
    {
        const auto panel = ShowPanel(1);
        auto* head = panel->Find<QWidget>("scheduledCaptureRadioButtonFrame");
        QCOMPARE(head->property("SubStyle").toString(), QStringLiteral("Active"));
        const QImage active = head->grab().toImage();
        Util::ApplyWidgetStyle(head, QStringLiteral("Inactive"), "SubStyle");
        QCOMPARE(head->grab().toImage().size(), active.size());
        QVERIFY(head->grab().toImage() != active);
    }

    void greysOutWhatIsDisabled()
    {
        const auto panel = ShowPanel(1);
        panel->widget->setEnabled(false);
        const QColor disabled = m_palette.color(QPalette::Disabled, QPalette::Text);
        const QWidgetList widgets{ColumnHeader(*panel->widget, "time"),
                                  Row(*panel, 0)->findChild<QLabel*>(Desktop::PanelPart::RowTitle),
                                  DeleteButton(*panel)};
        for (const QWidget* widget : widgets) {
            QCOMPARE(widget->palette().color(QPalette::Disabled, widget->foregroundRole()),
                     disabled);
        }
    }

    void isOverruledByTheOwnSheet()
    {
        App::ApplyPlainStyle(*qApp,
                             QStringLiteral("#deleteToolButton { qproperty-text: 'del'; }"
                                            "#titleLabel { color: #123456; }"));
        const auto panel = ShowPanel(1);
        QCOMPARE(DeleteButton(*panel)->text(), QStringLiteral("del"));
        const auto* title = Row(*panel, 0)->findChild<QLabel*>(Desktop::PanelPart::RowTitle);
        QCOMPARE(title->palette().color(title->foregroundRole()), QColor(0x12, 0x34, 0x56));
        QApplication::setPalette(DarkPalette());
        QCOMPARE(title->palette().color(title->foregroundRole()), QColor(0x12, 0x34, 0x56));
    }

    void canBeSetOnAWindowAlone()
    {
        const auto sheetBefore = qApp->styleSheet();
        QWidget window;
        App::ApplyPlainStyle(window);
        QCOMPARE(window.styleSheet(), App::PlainStyleSheet());
        QCOMPARE(qApp->styleSheet(), sheetBefore);
        QApplication::setPalette(DarkPalette());
        QVERIFY(qApp->styleSheet() != sheetBefore);
        QCOMPARE(window.styleSheet(), App::PlainStyleSheet());
    }

    /// What was applied before does not come back with the next palette.
    void isReplacedByTheNext()
    {
        App::ApplyPlainStyle(*qApp, QStringLiteral("#one {}"));
        App::ApplyPlainStyle(*qApp, QStringLiteral("#two {}"));
        QApplication::setPalette(DarkPalette());
        QVERIFY(qApp->styleSheet().endsWith(QStringLiteral("#two {}")));
        QVERIFY(!qApp->styleSheet().contains(QStringLiteral("#one {}")));
    }

private:
    QPalette m_palette;
    QFont m_font;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_PlainStyle)

#include "tst_PlainStyle.moc"
