// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "PlainStyle.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <QApplication>
#include <QDate>
#include <QEvent>
#include <QFile>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPalette>
#include <QStyle>
#include <QTime>

#include "StyleColors.h"

// Q_INIT_RESOURCE has to stand outside every namespace. Without it, a static library's resource is
// not there.
static void InitializeResource()
{
    Q_INIT_RESOURCE(PXUiSchedulerStyle);
}

namespace Zentor::App {
namespace {

QString SheetTemplate()
{
    InitializeResource();
    QFile file(QStringLiteral(":/PXUiSchedulerWidgets/PlainStyle.qss"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("The library lacks its resource %s", qUtf8Printable(file.fileName()));
    }
    return QString::fromUtf8(file.readAll());
}

void Fill(QString& sheet, const char* name, const QString& value)
{
    sheet.replace(QLatin1Char('@') + QLatin1String(name) + QLatin1Char('@'), value);
}

void Fill(QString& sheet, const char* name, int value)
{
    Fill(sheet, name, QString::number(value));
}

/// The colours that no role of the palette stands for. Lists and fields lie on its Base, the rest
/// on its Window; roles such as Mid are not asked for, as dark palettes seldom set them.
void FillColors(QString& sheet)
{
    const QPalette palette = QApplication::palette();
    const QColor& base = palette.color(QPalette::Base);
    const QColor& window = palette.color(QPalette::Window);
    const QColor& text = palette.color(QPalette::Text);
    const QColor hover = Mixed(base, text, 0.07);
    const QColor red(0xd0, 0x21, 0x21);
    const QColor errorGround = Mixed(base, red, 0.12);
    const auto readable = [](const QColor& color, const QColor& ground, const QColor& other,
                             double contrast) {
        return Readable(Readable(color, ground, contrast), other, contrast).name();
    };

    Fill(sheet, "line", Mixed(base, text, 0.25).name());
    Fill(sheet, "hover", hover.name());
    Fill(sheet, "muted", readable(Mixed(base, text, 0.65), hover, window, TextContrast));
    Fill(sheet, "disabled", palette.color(QPalette::Disabled, QPalette::Text).name());
    Fill(sheet, "focus", readable(palette.color(QPalette::Highlight), base, window, ShapeContrast));
    Fill(sheet, "errorGround", errorGround.name());
    Fill(sheet, "error", readable(red, errorGround, hover, TextContrast));
}

/// The lengths of the list: columns follow from the font and, as the headers are translated, from
/// the language, rows from the font.
void FillListLengths(QString& sheet, const QFont& boldFont)
{
    constexpr int padding = 8;
    constexpr int border = 2;
    const QFontMetrics metrics(boldFont);
    const auto text = [](const char* source) {
        return QCoreApplication::translate("ScheduleRecordTableWidget", source);
    };
    int table = 0;
    const auto fillColumn = [&](const char* name, const QString& header, const QString& content) {
        const int width =
            1 + std::max(metrics.horizontalAdvance(header), metrics.horizontalAdvance(content));
        Fill(sheet, name, width);
        table += width + 2 * padding;
    };
    const QString clock = QTime(20, 0).toString(text("hh:mm:ss"));
    fillColumn("title", text("File name"), QString(22, QLatin1Char('n')));
    fillColumn("date", text("Date"), QDate(2000, 10, 20).toString(text("dd.MM.yyyy")));
    fillColumn("time", text("Time"), clock);
    fillColumn("duration", text("Duration"), clock);

    const int button = metrics.height();
    const int deleteColumn = button + 2 * border;
    const int row = deleteColumn + 6;
    Fill(sheet, "button", button);
    Fill(sheet, "cross", QFontInfo(boldFont).pixelSize() * 4 / 3);
    Fill(sheet, "deleteColumn", deleteColumn);
    Fill(sheet, "row", row);
    Fill(sheet, "rowInside", row - 1);
    Fill(sheet, "slot", row - 8);
    Fill(sheet, "halfRow", row / 2);
    Fill(sheet, "tableFrame", row + 2);
    Fill(sheet, "table",
         table + deleteColumn + 2 + QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

/// Keeps the plain style sheet of an application or a widget, which owns this, up to date.
class PlainStyle final : public QObject {
public:
    using Setter = std::function<void(const QString&)>;

    PlainStyle(QObject& target, Setter setSheet, QString ownSheet)
        : QObject(&target)
        , m_setSheet(std::move(setSheet))
        , m_ownSheet(std::move(ownSheet))
    {
        setObjectName(QStringLiteral("zentorPlainStyle"));
        Apply();
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == QCoreApplication::instance()) {
            switch (event->type()) {
            case QEvent::ApplicationPaletteChange:
            case QEvent::ApplicationFontChange:
            case QEvent::LanguageChange:
                Apply();
                break;
            default:
                break;
            }
        }
        return false;
    }

private:
    void Apply()
    {
        // The application tells of a change of its palette when it gets its first sheet.
        if (std::exchange(m_isApplying, true)) {
            return;
        }
        m_setSheet(PlainStyleSheet() + m_ownSheet);
        m_isApplying = false;
    }

    const Setter m_setSheet;
    const QString m_ownSheet;
    bool m_isApplying = false;
};

void Follow(QObject& target, PlainStyle::Setter setSheet, const QString& ownSheet)
{
    delete target.findChild<QObject*>(QStringLiteral("zentorPlainStyle"),
                                      Qt::FindDirectChildrenOnly);
    new PlainStyle(target, std::move(setSheet), ownSheet);
}

} // namespace

QString PlainStyleSheet()
{
    QString sheet = SheetTemplate();
    FillColors(sheet);
    QFont bold = QApplication::font();
    bold.setBold(true);
    FillListLengths(sheet, bold);
    const int question = QFontMetrics(bold).height();
    Fill(sheet, "question", question - 2);
    Fill(sheet, "questionRadius", question / 2 + 1);
    Fill(sheet, "radio", QApplication::style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth));
    return sheet;
}

void ApplyPlainStyle(QApplication& application, const QString& ownSheet)
{
    Follow(
        application, [&application](const QString& sheet) { application.setStyleSheet(sheet); },
        ownSheet);
}

void ApplyPlainStyle(QWidget& widget, const QString& ownSheet)
{
    Follow(
        widget, [&widget](const QString& sheet) { widget.setStyleSheet(sheet); }, ownSheet);
}

} // namespace Zentor::App
