// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QDirIterator>
#include <QLayout>
#include <QMessageBox>
#include <QPointer>
#include <QSet>

#include "Contrast.h"
#include "HostInterfaces.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

Q_DECLARE_METATYPE(Zentor::Desktop::Theme)

namespace Zentor::Tests {
namespace {

using Desktop::Theme;

QString ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString SheetTemplate()
{
    return ReadFile(QStringLiteral(":/styles/px-scheduler.qss"));
}

QStringList Files(const QString& folder)
{
    QStringList files;
    QDirIterator iterator(folder, QDir::Files);
    while (iterator.hasNext()) {
        files << iterator.next();
    }
    return files;
}

/// One block of the sheet: what stands before its braces, and its declarations by property.
struct Rule {
    QString selectors;
    QMap<QString, QString> declarations;
};

QList<Rule> RulesOf(QString sheet)
{
    sheet.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                    QRegularExpression::DotMatchesEverythingOption));
    static const QRegularExpression block(QStringLiteral("([^{}]+)\\{([^}]*)\\}"));
    QList<Rule> rules;
    auto blocks = block.globalMatch(sheet);
    while (blocks.hasNext()) {
        const auto match = blocks.next();
        Rule rule;
        rule.selectors = match.captured(1).simplified();
        const auto declarations = match.captured(2).split(QLatin1Char(';'));
        for (const QString& declaration : declarations) {
            const QString value = declaration.section(QLatin1Char(':'), 1).trimmed();
            rule.declarations.insert(declaration.section(QLatin1Char(':'), 0, 0).trimmed(), value);
        }
        rules << rule;
    }
    return rules;
}

/// Texts and what they lie on; a row for each place where the two come from different rules.
const std::pair<const char*, const char*> TextOnGround[] = {
    {"text", "window"},
    {"text", "sidebar"},
    {"text", "surface"},
    {"text", "surfaceHover"},
    {"text", "surfacePressed"},
    {"text", "dangerSoft"},
    {"textMuted", "window"},
    {"textMuted", "surface"},
    {"accentText", "accentSoft"},
    {"accentText", "surface"},
    {"onAccent", "accent"},
    {"onAccent", "accentHover"},
    {"onAccent", "accentPressed"},
    {"danger", "window"},
    {"danger", "surface"},
    {"onTip", "tip"},
};

/// Lines and shapes that have to be told from what they lie on.
const std::pair<const char*, const char*> ShapeOnGround[] = {
    {"border", "surface"}, {"border", "window"},     {"borderHover", "surface"},
    {"accent", "surface"}, {"accent", "accentSoft"}, {"accent", "dangerSoft"},
    {"danger", "surface"}, {"danger", "dangerSoft"},
};

void AddThemes()
{
    QTest::addColumn<Theme>("theme");
    QTest::newRow("light") << Theme::Light;
    QTest::newRow("dark") << Theme::Dark;
}

} // namespace

class tst_Theme : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Desktop::RegisterResources(); }

    void fillsNames()
    {
        const Desktop::ColorTable colors{{QStringLiteral("ink"), QStringLiteral("#000000")},
                                         {QStringLiteral("inkSoft"), QStringLiteral("#444444")},
                                         {QStringLiteral("paper"), QStringLiteral("#ffffff")}};
        const auto sheet = Desktop::FillSheet(
            QStringLiteral("a { color: @inkSoft@; background: @ink@@unknown@ } @ unknown@"),
            colors);
        QCOMPARE(sheet.text,
                 QStringLiteral("a { color: #444444; background: #000000@unknown@ } @ unknown@"));
        QCOMPARE(sheet.unknownNames, QStringList{QStringLiteral("unknown")});
        QCOMPARE(sheet.unusedNames, QStringList{QStringLiteral("paper")});
    }

    void parsesColors()
    {
        QStringList problems;
        const auto colors = Desktop::ParseColors(
            QStringLiteral("// comment\n\nink: #00aaff\nink: #000000\nblue\nred: #12345\n"
                           "a-b: #123456\nUP: #ABCDEF"),
            &problems);
        QCOMPARE(colors, (Desktop::ColorTable{{QStringLiteral("ink"), QStringLiteral("#00aaff")}}));
        QCOMPARE(problems,
                 (QStringList{QStringLiteral("ink: #000000"), QStringLiteral("blue"),
                              QStringLiteral("red: #12345"), QStringLiteral("a-b: #123456"),
                              QStringLiteral("UP: #ABCDEF")}));
    }

    void shipsCleanTables_data() { AddThemes(); }
    void shipsCleanTables()
    {
        QFETCH(Theme, theme);
        QStringList problems;
        Desktop::ParseColors(
            ReadFile(QStringLiteral(":/styles/%1.colors").arg(Desktop::ThemeName(theme))),
            &problems);
        QCOMPARE(problems, QStringList());
        QCOMPARE(Desktop::ColorsOf(theme).keys(), Desktop::ColorsOf(Theme::Light).keys());
    }

    void resolvesAndUsesEveryName_data() { AddThemes(); }
    void resolvesAndUsesEveryName()
    {
        QFETCH(Theme, theme);
        Desktop::ColorTable names = Desktop::ColorsOf(theme);
        names.insert(QStringLiteral("theme"), Desktop::ThemeName(theme));
        QString everything = SheetTemplate();
        const auto templates = Files(QStringLiteral(PX_ICON_TEMPLATES));
        QVERIFY(!templates.isEmpty());
        for (const QString& icon : templates) {
            everything += ReadFile(icon);
        }
        const auto filled = Desktop::FillSheet(everything, names);
        QCOMPARE(filled.unknownNames, QStringList());
        QCOMPARE(filled.unusedNames, QStringList());
        QVERIFY(!Desktop::StyleSheetOf(theme).contains(QLatin1Char('@')));
    }

    void findsEveryIconOfTheSheet_data() { AddThemes(); }
    void findsEveryIconOfTheSheet()
    {
        QFETCH(Theme, theme);
        const QString sheet = Desktop::StyleSheetOf(theme);
        static const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
        int count = 0;
        for (auto matches = url.globalMatch(sheet); matches.hasNext(); ++count) {
            const QString path = matches.next().captured(1);
            QVERIFY2(!QIcon(path).pixmap(16).isNull(), qPrintable(path));
        }
        QVERIFY(count > 10);
    }

    void paintsIconsInRealColors_data() { AddThemes(); }
    void paintsIconsInRealColors()
    {
        QFETCH(Theme, theme);
        const auto icons = Files(QStringLiteral(":/icons/%1").arg(Desktop::ThemeName(theme)));
        QCOMPARE(icons.size(), Files(QStringLiteral(PX_ICON_TEMPLATES)).size());
        for (const QString& icon : icons) {
            const QString text = ReadFile(icon);
            QVERIFY2(!text.contains(QLatin1Char('@')) && !text.contains(QLatin1String("=\"\"")),
                     qPrintable(icon));
        }
    }

    void spreadsNoIconThatIsParsedForEachTask_data() { AddThemes(); }
    void spreadsNoIconThatIsParsedForEachTask()
    {
        QFETCH(Theme, theme);
        int count = 0;
        const auto rules = RulesOf(Desktop::StyleSheetOf(theme));
        for (const Rule& rule : rules) {
            const QString image = rule.declarations.value(QStringLiteral("image"));
            if (image.isEmpty() || !rule.selectors.contains(QLatin1String("#deleteToolButton"))) {
                continue;
            }
            const QImage picture(image.mid(4).chopped(1));
            QVERIFY2(image.endsWith(QLatin1String(".png)")), qPrintable(image));
            // Sharp on a screen of four times the usual resolution.
            QCOMPARE(picture.size(), QSize(64, 64));
            ++count;
        }
        QCOMPARE(count, 2);
    }

    void isReadable_data() { AddThemes(); }
    void isReadable()
    {
        QFETCH(Theme, theme);
        const auto colors = Desktop::ColorsOf(theme);
        const auto color = [&](const char* name) {
            const QString text = colors.value(QLatin1String(name));
            return QColor(text.isEmpty() ? QStringLiteral("invalid") : text);
        };
        for (const auto& [text, ground] : TextOnGround) {
            QVERIFY2(Contrast(color(text), color(ground)) >= 4.5,
                     qPrintable(QStringLiteral("%1 on %2: %3")
                                    .arg(QLatin1String(text), QLatin1String(ground))
                                    .arg(Contrast(color(text), color(ground)))));
        }
        for (const auto& [shape, ground] : ShapeOnGround) {
            QVERIFY2(Contrast(color(shape), color(ground)) >= 3.0,
                     qPrintable(QStringLiteral("%1 on %2: %3")
                                    .arg(QLatin1String(shape), QLatin1String(ground))
                                    .arg(Contrast(color(shape), color(ground)))));
        }
    }

    void isReadableRuleByRule_data() { AddThemes(); }
    void isReadableRuleByRule()
    {
        QFETCH(Theme, theme);
        int compared = 0;
        const auto rules = RulesOf(Desktop::StyleSheetOf(theme));
        for (const Rule& rule : rules) {
            const QColor text(rule.declarations.value(QStringLiteral("color")));
            const QColor ground(rule.declarations.value(QStringLiteral("background")));
            // What is disabled may be faint.
            if (!text.isValid() || !ground.isValid() || ground.alpha() == 0
                || rule.selectors.contains(QLatin1String(":disabled"))) {
                continue;
            }
            ++compared;
            QVERIFY2(Contrast(text, ground) >= 4.5, qPrintable(rule.selectors));
        }
        QVERIFY(compared >= 8);
    }

    void isUnderstoodByQt_data() { AddThemes(); }
    void isUnderstoodByQt()
    {
        QFETCH(Theme, theme);
        // Qt reports what it cannot parse as a warning, which fails the test.
        Desktop::ApplyTheme(theme);
        const QWidget widget;
        widget.ensurePolished();
        QCOMPARE(Desktop::ThemeOf(QApplication::palette()), theme);
        qApp->setStyleSheet({});
    }

    /// It deletes its layout then.
    void changesUnderAnOpenBox()
    {
        Desktop::ApplyTheme(Theme::Light);
        Util::AlertBox box(Util::AlertBox::Question, QString(), QStringLiteral("Continue?"),
                           QMessageBox::Ok | QMessageBox::Cancel, nullptr, Qt::Dialog);
        box.show();
        const QPointer<QLayout> layout(box.layout());
        Desktop::ApplyTheme(Theme::Dark);
        QVERIFY(layout.isNull());
        QVERIFY(box.layout() != nullptr && box.layout()->isEnabled());
        qApp->setStyleSheet({});
    }

    void knowsItsNames()
    {
        QCOMPARE(Desktop::ThemeFromName(QStringLiteral("light"), Theme::Dark), Theme::Light);
        QCOMPARE(Desktop::ThemeFromName(QStringLiteral("dark"), Theme::Light), Theme::Dark);
        QCOMPARE(Desktop::ThemeFromName(QString(), Theme::Dark), Theme::Dark);
        QCOMPARE(Desktop::ThemeFromName(QStringLiteral("blue"), Theme::Light), Theme::Light);
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Theme)

#include "tst_Theme.moc"
