// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

#include "AppScenes.h"
#include "Languages.h"
#include "LayoutProblems.h"
#include "PageRow.h"
#include "PanelParts.h"
#include "Resources.h"
#include "Theme.h"
#include "WidgetTest.h"

namespace Zentor::Tests {
namespace {

constexpr QSize SmallSize(640, 480);

const QString& NameEdit = Desktop::PanelPart::NameField;
const QString& DateEdit = Desktop::PanelPart::DateField;
const QString& StartEdit = Desktop::PanelPart::StartField;
const QString& AddButton = Desktop::PanelPart::AddButton;

/// A mode's button and its caption, from the top of the panel down.
const std::pair<QString, QString> Modes[] = {
    {Desktop::PanelPart::OffModeButton, "disableScheduledCaptureLabel"},
    {Desktop::PanelPart::LimitedModeButton, "limitedCaptureDurationLabel"},
    {Desktop::PanelPart::ScheduledModeButton, "scheduledCaptureLabel"}};

/// Where named widgets are in their window.
using Places = QMap<QString, QRect>;

QRect PlaceOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

Places PlacesIn(const QWidget& parent)
{
    Places places;
    const auto children = parent.findChildren<QWidget*>();
    for (const QWidget* child : children) {
        if (child->isVisible() && !child->objectName().isEmpty()) {
            places.insert(child->objectName(), PlaceOf(*child));
        }
    }
    return places;
}

/// What is not where it was \a before, now that the page has been laid out anew.
QString MovedSince(const Places& before, const QWidget& page)
{
    Settle();
    const Places after = PlacesIn(page);
    QStringList moved;
    for (auto place = before.begin(); place != before.end(); ++place) {
        if (after.value(place.key()) != place.value()) {
            moved << place.key();
        }
    }
    return moved.join(QLatin1Char(' '));
}

/// Where the part of a mode starts in the window, from the side on which lines start.
QPoint StartOf(const AppWindow& app, const QString& objectName)
{
    const QWidget& part = *app.Find(objectName);
    return QStyle::visualRect(part.layoutDirection(), app.window->rect(), PlaceOf(part)).topLeft();
}

QMap<QString, QPoint> StartsOfModes(const AppWindow& app)
{
    QMap<QString, QPoint> starts;
    for (const auto& [button, caption] : Modes) {
        starts[button] = StartOf(app, button);
        starts[caption] = StartOf(app, caption);
    }
    return starts;
}

QStringList SidewaysScrolling(const AppWindow& app)
{
    QStringList problems;
    const auto areas = app.window->findChildren<QScrollArea*>();
    for (const QScrollArea* area : areas) {
        if (area->horizontalScrollBar()->isVisible()) {
            problems << area->objectName() + QStringLiteral(" scrolls sideways");
        }
    }
    return problems;
}

/// What the focus is on but cannot be seen, on its way through the whole window.
QStringList HiddenStops(const AppWindow& app)
{
    Settle();
    app.Focus("pageList");
    QStringList hidden;
    int stops = 0;
    do {
        app.Press(Qt::Key_Tab);
        hidden << HiddenPart(*app.window->focusWidget());
        ++stops;
    } while (!app.PageList()->hasFocus() && stops < 100);
    return hidden;
}

/// The problems of all scenes, each with the scene that it is found in first.
class Findings {
public:
    void Add(const QString& scene, const QStringList& problems)
    {
        for (const QString& problem : problems) {
            if (!m_known.contains(problem)) {
                m_known << problem;
                m_lines << QStringLiteral("%1: %2").arg(scene, problem);
            }
        }
    }
    QString Text() const { return m_lines.join(QLatin1Char('\n')); }

private:
    QStringList m_known;
    QStringList m_lines;
};

} // namespace

class tst_Layout : public WidgetTest {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Desktop::RegisterResources();
        Desktop::ApplyTheme(Desktop::Theme::Light);
    }

    void init()
    {
        WidgetTest::init();
        QFETCH(QString, language);
        m_translations.Use(language);
    }

    void cleanup()
    {
        m_translations.Use(QStringLiteral("en"));
        Settle();
        QLocale::setDefault(QLocale::c());
        WidgetTest::cleanup();
    }

    void showsEverythingWhole_data() { AddRows({QSize(), SmallSize}); }

    void showsEverythingWhole()
    {
        QFETCH(QSize, size);
        Findings findings;
        VisitAppScenes(size, [&](const QString& scene, const AppWindow& app) {
            findings.Add(scene, LayoutProblems());
            findings.Add(scene, SidewaysScrolling(app));
            if (!size.isEmpty() && QApplication::activePopupWidget() == nullptr) {
                findings.Add(scene, UnreachableControls(*app.window));
            }
        });
        QVERIFY2(findings.Text().isEmpty(), qPrintable(findings.Text()));
    }

    void showsWhatTabReaches_data() { AddRows({SmallSize}); }

    void showsWhatTabReaches()
    {
        const AppWindow app(7);
        Open(app);
        for (int page = app.PageList()->count() - 1; page >= 0; --page) {
            app.PageList()->setCurrentRow(page);
            QCOMPARE(HiddenStops(app).join(QLatin1Char('\n')), QString());
        }
        app.Button(AddButton)->click();
        QCOMPARE(HiddenStops(app).join(QLatin1Char('\n')), QString());
    }

    void keepsModesInPlace_data() { AddRows({QSize(), SmallSize}); }

    void keepsModesInPlace()
    {
        const AppWindow app;
        Open(app);
        const auto before = StartsOfModes(app);
        QStringList moved;
        for (const auto& chosen : Modes) {
            app.Button(chosen.first)->click();
            Settle();
            const auto after = StartsOfModes(app);
            bool isBelow = false;
            for (const auto& [button, caption] : Modes) {
                for (const QString& part : {button, caption}) {
                    const QPoint way = after[part] - before[part];
                    // Below the chosen mode stand its values.
                    if (way.x() != 0 || (way.y() != 0 && !isBelow)) {
                        moved << part;
                    }
                }
                isBelow = isBelow || button == chosen.first;
            }
        }
        QCOMPARE(moved.join(QLatin1Char(' ')), QString());
    }

    void keepsTheFormInPlace_data() { AddRows({QSize(), SmallSize}); }

    void keepsTheFormInPlace()
    {
        const AppWindow app(1);
        Open(app);
        app.Button(AddButton)->click();
        Settle();
        const QWidget& form = *app.Find(Desktop::PanelPart::Form);
        const Places before = PlacesIn(form);
        auto* name = app.Find<QLineEdit>(NameEdit);
        const QString accepted = name->text();
        for (const QString& refused : {QString(), QStringLiteral("Task 1")}) {
            name->setText(refused);
            QVERIFY(IsMarked(*name));
            QCOMPARE(MovedSince(before, form), QString());
            name->setText(accepted);
            QCOMPARE(MovedSince(before, form), QString());
        }
        auto* start = app.Find<QDateTimeEdit>(StartEdit);
        app.Find<QDateTimeEdit>(DateEdit)->setDate(QDate(2030, 3, 1));
        start->setTime(QTime(1, 10));
        QVERIFY(IsMarked(*start));
        QCOMPARE(MovedSince(before, form), QString());
        start->setTime(QTime(20, 0));
        QVERIFY(!IsMarked(*start));
        QCOMPARE(MovedSince(before, form), QString());
    }

    void keepsTheFilesPageInPlace_data() { AddRows({QSize(), SmallSize}); }

    void keepsTheFilesPageInPlace()
    {
        const AppWindow app;
        Open(app);
        app.PageList()->setCurrentRow(PageRow::Files);
        Settle();
        const QWidget& page = *app.Find("filesCard");
        Places before = PlacesIn(page);
        // One of the two lines below the field comes when the other goes.
        before.remove(QStringLiteral("freeSpaceLabel"));
        auto* folder = app.Find<QLineEdit>("resultsFolderEdit");
        for (const auto* text : {"recordings", "/etc/passwd", "/proc/sys"}) {
            Enter(*folder, QLatin1String(text));
            QVERIFY(IsMarked(*folder));
            QCOMPARE(MovedSince(before, page), QString());
            Enter(*folder, app.folder.path());
            QVERIFY(!IsMarked(*folder));
            QCOMPARE(MovedSince(before, page), QString());
        }
    }

private:
    /// A row for each language in each of \a sizes; the empty size is the one of a new window.
    static void AddRows(const QVector<QSize>& sizes)
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QSize>("size");
        const auto codes = Desktop::LanguageCodes();
        for (const QString& code : codes) {
            for (const QSize& size : sizes) {
                const char* name = size.isEmpty() ? "new window" : "small window";
                QTest::addRow("%s, %s", qPrintable(code), name) << code << size;
            }
        }
    }

    static bool IsMarked(const QWidget& field)
    {
        return field.property("SubStyle") == QLatin1String("Invalid");
    }

    static void Enter(QLineEdit& field, const QString& text)
    {
        field.setText(text);
        Q_EMIT field.editingFinished();
    }

    void Open(const AppWindow& app)
    {
        QFETCH(QSize, size);
        if (!size.isEmpty()) {
            app.window->resize(size);
        }
        QVERIFY(app.Show());
        Settle();
    }

    Desktop::Translations m_translations;
};

} // namespace Zentor::Tests

SCHEDULER_TEST_MAIN(Zentor::Tests::tst_Layout)

#include "tst_Layout.moc"
