// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "LayoutProblems.h"

#include <cmath>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QBitmap>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedLayout>
#include <QStatusBar>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTextDocument>
#include <QtMath>

#include "PanelParts.h"

namespace Zentor::Tests {
namespace {

/// A text of a widget: the room that it takes, and the room that there is.
struct TextRoom {
    QString text;
    QSize needed;
    QSize available;
};
using TextRooms = std::vector<TextRoom>;

/// What a line edit keeps free on each side of its text.
constexpr int LineEditMargin = 2;

QString NameOf(const QWidget& widget)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName());
}

QString Text(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString Text(const QRect& rect)
{
    return QStringLiteral("%1 at %2,%3").arg(Text(rect.size())).arg(rect.x()).arg(rect.y());
}

/// What a window may be smaller than it asked to be: at a fractional scale the window system rounds
/// its size to the pixels of the screen.
int LostToRounding()
{
    const qreal scale = qApp->devicePixelRatio();
    const bool isFractional = !qFuzzyCompare(scale, std::round(scale));
    return isFractional && QGuiApplication::platformName() != QLatin1String("offscreen") ? 1 : 0;
}

/// The room that a line of \a text takes in \a widget when it is painted. What is free above, below
/// and behind the letters may be cut off: some fonts have much of it.
QSize SizeOf(const QString& text, const QWidget& widget)
{
    const QSize line = widget.fontMetrics().size(Qt::TextShowMnemonic, text);
    const QRect letters = widget.fontMetrics().tightBoundingRect(text);
    return line.boundedTo({qMax(0, letters.x()) + letters.width(), letters.height()});
}

/// The columns of \a document that have something of its letters in them.
int PaintedWidth(QTextDocument& document)
{
    const QSize size(qCeil(document.idealWidth()), qCeil(document.size().height()));
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    document.drawContents(&painter);
    painter.end();
    const QRect all(QPoint(0, 0), size);
    return QRegion(QBitmap::fromImage(picture.createAlphaMask()))
        .boundingRect()
        .intersected(all)
        .width();
}

QSize NeededBy(const QLabel& label, int width)
{
    const QString text = label.text();
    if (label.textFormat() == Qt::RichText
        || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(text))) {
        QTextDocument document;
        document.setDefaultFont(label.font());
        document.setDocumentMargin(0);
        document.setHtml(text);
        document.setTextWidth(width);
        const int idealWidth = qRound(document.idealWidth());
        // Qt 6 lets a line stand out by what is free behind its last letter.
        return {idealWidth > width ? PaintedWidth(document) : idealWidth,
                qRound(document.size().height())};
    }
    const int flags = label.buddy() != nullptr ? Qt::TextShowMnemonic : 0;
    if (label.wordWrap()) {
        const QRect page(0, 0, width, QWIDGETSIZE_MAX);
        return label.fontMetrics().boundingRect(page, flags | Qt::TextWordWrap, text).size();
    }
    return {label.fontMetrics().size(flags, text).width(), SizeOf(text, label).height()};
}

/// Whether \a label may shorten its text, which is the user's, and tells the whole in its tip.
bool IsShortenedWithTip(const QLabel& label)
{
    const QStringList shortened{Desktop::PanelPart::RowTitle, QStringLiteral("saveProblemLabel"),
                                QStringLiteral("recordingHeadlineLabel"),
                                QStringLiteral("recordingNoteLabel")};
    return shortened.contains(label.objectName()) && label.inherits("Zentor::ZLabel")
        && !label.toolTip().isEmpty();
}

TextRooms RoomsOf(const QLabel& label)
{
    const int margin = label.margin();
    const QSize room = label.contentsRect().adjusted(margin, margin, -margin, -margin).size();
    if (label.text().isEmpty() || IsShortenedWithTip(label)) {
        return {};
    }
    return {{label.text(), NeededBy(label, room.width()), room}};
}

TextRooms RoomsOf(const QAbstractButton& button)
{
    if (button.text().isEmpty()) {
        return {};
    }
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const auto room = [&](QStyle::SubElement element) -> TextRooms {
        const QRect rect = button.style()->subElementRect(element, &option, &button);
        return {{button.text(), SizeOf(button.text(), button), rect.size()}};
    };
    if (qobject_cast<const QPushButton*>(&button) != nullptr) {
        return room(QStyle::SE_PushButtonContents);
    }
    if (qobject_cast<const QRadioButton*>(&button) != nullptr) {
        return room(QStyle::SE_RadioButtonContents);
    }
    if (qobject_cast<const QCheckBox*>(&button) != nullptr) {
        return room(QStyle::SE_CheckBoxContents);
    }
    return {{button.text(), button.sizeHint(), button.size()}};
}

TextRooms RoomsOf(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.frame = box.hasFrame();
    // The style keeps a pixel free on each side and cuts off the rest.
    const QSize room =
        box.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
            .adjusted(1, 0, -1, 0)
            .size();
    TextRooms rooms;
    for (int index = 0; index < box.count(); ++index) {
        rooms.push_back({box.itemText(index), SizeOf(box.itemText(index), box), room});
    }
    return rooms;
}

/// \a text as wide as it gets: with its digits replaced by the widest one.
QString Widest(QString text, const QFontMetrics& metrics)
{
    QChar widest = QLatin1Char('0');
    for (char digit = '0'; digit <= '9'; ++digit) {
        const QLatin1Char candidate(digit);
        if (metrics.horizontalAdvance(candidate) > metrics.horizontalAdvance(widest)) {
            widest = candidate;
        }
    }
    for (QChar& character : text) {
        character = character.isDigit() ? widest : character;
    }
    return text;
}

TextRooms RoomsOf(const QAbstractSpinBox& editor)
{
    const auto* field = editor.findChild<QLineEdit*>();
    const QString text = Widest(editor.text(), field->fontMetrics());
    const QSize room = field->contentsRect().adjusted(LineEditMargin, 0, -LineEditMargin, 0).size();
    return {{text, SizeOf(text, *field), room}};
}

TextRooms RoomsOf(const QLineEdit& field)
{
    const QString text = field.placeholderText();
    const QSize room = field.contentsRect().adjusted(LineEditMargin, 0, -LineEditMargin, 0).size();
    return text.isEmpty() ? TextRooms() : TextRooms{{text, SizeOf(text, field), room}};
}

TextRooms RoomsOf(const QAbstractItemView& view)
{
    TextRooms rooms;
    const auto& model = *view.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            const QRect place = view.visualRect(index);
            const bool isList = model.columnCount() == 1;
            // The cells of a table share its width, whatever each would like.
            rooms.push_back(
                {index.data().toString(),
                 isList ? view.sizeHintForIndex(index) : SizeOf(index.data().toString(), view),
                 isList ? QSize(view.viewport()->width(), place.height()) : place.size()});
        }
    }
    return rooms;
}

TextRooms RoomsOf(const QStatusBar& bar)
{
    if (bar.currentMessage().isEmpty() || !bar.toolTip().isEmpty()) {
        return {};
    }
    // At its end, letters may lean out into the margin.
    constexpr int margin = 6;
    return {{bar.currentMessage(), SizeOf(bar.currentMessage(), bar),
             bar.rect().adjusted(margin, 0, 0, 0).size()}};
}

TextRooms RoomsOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return RoomsOf(*label);
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return RoomsOf(*button);
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        return RoomsOf(*box);
    }
    if (const auto* editor = qobject_cast<const QAbstractSpinBox*>(&widget)) {
        return RoomsOf(*editor);
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        return RoomsOf(*field);
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
        return RoomsOf(*view);
    }
    if (const auto* bar = qobject_cast<const QStatusBar*>(&widget)) {
        return RoomsOf(*bar);
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        return {{group->title(), SizeOf(group->title(), *group), group->size()}};
    }
    return {};
}

QStringList ClippedTexts(const QWidget& widget)
{
    QStringList problems;
    for (const TextRoom& room : RoomsOf(widget)) {
        const QSize available = room.available + QSize(LostToRounding(), LostToRounding());
        if (room.needed.boundedTo(available) != room.needed) {
            problems << QStringLiteral("%1 needs %2 and has %3: \"%4\"")
                            .arg(NameOf(widget), Text(room.needed), Text(room.available),
                                 room.text);
        }
    }
    return problems;
}

QWidgetList VisibleWidgetsOf(const QLayout& layout)
{
    if (qobject_cast<const QStackedLayout*>(&layout) != nullptr) {
        return {};
    }
    QWidgetList widgets;
    for (int index = 0; QLayoutItem* item = layout.itemAt(index); ++index) {
        if (QWidget* widget = item->widget(); widget != nullptr && widget->isVisible()) {
            widgets << widget;
        } else if (const QLayout* inner = item->layout()) {
            widgets << VisibleWidgetsOf(*inner);
        }
    }
    return widgets;
}

/// The widgets in the layout of \a parent that lie on one another.
QStringList Overlaps(const QWidget& parent)
{
    QStringList problems;
    const QWidgetList widgets =
        parent.layout() != nullptr ? VisibleWidgetsOf(*parent.layout()) : QWidgetList();
    for (const QWidget* one : widgets) {
        for (const QWidget* other : widgets) {
            if (one < other && one->geometry().intersects(other->geometry())) {
                problems << QStringLiteral("%1 (%2) overlaps %3 (%4)")
                                .arg(NameOf(*one), Text(one->geometry()), NameOf(*other),
                                     Text(other->geometry()));
            }
        }
    }
    return problems;
}

/// Whether \a widget is what a scroll area moves about.
bool IsScrolled(const QWidget& widget)
{
    const auto* area = qobject_cast<const QScrollArea*>(widget.parentWidget()->parentWidget());
    return area != nullptr && area->widget() == &widget
        && area->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff
        && area->verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
}

QStringList ReachesOut(const QWidget& widget)
{
    const QWidget* parent = widget.parentWidget();
    if (widget.isWindow() || IsScrolled(widget)) {
        return {};
    }
    const int lost = LostToRounding();
    if (parent->rect().adjusted(0, 0, lost, lost).contains(widget.geometry())) {
        return {};
    }
    return {
        QStringLiteral("%1 (%2) reaches out of %3 (%4)")
            .arg(NameOf(widget), Text(widget.geometry()), NameOf(*parent), Text(parent->size()))};
}

std::vector<QScrollArea*> ScrollAreasAround(const QWidget& widget)
{
    std::vector<QScrollArea*> areas;
    for (QWidget* parent = widget.parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) {
            areas.push_back(area);
        }
    }
    return areas;
}

/// Scrolls \a area as far as \a widget is from the start of the view.
void ScrollTo(QScrollArea& area, const QWidget& widget)
{
    const QRect view = area.viewport()->rect();
    const QRect place(widget.mapTo(area.viewport(), QPoint(0, 0)), widget.size());
    const QPoint fromStart = QStyle::visualRect(area.layoutDirection(), view, place).topLeft();
    auto* sideways = area.horizontalScrollBar();
    auto* down = area.verticalScrollBar();
    sideways->setValue(sideways->value() + fromStart.x());
    down->setValue(down->value() + fromStart.y());
}

/// Whether the focus stops at \a widget itself, not at one that has taken it in.
bool IsStopOfTab(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && widget.focusProxy() == nullptr
        && qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) == nullptr
        && (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

} // namespace

QStringList LayoutProblems()
{
    QStringList problems;
    const auto widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets) {
        if (widget->isVisible()) {
            problems << ClippedTexts(*widget) << Overlaps(*widget) << ReachesOut(*widget);
        }
    }
    return problems;
}

QStringList HiddenPart(const QWidget& control)
{
    QSize needed = control.size();
    for (const QScrollArea* area : ScrollAreasAround(control)) {
        const QSize view = area->viewport()->size();
        needed = {needed.width() > view.width() ? view.width() / 2 : needed.width(),
                  needed.height() > view.height() ? view.height() / 2 : needed.height()};
    }
    const QSize seen = control.visibleRegion().boundingRect().size();
    const QSize room = seen + QSize(LostToRounding(), LostToRounding());
    return needed.boundedTo(room) == needed
        ? QStringList()
        : QStringList(QStringLiteral("%1: %2 can be seen, not %3")
                          .arg(NameOf(control), Text(seen), Text(needed)));
}

QStringList UnreachableControls(const QWidget& window)
{
    QStringList problems;
    const auto controls = window.findChildren<QWidget*>();
    for (const QWidget* control : controls) {
        if (!IsStopOfTab(*control)) {
            continue;
        }
        for (QScrollArea* area : ScrollAreasAround(*control)) {
            ScrollTo(*area, *control);
        }
        problems << HiddenPart(*control);
    }
    return problems;
}

} // namespace Zentor::Tests
