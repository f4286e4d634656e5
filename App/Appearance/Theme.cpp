// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include "Theme.h"

#include <QApplication>
#include <QFile>
#include <QLayout>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QStyleFactory>
#include <QWidget>

#include "Application/PlainStyle.h"

namespace Zentor::Desktop {
namespace {

/// While it lives, no layout of the application follows its widgets: they change one by one, and
/// all that counts is how they are in the end.
class LayoutPause {
public:
    LayoutPause()
    {
        const auto windows = QApplication::topLevelWidgets();
        for (const QWidget* window : windows) {
            const auto layouts = window->findChildren<QLayout*>();
            for (QLayout* layout : layouts) {
                if (layout->isEnabled()) {
                    layout->setEnabled(false);
                    m_paused << layout;
                }
            }
        }
    }
    ~LayoutPause()
    {
        for (const auto& layout : qAsConst(m_paused)) {
            // A message box makes itself a new one when its style changes.
            if (!layout.isNull()) {
                layout->setEnabled(true);
                layout->invalidate();
            }
        }
    }
    Q_DISABLE_COPY(LayoutPause)

private:
    QList<QPointer<QLayout>> m_paused;
};

QString ReadResource(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("The program lacks its resource %s", qUtf8Printable(path));
    }
    return QString::fromUtf8(file.readAll());
}

QStringList Sorted(const QSet<QString>& names)
{
    QStringList list(names.begin(), names.end());
    list.sort();
    return list;
}

} // namespace

Theme ThemeOf(const QPalette& palette)
{
    constexpr int middle = 128;
    return palette.color(QPalette::Window).lightness() < middle ? Theme::Dark : Theme::Light;
}

ColorTable ParseColors(const QString& text, QStringList* problems)
{
    static const QRegularExpression entry(QStringLiteral("^([A-Za-z]+): (#[0-9a-f]{6})$"));
    ColorTable colors;
    const auto lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.isEmpty() || line.startsWith(QLatin1String("//"))) {
            continue;
        }
        const auto match = entry.match(line);
        if (!match.hasMatch() || colors.contains(match.captured(1))) {
            *problems << line;
            continue;
        }
        colors.insert(match.captured(1), match.captured(2));
    }
    return colors;
}

ColorTable ColorsOf(Theme theme)
{
    QStringList problems;
    return ParseColors(ReadResource(QStringLiteral(":/styles/%1.colors").arg(ThemeName(theme))),
                       &problems);
}

FilledSheet FillSheet(const QString& sheetTemplate, const ColorTable& colors)
{
    static const QRegularExpression placeholder(QStringLiteral("@([A-Za-z]+)@"));
    QSet<QString> unknown;
    QSet<QString> used;
    FilledSheet sheet;
    decltype(sheetTemplate.size()) copied = 0;
    auto matches = placeholder.globalMatch(sheetTemplate);
    while (matches.hasNext()) {
        const auto match = matches.next();
        const QString name = match.captured(1);
        const bool known = colors.contains(name);
        (known ? used : unknown).insert(name);
        sheet.text += sheetTemplate.mid(copied, match.capturedStart() - copied);
        sheet.text += known ? colors.value(name) : match.captured();
        copied = match.capturedEnd();
    }
    sheet.text += sheetTemplate.mid(copied);
    const auto names = colors.keys();
    sheet.unknownNames = Sorted(unknown);
    sheet.unusedNames = Sorted(QSet<QString>(names.begin(), names.end()) - used);
    return sheet;
}

QString StyleSheetOf(Theme theme)
{
    ColorTable values = ColorsOf(theme);
    // Icons are painted in the colours of each theme, into a folder of its name.
    values.insert(QStringLiteral("theme"), ThemeName(theme));
    return App::PlainStyleSheet()
        + FillSheet(ReadResource(QStringLiteral(":/styles/px-scheduler.qss")), values).text;
}

QPalette PaletteOf(Theme theme)
{
    const ColorTable colors = ColorsOf(theme);
    const auto color = [&](const char* name) { return QColor(colors.value(QLatin1String(name))); };
    QPalette palette(color("surface"), color("window"));
    palette.setColor(QPalette::WindowText, color("text"));
    palette.setColor(QPalette::Base, color("surface"));
    palette.setColor(QPalette::AlternateBase, color("window"));
    palette.setColor(QPalette::Text, color("text"));
    palette.setColor(QPalette::PlaceholderText, color("textMuted"));
    palette.setColor(QPalette::Button, color("surface"));
    palette.setColor(QPalette::ButtonText, color("text"));
    palette.setColor(QPalette::Highlight, color("accent"));
    palette.setColor(QPalette::HighlightedText, color("onAccent"));
    palette.setColor(QPalette::ToolTipBase, color("tip"));
    palette.setColor(QPalette::ToolTipText, color("onTip"));
    palette.setColor(QPalette::Mid, color("border"));
    palette.setColor(QPalette::Link, color("accentText"));
    palette.setColor(QPalette::LinkVisited, color("accentText"));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, color("textDisabled"));
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, color("border"));
    return palette;
}

void ApplyTheme(Theme theme)
{
    if (qApp->styleSheet().isEmpty()) {
        // The same base style on every desktop, so that the style sheet meets what it was made for.
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }
    const LayoutPause pause;
    QApplication::setPalette(PaletteOf(theme));
    // Qt applies a sheet that replaces another to each widget once for each of its ancestors.
    qApp->setStyleSheet(QString());
    qApp->setStyleSheet(StyleSheetOf(theme));
    QApplication::setWindowIcon(ThemedIcon(QStringLiteral("px-scheduler")));
}

QIcon ThemedIcon(const QString& name)
{
    return QIcon(
        QStringLiteral(":/icons/%1/%2.svg").arg(ThemeName(ThemeOf(QApplication::palette())), name));
}

} // namespace Zentor::Desktop
