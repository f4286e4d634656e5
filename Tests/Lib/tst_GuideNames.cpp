// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QMetaProperty>

#include "Boxes.h"
#include "Panel.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

/// Rows of a table by the name in their first column.
using Rows = QMap<QString, QString>;

/// The sub-styles that objects were given, as in "Hover, Normal".
QMap<QString, QStringList> s_styles;

QString Guide()
{
    QFile file(QStringLiteral(GUIDE_PATH));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The tables of the guide below \a heading, without the other columns than the first \a
/// columnCount and without code marks: two rows of one name are one problem.
Rows TableBelow(const QString& heading, int columnCount)
{
    const QString text = Guide().section("\n" + heading + "\n", 1).section("\n#", 0, 0);
    Rows rows;
    for (const QString& line : text.split('\n')) {
        if (line.startsWith("| `")) {
            const QStringList cells = QString(line).remove('`').split(" | ");
            const QString name = QString(cells.first()).remove("| ");
            const QString rest = QStringList(cells.mid(1, columnCount - 1)).join(" in ");
            rows[name] = rows.contains(name) ? QStringLiteral("two rows") : rest;
        }
    }
    return rows;
}

/// What is in one of the two only, or differs, in words.
QString Difference(const Rows& panel, const Rows& guide)
{
    QStringList words;
    for (auto row = panel.begin(); row != panel.end(); ++row) {
        if (guide.value(row.key()) != row.value()) {
            words << "the panel has: " + row.key() + " (" + row.value() + ")";
        }
    }
    for (auto row = guide.begin(); row != guide.end(); ++row) {
        if (panel.value(row.key()) != row.value()) {
            words << "the guide has: " + row.key() + " (" + row.value() + ")";
        }
    }
    return words.join('\n');
}

/// An object that is Qt's own, such as the line edit within a time edit.
bool IsQts(const QObject& object)
{
    return object.objectName().isEmpty() || object.objectName().startsWith("qt_");
}

QString ClassOf(const QObject& object)
{
    return QString::fromLatin1(object.metaObject()->className()).section("::", -1);
}

QString ParentOf(const QObject& object, const QObject* panel)
{
    const QObject* parent = object.parent();
    while (parent != panel && IsQts(*parent)) {
        parent = parent->parent();
    }
    return parent == panel ? QStringLiteral("the panel") : parent->objectName();
}

/// Adds all named objects of \a panel to \a rows.
void AddObjects(const QObject* panel, Rows& rows)
{
    for (const auto* object : panel->findChildren<QObject*>()) {
        if (!IsQts(*object)) {
            rows.insert(object->objectName(), ClassOf(*object) + " in " + ParentOf(*object, panel));
        }
    }
}

/// Takes the form through all of its errors.
void MakeErrors(const Panel& panel, const QString& takenTitle)
{
    panel.FillForm("A new one", QTime(12, 0));
    panel.Name()->setText(" ");
    panel.Name()->setText(takenTitle);
    panel.FillForm("A new one", QTime(10, 0));
    panel.StartTime()->setTime(QTime(12, 0));
}

} // namespace
} // namespace Zentor::Tests

// Stands in for the host's.
void Zentor::Util::ApplyWidgetStyle(QWidget* widget, const QString& style, const char* property)
{
    const QString value = property == QByteArray("SubStyle") ? style : property + ('=' + style);
    QStringList& known = Tests::s_styles[widget->objectName()];
    if (!known.contains(value)) {
        known << value;
        known.sort();
    }
}

namespace Zentor::Tests {

/// The guide's lists of names, which style sheets and tests of integrators rely on, are those of
/// the panel.
class tst_GuideNames : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WidgetTest::init();
        s_styles.clear();
    }

    void listsEveryObject()
    {
        Panel panel;
        Rows objects;
        AddObjects(panel.widget, objects);
        panel.window->show();
        panel.RestoreScheduled({"A", "B", "C"});
        panel.FillForm("D", QTime(14, 0));
        AddObjects(panel.widget, objects);
        const Rows guide = TableBelow("### Objects", 3);
        QVERIFY2(Difference(objects, guide).isEmpty(), qPrintable(Difference(objects, guide)));
        QVERIFY(objects.size() > 50);
    }

    void listsEveryState()
    {
        Panel panel;
        panel.window->show();
        panel.RestoreScheduled({"A", "B"});
        for (const QEvent::Type type : {QEvent::Enter, QEvent::Leave}) {
            QEvent event(type);
            QCoreApplication::sendEvent(panel.Find<QWidget>(Desktop::PanelPart::Row), &event);
        }
        MakeErrors(panel, "A");
        ExpectedBox box(QMessageBox::Ok);
        panel.Limited()->click();
        QVERIFY(box.Came());
        panel.None()->click();

        Rows states;
        for (auto style = s_styles.begin(); style != s_styles.end(); ++style) {
            states.insert(style.key(), style.value().join(", "));
        }
        const Rows guide = TableBelow("### States", 2);
        QVERIFY2(Difference(states, guide).isEmpty(), qPrintable(Difference(states, guide)));
    }

    void listsEveryProperty()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        Rows properties;
        for (const auto* widget : panel.window->findChildren<QWidget*>()) {
            // The classes of the library and of the host's contract.
            for (const QMetaObject* meta = widget->metaObject();
                 QByteArray(meta->className()).startsWith("Zentor::"); meta = meta->superClass()) {
                for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
                    const QMetaProperty property = meta->property(i);
                    properties.insert(property.name(),
                                      ClassOf(*widget) + " in " + property.typeName() + " in "
                                          + property.read(widget).toString());
                }
            }
            for (const QByteArray& name : widget->dynamicPropertyNames()) {
                QVERIFY2(name.startsWith("_q_"), name);
            }
        }
        const Rows guide = TableBelow("### Properties", 4);
        QVERIFY2(Difference(properties, guide).isEmpty(),
                 qPrintable(Difference(properties, guide)));
    }

    void namesTheBox()
    {
        Panel panel;
        panel.RestoreScheduled({"A"});
        panel.Add()->click();
        QString name;
        ExpectedBox box([&](QMessageBox& question) {
            name = question.objectName();
            question.reject();
        });
        panel.Back()->click();
        QVERIFY(box.Came());
        QVERIFY(Guide().contains("`" + name + "`"));
    }
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_GuideNames)

#include "tst_GuideNames.moc"
