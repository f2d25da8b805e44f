#include "app/content_kind.h"
#include "app/file_facts.h"
#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/find/find_window.h"
#include "desktop/imports/csv_mapping_dialog.h"
#include "desktop/race/race_window.h"
#include "desktop/saving.h"
#include "desktop/sessions/session_window.h"
#include "desktop/shell/command_palette.h"
#include "desktop/shell/file_names.h"
#include "desktop/start_options.h"
#include "desktop/tables/tables_window.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/loader.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFileInfo>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <chrono>

/// What is named on the command line, dropped or chosen at home.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Desktop;
using desktop::OpensAs;
using desktop::startOptions;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

QString example(const char* name) {
    return QString(KAVELA_EXAMPLES) + '/' + name;
}

TEST(StartOptions, AreFilesAndAFaultForWhatIsNeither) {
    EXPECT_EQ(startOptions({"a.kvx", "", "b"}).files, (QStringList{"a.kvx", "b"}));
    EXPECT_EQ(startOptions({"--", "--odd.kvx"}).files, QStringList{"--odd.kvx"});
    EXPECT_TRUE(startOptions({"--", "--odd.kvx"}).fault.isEmpty());
    EXPECT_THAT(startOptions({"--hlep", "a.kvx"}).fault.toStdString(), HasSubstr("--hlep"));
    EXPECT_FALSE(desktop::answerWithoutWindow({"--", "--help"}, "1"));
}

/// Members alone tell what decoding tells, of every file of the sample season and of older
/// releases.
TEST(ContentKind, IsToldByTheNamesOfMembers) {
    int documents = 0;
    for (const auto& entry : fs::recursive_directory_iterator(KAVELA_EXAMPLES)) {
        const FileFacts facts = factsOf(entry.path());
        if (facts.error || facts.kind == "planning access")
            continue;
        ++documents;
        const ContentKind kind = contentKind(JsonDocument::fromFile(entry.path()));
        EXPECT_EQ(kind.kind, facts.kind) << entry.path();
        if (facts.kind == "split file") {
            EXPECT_EQ(kind.hasRuns, facts.counts.at("runs") > 0) << entry.path();
            EXPECT_EQ(kind.hasCross,
                      facts.counts.at("crossTimeTrials") + facts.counts.at("crossHeats") > 0)
                << entry.path();
        }
    }
    EXPECT_GT(documents, 15);
    EXPECT_EQ(contentKind(JsonDocument::fromText(R"({"info": {}})")).kind, "unknown");
}

/// As from a terminal without a screen: no window can be opened there.
TEST(DesktopProgram, AnswersHelpAndVersionWithoutAWindow) {
    struct Row {
        const char* option;
        int code;
        const char* output;
    };
    for (const Row& row :
         {Row{"--help", 0, "Usage: kavela-desktop"}, Row{"-h", 0, "Usage: kavela-desktop"},
          Row{"--version", 0, "kavela-desktop "}}) {
        SCOPED_TRACE(row.option);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "none such");
        program.setProcessEnvironment(environment);
        program.start(KAVELA_DESKTOP_PROGRAM, {row.option});
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), row.code);
        EXPECT_THAT(program.readAllStandardOutput().toStdString(), HasSubstr(row.output));
        EXPECT_THAT(program.readAllStandardError().toStdString(), IsEmpty());
    }
    QProcess program;
    program.start(KAVELA_DESKTOP_PROGRAM, {"--hlep"});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 2);
    EXPECT_THAT(program.readAllStandardError().toStdString(), HasSubstr("--hlep"));
}

class OpeningTest : public ::testing::Test {
protected:
    OpeningTest() { m_workspace.setAlerts(&m_recorder); }

    static QString text(const fs::path& path) { return QString::fromStdString(path.string()); }

    [[nodiscard]] desktop::SessionWindow* session() const {
        return m_program.windows().isEmpty()
                   ? nullptr
                   : qobject_cast<desktop::SessionWindow*>(m_program.windows().front());
    }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    Desktop m_program{m_workspace, desktop::Autosave(text(m_folder.path() / "kept"))};
};

TEST_F(OpeningTest, TakesAPhonesListAndAWatchsTrackIntoASession) {
    bool isAsked = false;
    QTimer::singleShot(0, [&] {
        auto* const dialog =
            qobject_cast<desktop::CsvMappingDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        isAsked = true;
        auto* const import = dialog->findChild<QPushButton*>("import");
        EXPECT_TRUE(QTest::qWaitFor([&] { return import->isEnabled(); }));
        import->click();
    });
    m_program.openAll({example("recordings/watch.gpx"), example("recordings/phone_logger.csv")});
    EXPECT_TRUE(isAsked);
    ASSERT_TRUE(session());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !session()->isBusy(); }, 30000));
    EXPECT_TRUE(session()->document().value().recording);
    ASSERT_THAT(m_recorder.alerts, ::testing::Not(IsEmpty()));
    EXPECT_THAT(m_recorder.alerts.back(), HasSubstr("positions and"))
        << "the track joins the recording, though it was named first";
    EXPECT_THAT(m_program.windows(), SizeIs(1));
    EXPECT_THAT(m_program.windowsOf<desktop::RaceWindow>(), IsEmpty());
}

TEST_F(OpeningTest, TheSearchOfAnyWindowOpensATool) {
    m_program.open(example("races/riverside_cup.kvx"));
    for (const desktop::Command& command : m_workspace.programCommands())
        if (command.title == "Find")
            command.run();
    EXPECT_THAT(m_program.windowsOf<desktop::FindWindow>(), SizeIs(1));
}

TEST_F(OpeningTest, SaysWhereATrackBelongsAndThatAFolderIsEmpty) {
    m_program.open(example("recordings/watch.gpx"));
    m_program.open(example("races/spring_opener_results.csv"));
    m_program.open(example("races/harbour_night_start_list.csv"));
    fs::create_directory(m_folder.path() / "empty");
    m_program.open(text(m_folder.path() / "empty"));
    EXPECT_THAT(m_recorder.alerts, ElementsAre(HasSubstr("Import the recording of the boat first"),
                                               HasSubstr("no film")));
    EXPECT_THAT(m_program.windowsOf<desktop::TablesWindow>(), SizeIs(2)) << "shows the lists";
    EXPECT_THAT(m_program.windowsOf<desktop::RaceWindow>(), IsEmpty());
}

TEST_F(OpeningTest, NamesTheFileThatCannotBeReadAndTheReason) {
    const fs::path film = m_folder.add("heat1.kvx", std::string("\0\0\0\x20"
                                                                "ftypisom\0\0\2\0",
                                                                16));
    m_program.openAll({text(film), text(m_folder.add("cup.kvx", R"({"info":{}})")),
                       text(m_folder.path() / "gone.kvx")});
    EXPECT_THAT(
        m_recorder.alerts,
        ElementsAre(::testing::AllOf(HasSubstr(IncompatibleFileText), HasSubstr("heat1.kvx: ")),
                    HasSubstr("cup.kvx: "), HasSubstr("gone.kvx: there is no such file")));
    EXPECT_TRUE(m_program.windows().isEmpty());
}

TEST_F(OpeningTest, OpensAFilmWithItsFolderAndItsRunInFront) {
    fs::create_directory(m_folder.path() / "day1");
    for (const char* film : {"Ada Berg.mov", "Bea Dahl.mov"})
        (void)m_folder.add(std::string("day1/") + film, "no film yet");
    m_program.open(text(m_folder.path() / "day1" / "Bea Dahl.mov"));
    ASSERT_THAT(m_program.windowsOf<desktop::TakingWindow>(), SizeIs(1));
    desktop::TakingWindow* const window = m_program.windowsOf<desktop::TakingWindow>().front();
    ASSERT_EQ(window->document().runCount(), 2);
    EXPECT_THAT(window->document().run(window->currentRun()).videoname,
                ElementsAre("Bea Dahl.mov"));
}

TEST_F(OpeningTest, OpensAFilmInTheSplitFileOfSeveralThatHasItsRun) {
    for (const char* race : {"harbour_night.kvx", "riverside_cup.kvx", "spring_opener.kvx"})
        fs::copy_file(fs::path(KAVELA_EXAMPLES) / "races" / race, m_folder.path() / race);
    const auto old = fs::file_time_type::clock::now() - std::chrono::hours(24);
    fs::last_write_time(m_folder.path() / "harbour_night.kvx", old);
    const char* const film = "harbour Dario Gorgazzi Heats.MOV";
    m_program.open(text(m_folder.add(film, "no film yet")));
    ASSERT_THAT(m_program.windowsOf<desktop::TakingWindow>(), SizeIs(1));
    desktop::TakingWindow* const window = m_program.windowsOf<desktop::TakingWindow>().front();
    EXPECT_EQ(QFileInfo(window->document().path()).fileName(), "harbour_night.kvx");
    EXPECT_THAT(window->document().run(window->currentRun()).videoname, ::testing::Contains(film));
}

TEST_F(OpeningTest, EditsAFileInOneWindowWhateverPathLeadsToIt) {
    const fs::path team = m_folder.path() / "team.kvteam";
    fs::copy_file(fs::path(KAVELA_EXAMPLES) / "team/kavela_team.kvteam", team);
    fs::create_symlink(team, m_folder.path() / "link.kvteam");
    m_program.open(text(team));
    m_program.open(text(m_folder.path() / "link.kvteam"));
    EXPECT_THAT(m_program.windows(), SizeIs(1));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

/// As on a disk that does not tell cases apart; a second name elsewhere is another file, which a
/// save parts from the first.
TEST_F(OpeningTest, KnowsAFileInOtherLetterCase) {
    fs::create_directory(m_folder.path() / "Races");
    const fs::path race = m_folder.add("Races/cup.kvx", "x");
    for (const char* other : {"races/cup.kvx", "copy/cup.kvx"}) {
        fs::create_directory((m_folder.path() / other).parent_path());
        fs::create_hard_link(race, m_folder.path() / other);
    }
    EXPECT_TRUE(desktop::isSameFile(text(race), text(m_folder.path() / "races/cup.kvx")));
    EXPECT_FALSE(desktop::isSameFile(text(race), text(m_folder.path() / "copy/cup.kvx")));
    EXPECT_FALSE(desktop::isSameFile(text(race), text(m_folder.path() / "Races/CUP.kvx")));
}

TEST_F(OpeningTest, ShowsARaceThatIsOpenInsteadOfASecondWindowOfIt) {
    const fs::path race = m_folder.path() / "cup.kvx";
    fs::copy_file(fs::path(KAVELA_EXAMPLES) / "races/riverside_cup.kvx", race);
    fs::create_symlink(race, m_folder.path() / "link.kvx");
    m_program.open(text(race));
    m_program.open(example("races/spring_opener.kvx"));
    ASSERT_THAT(m_program.windowsOf<desktop::RaceWindow>(), SizeIs(2));
    m_program.open(text(race));
    m_program.open(text(m_folder.path() / "link.kvx"));
    EXPECT_THAT(m_program.windowsOf<desktop::RaceWindow>(), SizeIs(2));
    ASSERT_TRUE(m_program.windowsOf<desktop::RaceWindow>().front()->open(
        text(m_folder.path() / "link.kvx")));
    EXPECT_THAT(m_program.windowsOf<desktop::RaceWindow>().front()->views(), SizeIs(1));

    desktop::TakingWindow* const taking = m_program.openTaking(text(race));
    ASSERT_TRUE(taking);
    taking->document().editRun(0, "crew", [](athletedata031& run) { run.names = {"Ada Neumann"}; });
    ASSERT_TRUE(saved(taking->document()));
    emit taking->analysisRequested();
    EXPECT_THAT(m_program.windowsOf<desktop::RaceWindow>(), SizeIs(2));
    const desktop::RaceWindow* const shown = m_program.windowsOf<desktop::RaceWindow>().front();
    EXPECT_EQ(shown->views().size(), 1U);
    EXPECT_TRUE(
        std::ranges::any_of(shown->document().wholeSet().alldata,
                            [](const analyzerdata& run) { return run.name == "Ada Neumann"; }))
        << "as it was saved a moment ago";
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

} // namespace
} // namespace kavela::test
