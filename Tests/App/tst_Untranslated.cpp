// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>

#include "AppScenes.h"
#include "CommandLine.h"
#include "Languages.h"
#include "Resources.h"
#include "Theme.h"
#include "WideLetters.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// A text that a widget shows or tells, and what it is there.
struct ShownText {
    const char* role;
    QString text;
};
using ShownTexts = std::vector<ShownText>;

void AddItems(ShownTexts& texts, const QAbstractItemModel& model)
{
    const int itemRoles[] = {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole};
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            for (const int role : itemRoles) {
                texts.push_back({"item", model.index(row, column).data(role).toString()});
            }
        }
    }
}

void AddOwn(ShownTexts& texts, const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        texts.push_back({"text", label->text()});
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        texts.push_back({"text", button->text()});
    } else if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        AddItems(texts, *box->model());
    } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
        AddItems(texts, *view->model());
    } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        texts.push_back({"placeholder", edit->placeholderText()});
    } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        texts.push_back({"title", group->title()});
    } else if (const auto* bar = qobject_cast<const QStatusBar*>(&widget)) {
        texts.push_back({"message", bar->currentMessage()});
    } else if (const auto* message = qobject_cast<const QMessageBox*>(&widget)) {
        texts.push_back({"text", message->text()});
        texts.push_back({"informative text", message->informativeText()});
    }
}

void AddTold(ShownTexts& texts, QWidget& widget)
{
    texts.push_back({"tool tip", widget.toolTip()});
    texts.push_back({"status tip", widget.statusTip()});
    texts.push_back({"what is this", widget.whatsThis()});
    texts.push_back({"accessible name", widget.accessibleName()});
    texts.push_back({"accessible description", widget.accessibleDescription()});
    if (widget.isWindow()) {
        texts.push_back({"window title", widget.windowTitle()});
    }
    if (auto* told = QAccessible::queryAccessibleInterface(&widget)) {
        texts.push_back({"name for screen readers", told->text(QAccessible::Name)});
        texts.push_back({"description for screen readers", told->text(QAccessible::Description)});
        texts.push_back({"help for screen readers", told->text(QAccessible::Help)});
    }
}

/// \a text without what is not for reading: markup, and \a allowed.
QString ToTranslate(QString text, const QStringList& allowed)
{
    static const QRegularExpression markup(QStringLiteral("<[^>]*>|&[a-z]+;"));
    text.remove(markup);
    for (const QString& part : allowed) {
        text.remove(part);
    }
    return text;
}

bool IsTranslated(const QString& text, const QStringList& allowed)
{
    static const QRegularExpression plainLetter(QStringLiteral("[A-Za-z]"));
    return !ToTranslate(text, allowed).contains(plainLetter);
}

/// Each language is called what its speakers call it.
QStringList LanguageNames()
{
    QStringList names;
    const auto codes = Desktop::LanguageCodes();
    for (const QString& code : codes) {
        names << Desktop::LanguageName(code);
    }
    return names;
}

/// What is wrong with the texts of \a widget, one line for each text.
QStringList UntranslatedTexts(QWidget& widget, const QStringList& allowed)
{
    ShownTexts texts;
    AddOwn(texts, widget);
    AddTold(texts, widget);
    QStringList problems;
    for (const ShownText& shown : texts) {
        if (!IsTranslated(shown.text, allowed)) {
            problems << QStringLiteral("%1 \"%2\", %3: \"%4\"")
                            .arg(QString::fromLatin1(widget.metaObject()->className()),
                                 widget.objectName(), QLatin1String(shown.role), shown.text);
        }
    }
    return problems;
}

/// The same for everything that is on screen.
QStringList UntranslatedTexts(const QStringList& allowed)
{
    QStringList problems;
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->isVisible()) {
            problems << UntranslatedTexts(*widget, allowed);
        }
    }
    return problems;
}

using MakeWidget = QWidget* (*)(const QString& text);

template <typename Widget, auto set> QWidget* MakeWith(const QString& text)
{
    auto* widget = new Widget;
    (widget->*set)(text);
    return widget;
}

QWidget* MakeList(const QString& text)
{
    auto* list = new QListWidget;
    list->addItem(text);
    return list;
}

QWidget* MakeComboBox(const QString& text)
{
    auto* box = new QComboBox;
    box->addItem(text);
    return box;
}

QWidget* MakeStatusBar(const QString& text)
{
    auto* bar = new QStatusBar;
    bar->showMessage(text);
    return bar;
}

} // namespace
} // namespace Zentor::Tests

Q_DECLARE_METATYPE(Zentor::Tests::MakeWidget)

namespace Zentor::Tests {

class tst_Untranslated : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
        QVERIFY(QCoreApplication::installTranslator(&m_translator));
        // Names of months and of units come from the locale: here, none has Latin letters.
        QLocale::setDefault(QLocale(QLocale::Russian));
    }

    void findsWhatIsUntranslated_data()
    {
        QTest::addColumn<MakeWidget>("make");
        const std::pair<const char*, MakeWidget> rows[] = {
            {"label", MakeWith<QLabel, &QLabel::setText>},
            {"button", MakeWith<QPushButton, &QPushButton::setText>},
            {"combo box", MakeComboBox},
            {"list", MakeList},
            {"placeholder", MakeWith<QLineEdit, &QLineEdit::setPlaceholderText>},
            {"group", MakeWith<QGroupBox, &QGroupBox::setTitle>},
            {"status message", MakeStatusBar},
            {"box", MakeWith<QMessageBox, &QMessageBox::setText>},
            {"more in a box", MakeWith<QMessageBox, &QMessageBox::setInformativeText>},
            {"tool tip", MakeWith<QWidget, &QWidget::setToolTip>},
            {"status tip", MakeWith<QWidget, &QWidget::setStatusTip>},
            {"what is this", MakeWith<QWidget, &QWidget::setWhatsThis>},
            {"accessible name", MakeWith<QWidget, &QWidget::setAccessibleName>},
            {"accessible description", MakeWith<QWidget, &QWidget::setAccessibleDescription>},
            {"window title", MakeWith<QWidget, &QWidget::setWindowTitle>}};
        for (const auto& [name, make] : rows) {
            QTest::newRow(name) << make;
        }
    }

    void findsWhatIsUntranslated()
    {
        QFETCH(const MakeWidget, make);
        const std::unique_ptr<QWidget> widget(make(QStringLiteral("Ｃｌｏｓｅ the door")));
        QVERIFY(!UntranslatedTexts(*widget, {}).isEmpty());
        QCOMPARE(UntranslatedTexts(*widget, {QStringLiteral("the door")}), QStringList());
    }

    void showsNoUntranslatedText()
    {
        QStringList problems;
        VisitAppScenes({}, [&](const QString& scene, const AppWindow& app) {
            const auto found = UntranslatedTexts(LanguageNames() + TextsOfTheUser(app));
            for (const QString& problem : found) {
                problems << QStringLiteral("%1: %2").arg(scene, problem);
            }
        });
        QVERIFY2(problems.isEmpty(), qPrintable(QLatin1Char('\n') + problems.join('\n')));
    }

    void answersNothingUntranslated_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("help") << QStringList{"--help"};
        QTest::newRow("unknown option") << QStringList{"--7"};
        QTest::newRow("unknown options") << QStringList{"--7", "--8"};
        QTest::newRow("missing value") << QStringList{"--theme"};
        QTest::newRow("empty value") << QStringList{"--theme="};
        QTest::newRow("unexpected value") << QStringList{"--help=7"};
        QTest::newRow("unexpected argument") << QStringList{"7"};
        QTest::newRow("unknown theme") << QStringList{"--theme", "7"};
        QTest::newRow("unknown language") << QStringList{"--language", "7"};
    }

    void answersNothingUntranslated()
    {
        QFETCH(const QStringList, arguments);
        const QString program = QStringLiteral("px-scheduler");
        const auto line = Desktop::ParseCommandLine(QStringList{program} + arguments);
        QVERIFY(line.task != Desktop::CommandLine::Task::Run);
        // What is typed is the same in every language.
        const QStringList typed = QStringList{program, QCoreApplication::arguments().constFirst()}
            + Desktop::LanguageCodes();
        QString message = line.message;
        message.remove(QRegularExpression(QStringLiteral("--[a-z]+|-[hv]\\b")));
        QVERIFY2(IsTranslated(message, typed), qPrintable(line.message));
    }

private:
    WideLetters m_translator;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Untranslated)

#include "tst_Untranslated.moc"
