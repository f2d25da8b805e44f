#include "desktop/tools.h"

#include "desktop/barrier/slit_window.h"
#include "desktop/compose/compare_window.h"
#include "desktop/cross/cross_window.h"
#include "desktop/fetch/fetch_window.h"
#include "desktop/find/find_window.h"
#include "desktop/folder/films_window.h"
#include "desktop/losses/losses_window.h"
#include "desktop/motion/motion_window.h"
#include "desktop/penalties/penalties_window.h"
#include "desktop/planning/planning_window.h"
#include "desktop/race/race_window.h"
#include "desktop/season/season_window.h"
#include "desktop/selection/selection_window.h"
#include "desktop/sessions/session_window.h"
#include "desktop/sessions/test_session_window.h"
#include "desktop/share/share_window.h"
#include "desktop/shell/menu_keys.h"
#include "desktop/tables/tables_window.h"
#include "desktop/taking/taking_window.h"
#include "desktop/team/team_window.h"
#include "desktop/tracking/tracking_window.h"
#include "desktop/watertests/tests_window.h"
#include "planning/messages.h"
#include "splittaking/video_names.h"

#include <QCoreApplication>
#include <QDate>
#include <QMenuBar>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

using Choice = ToolKind::Choice;

QString tr(const char* text) {
    return QCoreApplication::translate("Desktop", text);
}

/// Its menus are of many classes, which do not know each other's letters.
ToolWindow* withPartedKeys(ToolWindow* window) {
    partMenuKeys(window->menuBar()->actions());
    return window;
}

template <class Window>
ToolWindow* makeEditor(Workspace& workspace, const Autosave& autosave) {
    return withPartedKeys(new Window(workspace, autosave));
}

template <class Window>
ToolWindow* makeReader(Workspace& workspace, const Autosave& /*autosave*/) {
    return withPartedKeys(new Window(workspace));
}

/// What cameras write beside mp4.
QStringList filmSuffixes() {
    QStringList suffixes;
    for (const std::string_view extension : videoExtensions())
        if (extension != "mp4")
            suffixes.append(QString::fromLatin1(extension));
    return suffixes;
}

std::vector<ToolKind> makeTools() {
    const QString selection = tr("Selection %1").arg(QDate::currentDate().year());
    return {
        {"race",
         OpensAs::Race,
         tr("Race analyzer"),
         tr("Every split of a race side by side, coloured by rank."),
         "race",
         Choice::Files,
         {tr("Open races"), tr("Split files"), "kvx", {}},
         makeReader<RaceWindow>},
        {"losses",
         OpensAs::Losses,
         tr("Time losses"),
         tr("Where each run lost its time, and what comes back."),
         "losses",
         Choice::FilesOrFolder,
         {tr("Open split files"), tr("Split files"), "kvx", {}},
         makeReader<LossesWindow>},
        {"taking",
         OpensAs::FolderOfFilms,
         tr("Split taking"),
         tr("Time every run from its video, exact to the frame."),
         "taking",
         Choice::Folder,
         {tr("Open a folder of videos"), tr("Split files"), "kvx", {}},
         makeEditor<TakingWindow>},
        {"taking", // over whose window it is drawn
         OpensAs::Course,
         tr("Course"),
         tr("The course drawn: banks, gates, split lines and the lines of runs."),
         "course",
         Choice::Files,
         {tr("Draw the course of a race"), tr("Split files"), "kvx", {}},
         makeEditor<TakingWindow>},
        {"films",
         OpensAs::Films,
         tr("Films"),
         tr("A folder of films played, compared, tagged and cut."),
         "films",
         Choice::Folder,
         {tr("Open a folder of films"), tr("Films"), "mp4", {}, filmSuffixes()},
         makeReader<FilmsWindow>},
        {"cross",
         OpensAs::Cross,
         tr("Kayak cross"),
         tr("Time trials, heats and attacks of a cross race, from video."),
         "cross",
         Choice::Files,
         {tr("Open a kayak cross"), tr("Split files"), "kvx", {}},
         makeEditor<CrossWindow>},
        {"compare",
         OpensAs::Comparison,
         tr("Compare films"),
         tr("Two to four runs in one picture, as a film."),
         "compare",
         Choice::Document,
         {tr("Comparisons of films"), tr("Comparisons"), "json", tr("Comparison")},
         makeEditor<CompareWindow>},
        {"tracking",
         OpensAs::Tracking,
         tr("Tracking"),
         tr("A boat followed through a film: its path and speed."),
         "tracking",
         Choice::Files,
         {tr("Open films"), tr("Films"), "mp4", {}, filmSuffixes()},
         makeEditor<TrackingWindow>},
        {"slit",
         OpensAs::SlitPicture,
         tr("Slit picture"),
         tr("Every crossing of a line, as a finish camera shows it."),
         "slit",
         Choice::Files,
         {tr("Open films of a fixed camera"), tr("Films"), "mp4", {}, filmSuffixes()},
         makeReader<SlitWindow>},
        {"team",
         OpensAs::Team,
         tr("Team"),
         tr("Results of every athlete, season by season, and their category."),
         "team",
         Choice::Document,
         {tr("Team results"), tr("Teams"), "kvteam", tr("Team")},
         makeEditor<TeamWindow>},
        {"selection",
         OpensAs::Selection,
         tr("Selection races"),
         tr("Who is selected, by which results, and why."),
         "selection",
         Choice::Document,
         {tr("Selection races"), tr("Selection races"), "kvsr", selection},
         makeEditor<SelectionWindow>},
        {"planning",
         OpensAs::Planning,
         tr("Planning"),
         tr("Seasons, weeks and sessions, heart, gym and goals of a group."),
         "planning",
         Choice::Document,
         {planning_messages::ImportTitle, tr("Plannings"), "planning", tr("Planning")},
         makeEditor<PlanningWindow>},
        {"watertests",
         OpensAs::Tests,
         tr("Tests"),
         tr("Lap, sprint and eight tests on the water, compared."),
         "watertests",
         Choice::Document,
         {tr("Tests"), tr("Tests"), "kvtest", tr("Tests")},
         makeEditor<TestsWindow>},
        {"motion",
         OpensAs::Recording,
         tr("Boat motion"),
         tr("Recordings of phone and watch over each other, and converted."),
         "motion",
         Choice::Files,
         {tr("Open recordings"), tr("Recordings"), "kvb", {}},
         makeReader<MotionWindow>},
        {"session",
         OpensAs::Session,
         tr("Sessions"),
         tr("Strokes, turns and segments of a recording, on a map."),
         "sessions",
         Choice::Document,
         {tr("Sessions"), tr("Sessions"), "bms", tr("Session")},
         makeEditor<SessionWindow>},
        {"find",
         OpensAs::Find,
         tr("Find"),
         tr("Every gate, penalty and run of all seasons, by one question."),
         "find",
         Choice::None,
         {tr("Search files"), tr("Split files"), "kvx", {}},
         makeReader<FindWindow>},
        {"penalties",
         OpensAs::Penalties,
         tr("Penalties"),
         tr("Which gates are touched, by whom, and what it cost."),
         "penalties",
         Choice::FilesOrFolder,
         {tr("Open split files"), tr("Split files"), "kvx", {}},
         makeReader<PenaltiesWindow>},
        {"tables",
         OpensAs::ResultsList,
         tr("Tables"),
         tr("Any list of results, sorted, tinted, reckoned with, and whose it is."),
         "tables",
         Choice::None,
         {tr("Open lists"),
          tr("Lists"),
          "csv",
          {},
          {"tsv", "txt", "xlsx", "ods", "kvx", "kvtable"}},
         makeEditor<TablesWindow>},
        {"season",
         OpensAs::Season,
         tr("Season"),
         tr("How a team's athletes stand: trend, rivals, medals."),
         "season",
         Choice::None,
         {tr("Open a team"), tr("Teams"), "kvteam", {}},
         makeReader<SeasonWindow>},
        {"fetch",
         OpensAs::Fetch,
         tr("Fetch films"),
         tr("The films of a race from a server, by the bibs of a start list."),
         "fetch",
         Choice::None,
         {tr("Open a source of films"), tr("Sources of films"), "json", {}},
         makeReader<FetchWindow>},
        {"share",
         OpensAs::Share,
         tr("Share folders"),
         tr("A folder the same here and on the team's own server."),
         "share",
         Choice::None,
         {tr("Share a folder"), tr("Folders"), "*", {}},
         makeReader<ShareWindow>},
        {"testsession",
         OpensAs::TestSession,
         tr("Test session"),
         {},
         "sessions",
         Choice::Files,
         {},
         makeEditor<TestSessionWindow>},
    };
}

const ToolKind* toolWhere(const std::function<bool(const ToolKind&)>& isIt) {
    const auto found = std::ranges::find_if(toolKinds(), isIt);
    return found == toolKinds().end() ? nullptr : &*found;
}

struct HomeColumn {
    const char* title;
    std::vector<OpensAs> tools; ///< from the top
};

const std::vector<HomeColumn>& homeColumns() {
    static const std::vector<HomeColumn> Columns{
        {QT_TRANSLATE_NOOP("Desktop", "A race"),
         {OpensAs::Race, OpensAs::Losses, OpensAs::Penalties, OpensAs::ResultsList, OpensAs::Course,
          OpensAs::Find}},
        {QT_TRANSLATE_NOOP("Desktop", "Films"),
         {OpensAs::FolderOfFilms, OpensAs::Cross, OpensAs::Films, OpensAs::Comparison,
          OpensAs::SlitPicture, OpensAs::Tracking, OpensAs::Fetch}},
        {QT_TRANSLATE_NOOP("Desktop", "The season"),
         {OpensAs::Season, OpensAs::Team, OpensAs::Selection, OpensAs::Share}},
        {QT_TRANSLATE_NOOP("Desktop", "Training"),
         {OpensAs::Planning, OpensAs::Tests, OpensAs::Recording, OpensAs::Session}},
    };
    return Columns;
}

} // namespace

std::vector<HomeGroup> homeGroups() {
    std::vector<HomeGroup> groups;
    for (const HomeColumn& column : homeColumns()) {
        HomeGroup group{tr(column.title), {}};
        for (const OpensAs opens : column.tools)
            if (const ToolKind* const tool = toolFor(opens))
                group.tools.push_back(tool);
        groups.push_back(std::move(group));
    }
    return groups;
}

const std::vector<ToolKind>& toolKinds() {
    static const std::vector<ToolKind> Kinds = makeTools();
    return Kinds;
}

const ToolKind* toolOfKind(const QString& kind) {
    return toolWhere([&](const ToolKind& tool) { return tool.kind == kind; });
}

const ToolKind* toolFor(OpensAs opens) {
    return toolWhere([&](const ToolKind& tool) { return tool.opens == opens; });
}

} // namespace kavela::desktop
