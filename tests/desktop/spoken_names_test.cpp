#include "desktop/shell/spoken_names.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/compose/jobs_window.h"
#include "desktop/course/course_editor.h"
#include "desktop/desktop.h"
#include "desktop/folder/rename_films_dialog.h"
#include "desktop/help/guide_window.h"
#include "desktop/page/phone_page_dialog.h"
#include "desktop/shell/focus_edge.h"
#include "desktop/shell/login_dialog.h"
#include "desktop/shell/settings_window.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tool_window.h"
#include "desktop/steps/first_steps.h"
#include "desktop/steps/steps_box.h"
#include "desktop/tools.h"
#include "desktop/update/offer_dialog.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

/// Who hears the program instead of seeing it is told what each part is.
namespace kavela::test {
namespace {

class SpokenNamesTest : public ::testing::Test {
protected:
    SpokenNamesTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setChoice([](const Alert&, const QStringList&) { return -1; });
        QAccessible::setActive(true);
    }
    ~SpokenNamesTest() override { QAccessible::setActive(false); }

    /// The parts on the screen that the keyboard goes to and that say nothing of what they are.
    static QStringList silentParts(const QWidget& window) {
        QStringList silent;
        for (QWidget* const part : window.findChildren<QWidget*>()) {
            const bool isNamedByItsContent =
                qobject_cast<QMenuBar*>(part) || qobject_cast<QTabBar*>(part);
            if (part->window() != &window || !part->isVisible() || part->focusProxy() ||
                part->focusPolicy() == Qt::NoFocus || isNamedByItsContent)
                continue;
            const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(part);
            const bool isOnlyScrolled = qobject_cast<QScrollArea*>(part);
            if (!spoken || spoken->text(QAccessible::Name).isEmpty() ||
                (spoken->role() == QAccessible::Client && !isOnlyScrolled))
                silent.append(QString(part->metaObject()->className()) + ' ' + part->objectName());
        }
        return silent;
    }

    /// On every page.
    static QStringList silentPartsOf(QWidget& window) {
        QApplication::processEvents();
        QStringList silent = silentParts(window);
        for (QTabWidget* const tabs : window.findChildren<QTabWidget*>())
            for (int page = 0; page < tabs->count(); ++page) {
                tabs->setCurrentIndex(page);
                QApplication::processEvents();
                silent += silentParts(window);
            }
        silent.removeDuplicates();
        return silent;
    }

    /// Those that the keyboard goes to. The edge itself, which comes and goes, is none of them.
    static QList<QWidget*> paintedParts(const QWidget& window) {
        QList<QWidget*> parts;
        for (QWidget* const part : window.findChildren<QWidget*>())
            if (part->window() == &window && part->focusPolicy() != Qt::NoFocus &&
                !part->focusProxy() && desktop::isPainted(*part) && part->isEnabled() &&
                !part->visibleRegion().isEmpty())
                parts.append(part);
        return parts;
    }

    static QString example(const char* name) { return QString(KAVELA_EXAMPLES) + '/' + name; }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    desktop::Desktop m_program{m_workspace, desktop::Autosave(QString::fromStdString(
                                                (m_folder.path() / "kept").string()))};
};

TEST_F(SpokenNamesTest, AreThoseOfEveryPartOfEveryWindowWithAFile) {
    m_program.showHome();
    for (const char* const file :
         {"races/riverside_cup.kvx", "races/harbour_cross.kvx", "team/kavela_team.kvteam",
          "selection/spring_selection.kvsr", "planning/season.planning", "tests/form_tests.kvtest",
          "recordings/upstream_drill.kvb", "races/spring_opener_results.csv"})
        m_program.open(example(file));
    (void)m_program.openTaking(example("races/spring_opener.kvx"));
    m_program.openLosses({example("races/riverside_cup.kvx")});
    m_program.openPenalties({example("races/riverside_cup.kvx")});
    QTRY_COMPARE(m_program.windows().size(), 11);
    for (desktop::ToolWindow* const window : m_program.windows())
        EXPECT_EQ(silentPartsOf(*window).join('\n').toStdString(), "")
            << window->kind().toStdString();
    EXPECT_EQ(silentPartsOf(*m_program.front()).join('\n').toStdString(), "");
}

TEST_F(SpokenNamesTest, AreThoseOfEveryToolThatOpensWithoutAFile) {
    const desktop::Autosave kept(QString::fromStdString((m_folder.path() / "kept").string()));
    for (const desktop::ToolKind& tool : desktop::toolKinds()) {
        if (tool.choice != desktop::ToolKind::Choice::Document &&
            tool.choice != desktop::ToolKind::Choice::None)
            continue;
        const std::unique_ptr<desktop::ToolWindow> window(tool.make(m_workspace, kept));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        if (window->file())
            window->startNew(QString::fromStdString((m_folder.path() / "new").string()) + '.' +
                             tool.documents.suffix);
        window->show();
        EXPECT_EQ(silentPartsOf(*window).join('\n').toStdString(), "") << tool.kind.toStdString();
        window->hide();
    }
}

/// The page on which a window waits for its file: what most see of it first.
TEST_F(SpokenNamesTest, AreThoseOfEveryToolBeforeItsFileIsOpened) {
    const desktop::Autosave kept(QString::fromStdString((m_folder.path() / "kept").string()));
    for (const desktop::ToolKind& tool : desktop::toolKinds()) {
        const std::unique_ptr<desktop::ToolWindow> window(tool.make(m_workspace, kept));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        EXPECT_EQ(silentPartsOf(*window).join('\n').toStdString(), "") << tool.title.toStdString();
        window->hide();
    }
}

TEST_F(SpokenNamesTest, AreThoseOfEveryPartOfTheDialogs) {
    infodata031 race;
    race.gates = 4;
    race.upGates = {2};
    desktop::CourseEditor course(race, m_workspace, nullptr);
    desktop::SettingsWindow settings(m_workspace);
    desktop::GuideWindow guide(m_workspace);
    desktop::LoginDialog login("films.example.org", std::nullopt, nullptr);
    desktop::PhonePageDialog page({{{"ada", "Ada Brook", "K1W", {"a.kvx"}}}, "ada", {}}, nullptr);
    ListedFilm film;
    film.path = "/films/a.mp4";
    film.names = {"Ada Brook"};
    desktop::RenameFilmsDialog rename({film}, {"a.mp4"}, "{name}", nullptr);
    for (QWidget* const window :
         std::initializer_list<QWidget*>{&course, &settings, &guide, &login, &page, &rename}) {
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        EXPECT_EQ(silentPartsOf(*window).join('\n').toStdString(), "")
            << window->metaObject()->className();
        window->hide();
    }
}

TEST_F(SpokenNamesTest, AreThoseOfTheListOfJobs) {
    desktop::JobsWindow& jobs = desktop::JobsWindow::showOf(m_workspace);
    EXPECT_EQ(silentPartsOf(jobs).join('\n').toStdString(), "");
    EXPECT_EQ(desktop::nameFromAround(jobs.table()), "Films being composed");
    jobs.close();
}

/// A tick is a sign that nobody hears.
TEST_F(SpokenNamesTest, TellWhichOfTheFirstStepsAreDone) {
    desktop::FirstSteps steps(m_workspace);
    desktop::StepsBox box(steps);
    box.show();
    EXPECT_EQ(silentPartsOf(box).join('\n').toStdString(), "");
    const auto saying = [&box](const char* beginning) {
        qsizetype count = 0;
        for (const QLabel* const line : box.findChildren<QLabel*>())
            count += line->accessibleName().startsWith(beginning) ? 1 : 0;
        return count;
    };
    EXPECT_EQ(saying("To do: "), desktop::FirstSteps::Count);
    steps.note(desktop::FirstSteps::Step::Why);
    EXPECT_EQ(saying("To do: "), desktop::FirstSteps::Count - 1);
    EXPECT_EQ(saying("Done: "), 1);
}

/// Wherever Tab leads, in every tool.
TEST_F(SpokenNamesTest, GoWithAnEdgeOnEveryPaintedPartOfEveryTool) {
    const desktop::Autosave kept(QString::fromStdString((m_folder.path() / "kept").string()));
    infodata031 race;
    race.gates = 4;
    std::vector<std::unique_ptr<QWidget>> windows;
    windows.push_back(std::make_unique<desktop::CourseEditor>(race, m_workspace, nullptr));
    for (const desktop::ToolKind& tool : desktop::toolKinds())
        windows.emplace_back(tool.make(m_workspace, kept));
    int painted = 0;
    for (const auto& window : windows) {
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
        for (QWidget* const part : paintedParts(*window)) {
            part->setFocus();
            if (!part->hasFocus())
                continue; // it hands it on to another part
            ++painted;
            const QImage with = part->grab().toImage();
            EXPECT_EQ(with.pixelColor(0, with.height() / 2),
                      part->palette().color(QPalette::Highlight))
                << part->metaObject()->className();
        }
        window->hide();
    }
    EXPECT_GT(painted, 0);
}

/// A painted part shows nothing of the focus by itself.
TEST_F(SpokenNamesTest, GoWithAnEdgeAroundThePaintedPartThatHasTheFocus) {
    m_program.openPenalties({example("races/riverside_cup.kvx")});
    ASSERT_EQ(m_program.windows().size(), 1);
    desktop::ToolWindow* const window = m_program.windows().constFirst();
    QApplication::setActiveWindow(window);
    desktop::ChartPlot* plot = nullptr;
    QTRY_VERIFY([&] {
        for (auto* const each : window->findChildren<desktop::ChartPlot*>())
            if (each->isVisible())
                plot = each;
        return plot != nullptr;
    }());
    QApplication::processEvents();
    window->setFocus();
    const QImage without = plot->grab().toImage();
    plot->setFocus();
    ASSERT_TRUE(plot->hasFocus());
    QImage with = plot->grab().toImage();
    EXPECT_NE(with.pixelColor(0, with.height() / 2), without.pixelColor(0, with.height() / 2));
    plot->resize(plot->size() - QSize(40, 40));
    with = plot->grab().toImage();
    EXPECT_EQ(with.pixelColor(with.width() - 1, with.height() / 2),
              plot->palette().color(QPalette::Highlight))
        << "it follows the size";
    plot->clearFocus();
    EXPECT_NE(plot->grab().toImage().pixelColor(0, 40), plot->palette().color(QPalette::Highlight));
}

/// The nearest thing that is read as a title, and no long explanation.
TEST_F(SpokenNamesTest, ComeFromWhatStandsNearest) {
    QTabWidget tabs;
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    auto* const first = new QLineEdit;
    auto* const labelled = new QLineEdit;
    auto* const explained = new QLineEdit;
    auto* const asking = new QLineEdit;
    column->addWidget(first);
    column->addWidget(new QLabel("&Bib of the run:"));
    column->addWidget(labelled);
    column->addWidget(new QLabel(QString("Many words that explain. ").repeated(9)));
    column->addWidget(explained);
    column->addWidget(asking);
    asking->setPlaceholderText("Find an athlete…");
    tabs.addTab(page, "&Results");
    EXPECT_EQ(desktop::nameFromAround(*first), "Results");
    EXPECT_EQ(desktop::nameFromAround(*labelled), "Bib of the run");
    EXPECT_EQ(desktop::nameFromAround(*explained), "Results");
    EXPECT_EQ(desktop::nameFromAround(*asking), "Find an athlete");
}

} // namespace
} // namespace kavela::test
