#include "desktop/find/find_window.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/facts/failed_files.h"
#include "desktop/find/kept_queries.h"
#include "desktop/find/query_edit.h"
#include "desktop/find/query_fault.h"
#include "desktop/find/query_form.h"
#include "desktop/find/search_places.h"
#include "desktop/race/race_window.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "facts/found_text.h"
#include "facts/query_edit.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::desktop;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class FindWindowTest : public ::testing::Test {
protected:
    FindWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        fs::create_directories(races());
        for (const char* const name : {"riverside_cup.kvx", "spring_opener.kvx"})
            fs::copy_file(fs::path(KAVELA_EXAMPLES) / "races" / name, races() / name);
    }

    [[nodiscard]] fs::path races() const { return m_folder.path() / "races"; }
    [[nodiscard]] static QString text(const fs::path& path) {
        return QString::fromStdString(path.string());
    }

    /// A window that has read the races.
    std::unique_ptr<FindWindow> open() {
        auto window = std::make_unique<FindWindow>(m_workspace, m_folder.path() / "cache");
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
        window->searchAlso({text(races())});
        EXPECT_TRUE(QTest::qWaitFor([&] { return window->facts().facts()->files().size() == 2; }));
        return window;
    }

    /// Whether the rows of this query are shown, of the files as they were read last.
    [[nodiscard]] static bool isFound(FindWindow& window, const std::string& query) {
        const std::string wanted = textOf(parsedQuery(query));
        return QTest::qWaitFor([&] {
            const auto& found = window.results().found();
            return found && found->facts == window.facts().facts() &&
                   textOf(found->answer.query()) == wanted;
        });
    }
    [[nodiscard]] static bool asks(FindWindow& window, const std::string& query) {
        window.ask(QString::fromStdString(query));
        return isFound(window, query);
    }
    [[nodiscard]] static QString head(const FoundTable& part, int column) {
        return part.table().model()->headerData(column, Qt::Horizontal).toString();
    }
    static void type(FindWindow& window, const QString& keys) {
        window.query().setFocus();
        QTest::keyClicks(&window.query(), keys);
    }
    /// Types into a field and leaves it.
    static void set(FindWindow& window, const char* field, const QString& value) {
        auto* const choice = window.form().findChild<QComboBox*>(field);
        QLineEdit* const line =
            choice ? choice->lineEdit() : window.form().findChild<QLineEdit*>(field);
        ASSERT_TRUE(line) << field;
        line->setFocus();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, value);
        QTest::keyClick(line, Qt::Key_Return);
    }
    [[nodiscard]] static QString field(FindWindow& window, const char* name) {
        const auto* const choice = window.form().findChild<QComboBox*>(name);
        return choice ? choice->currentText() : window.form().findChild<QLineEdit*>(name)->text();
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{8e8}; }};
};

} // namespace

TEST_F(FindWindowTest, ATypedQueryIsAnsweredAndEachRowLeadsToItsRunAndFrame) {
    const auto window = open();
    std::vector<Place> places;
    QObject::connect(window.get(), &ToolWindow::placeRequested,
                     [&](const Place& place) { places.push_back(place); });
    type(*window, "gates up sort time");
    ASSERT_TRUE(isFound(*window, "gates up sort time")) << "typing rests";
    const Found& found = *window->results().found();
    const QueryAnswer expected = answer(*found.facts, parsedQuery("gates up sort time"));
    ASSERT_GT(expected.size(), 3U);
    const QAbstractItemModel& model = *window->results().table().model();
    EXPECT_EQ(static_cast<std::size_t>(model.rowCount()), expected.size());
    ASSERT_EQ(static_cast<std::size_t>(model.columnCount()), expected.columns().size());
    for (int i = 0; i < model.columnCount(); ++i)
        EXPECT_THAT(head(window->results(), i).toStdString(),
                    HasSubstr(expected.columns()[static_cast<std::size_t>(i)].name));
    EXPECT_THAT(window->status().toStdString(),
                testing::StartsWith(std::to_string(expected.size()) + " gates in "));

    QTest::keyClick(&window->query(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return window->focusWidget() == &window->results().table();
    })) << "Enter goes on to what was found";
    window->results().table().choose(2);
    QTest::keyClick(&window->results().table(), Qt::Key_Return);
    ASSERT_THAT(places, SizeIs(1));
    EXPECT_EQ(places[0], shownPlace(expected, 2));
    EXPECT_TRUE(places[0].gate);
    EXPECT_TRUE(fs::exists(places[0].file));

    ASSERT_TRUE(asks(*window, "runs athlete \"Nobody Atall\""));
    EXPECT_THAT(window->results().table().emptyText().toStdString(),
                HasSubstr("Nobody is called “Nobody Atall”"));
    EXPECT_FALSE(window->currentPlace());
    window->showRun();
    EXPECT_THAT(places, SizeIs(1));
}

TEST_F(FindWindowTest, FieldsFollowTheTextAndWriteIt) {
    const auto window = open();
    window->showSide(0);
    ASSERT_TRUE(asks(*window, "gates up left time<4 cat K1W text \"flat turn\" sort time down"));
    EXPECT_EQ(field(*window, "what"), "gates");
    EXPECT_EQ(field(*window, "type"), "up");
    EXPECT_EQ(field(*window, "direction"), "left");
    EXPECT_EQ(field(*window, "cat"), "K1W");
    EXPECT_EQ(field(*window, "most"), "<4");
    EXPECT_EQ(field(*window, "sort"), "time");
    set(*window, "direction", "right");
    EXPECT_EQ(window->query().text(),
              "gates up right time<4 cat K1W text \"flat turn\" sort time down");
    set(*window, "most", "3,5");
    set(*window, "cat", "");
    set(*window, "by", "athlete, cat");
    EXPECT_EQ(window->query().text(), "gates up right time<=3,5 text \"flat turn\" by athlete, cat")
        << "groups are not sorted by a time of single gates";
    set(*window, "athlete", "bell \"anna\"");
    EXPECT_THAT(window->query().text().toStdString(), HasSubstr("athlete bell athlete \"anna\""));
    EXPECT_EQ(field(*window, "athlete"), "bell anna") << "the same without the marks";

    const QString before = window->query().text();
    set(*window, "direction", "rihgt");
    EXPECT_TRUE(isRefused(*window->form().findChild<QWidget*>("direction")));
    EXPECT_EQ(window->query().text(), before);
    set(*window, "direction", "");
    window->form().findChild<QComboBox*>("what")->setCurrentIndex(static_cast<int>(What::Runs));
    EXPECT_THAT(window->query().text().toStdString(), testing::StartsWith("runs "));
    EXPECT_THAT(window->query().text().toStdString(), HasSubstr("text \"flat turn\""));
    EXPECT_THAT(window->query().text().toStdString(), Not(HasSubstr("up"))) << "runs have none";
    EXPECT_TRUE(window->fault().text().isEmpty());
    window->ask("runs nonsense");
    EXPECT_FALSE(window->form().isEnabled()) << "it cannot show that";
    window->ask("runs");
    EXPECT_TRUE(window->form().isEnabled());
    EXPECT_EQ(field(*window, "by"), "");
}

TEST_F(FindWindowTest, AWrongWordIsUnderlinedToldAndMended) {
    const auto window = open();
    ASSERT_TRUE(asks(*window, "gates left"));
    const auto before = window->results().found();
    window->query().selectAll();
    type(*window, "gates place \"K");
    window->query().insertPlainText(QStringLiteral("öln\" lefft time<4"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window->fault().text().isEmpty(); }));
    EXPECT_THAT(window->fault().text().toStdString(), HasSubstr("\"lefft\""));
    EXPECT_THAT(window->fault().text().toStdString(), HasSubstr("(at letter 20)"));
    ASSERT_THAT(window->query().extraSelections(), SizeIs(1));
    EXPECT_EQ(window->query().extraSelections()[0].cursor.selectedText(), "lefft");
    EXPECT_EQ(window->results().found(), before) << "what was found stays meanwhile";
    EXPECT_FALSE(window->canKeepQuery());
    QPushButton* mend = nullptr;
    for (QPushButton* const button : window->fault().findChildren<QPushButton*>())
        mend = button->text() == "left" ? button : mend;
    ASSERT_TRUE(mend);
    mend->click();
    EXPECT_EQ(window->query().text(), QStringLiteral("gates place \"Köln\" left time<4"));
    EXPECT_TRUE(window->fault().text().isEmpty());
    EXPECT_THAT(window->query().extraSelections(), IsEmpty());

    window->ask("runs athlete");
    EXPECT_THAT(window->query().extraSelections(), SizeIs(1)) << "what is missing has a place too";
    type(*window, "s");
    EXPECT_THAT(window->query().extraSelections(), IsEmpty()) << "it is being typed";
}

TEST_F(FindWindowTest, WordsThatMayStandAtTheCursorAreOffered) {
    const auto window = open();
    QueryEdit& edit = window->query();
    edit.setText("");
    type(*window, "ga");
    EXPECT_THAT(edit.offered(), Contains("gates"));
    QTest::keyClick(&edit, Qt::Key_Tab);
    EXPECT_EQ(edit.text(), "gates ");
    type(*window, "sty");
    EXPECT_THAT(edit.offered(), Contains("style"));
    type(*window, "le ");
    EXPECT_THAT(edit.offered(), IsEmpty()) << "nothing is begun";
    type(*window, "s");
    EXPECT_THAT(edit.offered(), Contains("sternPivot"));
    EXPECT_THAT(edit.offered(), Not(Contains("sort"))) << "a value comes here";
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_THAT(edit.offered(), IsEmpty());
    EXPECT_EQ(edit.text(), "gates style s");

    const auto facts = window->facts().facts();
    const QString crew = QString::fromStdString(std::string(facts->text(facts->runs()[0].crew)));
    ASSERT_TRUE(crew.contains(' '));
    edit.setText("runs athlete ");
    edit.moveCursor(QTextCursor::End);
    edit.insertPlainText(crew.section(' ', 1).left(3));
    QTest::keyClick(&edit, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_THAT(edit.offered(), Contains('"' + crew + '"')) << "by a later word of the name";
    edit.setText("runs by athlete, ");
    edit.moveCursor(QTextCursor::End);
    QTest::keyClick(&edit, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_THAT(edit.offered(), Contains("cat"));
    EXPECT_THAT(edit.offered(), Not(Contains("total"))) << "no group is made by it";
    QTest::keyClick(&edit, Qt::Key_Escape);
}

TEST_F(FindWindowTest, GroupsOpenToTheRowsThatTheyAreMadeOf) {
    const auto window = open();
    std::vector<Place> places;
    QObject::connect(window.get(), &ToolWindow::placeRequested,
                     [&](const Place& place) { places.push_back(place); });
    for (const std::string query :
         {"gates by athlete best time", "runs by cat, phase", "sections by section, type"}) {
        ASSERT_TRUE(asks(*window, query));
        ASSERT_GT(window->results().found()->answer.size(), 1U) << query;
        for (const int group : {1, 0}) {
            window->results().table().choose(group);
            const QueryAnswer& groups = window->results().found()->answer;
            const auto of = static_cast<std::size_t>(group);
            const auto count = groups.value(of, groups.query().by.size()).number;
            const QAbstractItemModel& rows = *window->members().table().model();
            EXPECT_TRUE(QTest::qWaitFor([&] { return rows.rowCount() == count; }))
                << query << ": " << rows.rowCount() << " of " << count;
        }
    }
    ASSERT_TRUE(asks(*window, "gates by athlete best time"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->members().current().has_value(); }));
    QTest::keyClick(&window->results().table(), Qt::Key_Return);
    EXPECT_TRUE(window->members().table().hasFocus());
    const Place best = shownPlace(window->results().found()->answer, 0);
    window->members().table().choose(0);
    QTest::keyClick(&window->members().table(), Qt::Key_Return);
    ASSERT_THAT(places, SizeIs(1));
    EXPECT_EQ(places[0], best) << "the best of the group stands first";
    ASSERT_TRUE(asks(*window, "runs"));
    EXPECT_FALSE(window->members().isVisible());
}

TEST_F(FindWindowTest, PlacesAndQueriesAreKeptAndWhatFailedIsTold) {
    const fs::path broken = races() / "broken.kvx";
    fs::rename(m_folder.add("broken.kvx", "no race"), broken);
    {
        const auto window = open();
        auto* const failed = window->places().findChild<QPushButton*>("failed");
        EXPECT_TRUE(failed->isVisible());
        failed->click();
        const auto* const list = window->findChild<FailedFiles*>();
        ASSERT_TRUE(list);
        const auto* const table = list->findChild<ColumnTable*>();
        ASSERT_EQ(table->model()->rowCount(), 1);
        EXPECT_EQ(table->model()->index(0, 0).data(), "broken.kvx");
        EXPECT_FALSE(table->model()->index(0, 1).data().toString().isEmpty());
        fs::remove(broken);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !failed->isVisible(); })) << "it is watched";

        ASSERT_TRUE(asks(*window, "runs cat K1M"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !window->queries().last().isEmpty(); }));
        window->keepQuery();
        EXPECT_FALSE(window->canKeepQuery()) << "it is kept";
        ASSERT_TRUE(asks(*window, "runs"));
    }
    const auto next = std::make_unique<FindWindow>(m_workspace, m_folder.path() / "cache");
    EXPECT_EQ(next->paths(), QStringList{text(fs::canonical(races()))});
    EXPECT_EQ(next->queries().kept(), QStringList{"runs cat K1M"});
    EXPECT_THAT(next->queries().last(), Contains("runs"));
    EXPECT_TRUE(isFound(*next, "runs")) << "as it was left";
    for (const QString& example : KeptQueries::examples())
        EXPECT_NO_THROW((void)parsedQuery(example.toStdString())) << example.toStdString();
    for (int row = 0; row < next->queries().count(); ++row)
        if (next->queries().item(row)->text() == "runs cat K1M") {
            next->queries().setCurrentRow(row);
            break;
        }
    QTest::keyClick(&next->queries(), Qt::Key_Delete);
    EXPECT_THAT(next->queries().kept(), IsEmpty());
    next->searchIn({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !next->results().found(); }));
}

TEST_F(FindWindowTest, TheWholeResultIsSavedButNeverOverARace) {
    const auto window = open();
    ASSERT_TRUE(asks(*window, "penalties by gate sort count down"));
    const QString csv = text(m_folder.path() / "result.csv");
    window->saveCsv(csv);
    desktop::disk::waitForAll();
    EXPECT_EQ(contentOf(csv.toStdString()), findCsv(window->results().found()->answer));
    const fs::path race = races() / "riverside_cup.kvx";
    const std::string before = contentOf(race);
    window->saveCsv(text(race));
    EXPECT_EQ(contentOf(race), before);
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    window->saveCsv(text(m_folder.path() / "none" / "result.csv"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_recorder.alerts.size() == 2; }));
}

TEST_F(FindWindowTest, TheProgramOpensOneSearchAndBringsItBack) {
    const QByteArray cache = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", text(m_folder.path() / "cache").toUtf8());
    const QString kept = text(m_folder.path() / "kept");
    {
        Desktop program(m_workspace, Autosave(kept));
        program.openFind({});
        ASSERT_THAT(program.windowsOf<FindWindow>(), SizeIs(1));
        program.openFind({text(races())});
        ASSERT_THAT(program.windowsOf<FindWindow>(), SizeIs(1));
        FindWindow& window = *program.windowsOf<FindWindow>().front();
        ASSERT_TRUE(asks(window, "runs"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return window.currentPlace().has_value(); }));
        window.openRace();
        ASSERT_TRUE(QTest::qWaitFor([&] { return program.windowsOf<RaceWindow>().size() == 1; }));
        const QString opened = program.windowsOf<RaceWindow>().front()->paths().value(0);
        EXPECT_TRUE(fs::equivalent(opened.toStdString(), window.currentPlace()->file));
        program.windowsOf<RaceWindow>().front()->close();
    }
    Desktop program(m_workspace, Autosave(kept));
    ASSERT_TRUE(program.restoreSession());
    ASSERT_THAT(program.windowsOf<FindWindow>(), SizeIs(1));
    EXPECT_THAT(program.windowsOf<FindWindow>().front()->paths(), SizeIs(1));
    cache.isNull() ? (void)qunsetenv("XDG_CACHE_HOME") : (void)qputenv("XDG_CACHE_HOME", cache);
}

} // namespace kavela::test
