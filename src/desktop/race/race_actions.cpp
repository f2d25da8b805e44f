#include "desktop/race/race_actions.h"

#include "desktop/charts/chart_panel.h"
#include "desktop/compose/compare_request.h"
#include "desktop/page/phone_pages.h"
#include "desktop/race/race_view.h"
#include "desktop/race/race_window.h"
#include "desktop/shell/workspace.h"
#include "facts/fact_store.h"
#include "splitdata/athlete_keys.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>

#include <utility>

namespace kavela::desktop {

RaceActions::RaceActions(RaceWindow& window, Workspace& workspace)
    : QObject(&window),
      m_window(window),
      m_workspace(workspace),
      m_phonePages(new PhonePages(workspace, window)) {
    makeFileMenu();
    makeTableMenu();
    makeCompareMenu();
    makeChartMenu();
    makeWindowMenu();
    window.finishMenus([this] { return athletes(); });
    connect(&m_workspace, &Workspace::preferenceChanged, this, &RaceActions::refresh);
}

void RaceActions::refresh() {
    if (m_window.views().empty())
        return;
    for (const auto& refresher : m_refreshers)
        refresher();
}

QAction* RaceActions::add(QMenu& menu, const QString& text, const QKeySequence& keys,
                          ViewAction act) {
    return menu.addAction(text, keys, &m_window,
                          [this, act = std::move(act)] { act(m_window.view()); });
}

QAction* RaceActions::addSwitch(QMenu& menu, const QString& text, const QKeySequence& keys,
                                std::function<bool(const RaceView&)> isOn,
                                std::function<void(RaceView&, bool)> set) {
    QAction* action = menu.addAction(
        text, keys, &m_window, [this, set = std::move(set)](bool on) { set(m_window.view(), on); });
    action->setCheckable(true);
    m_refreshers.push_back(
        [this, action, isOn = std::move(isOn)] { action->setChecked(isOn(m_window.view())); });
    return action;
}

void RaceActions::makeFileMenu() {
    QMenu* menu = m_window.makeFileMenu();
    add(*menu, tr("Open it &again"), QKeySequence(Qt::Key_F5),
        [](RaceView& view) { view.reload(); });
    menu->addAction(tr("Ti&me it on video"), QKeySequence(Qt::CTRL | Qt::Key_T), &m_window,
                    [this] { emit m_window.takingRequested(m_window.document().path()); });
    menu->addSeparator();
    add(*menu, tr("&Report: preview, PDF, print…"), QKeySequence::Print,
        [](RaceView& view) { view.previewReports(); });
    add(*menu, tr("Pa&ge for an athlete…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A),
        [this](RaceView& view) { askForPhonePage(view); });
    add(*menu, tr("Save the table as &CSV…"), QKeySequence(Qt::CTRL | Qt::Key_E),
        [](RaceView& view) { view.saveCsv(); });
    add(*menu, tr("Cop&y the selected runs"), QKeySequence::Copy,
        [](RaceView& view) { view.copySelection(); });
}

/// As the table is shown: filters, settings and scale go into the page. The file is read anew, and
/// what is being edited elsewhere is in it once it is saved.
void RaceActions::askForPhonePage(const RaceView& view) {
    const RaceDocument& document = view.document();
    PhonePageRequest request;
    request.shown.settings = document.settings();
    request.shown.scale = view.model().scale();
    request.shown.category = document.filter().category.toStdString();
    request.shown.phase = document.filter().phase.toStdString();
    FactStore facts;
    splittakerdata031 named;
    named.info = document.info();
    for (const analyzerdata& run : document.shownSet().alldata) {
        athletedata031 athlete;
        athlete.names = run.names;
        athlete.cat = run.category;
        named.athletes.push_back(std::move(athlete));
    }
    facts.add(named, document.path().toStdString());
    request.crews = phonePageCrews(facts);
    if (const auto row = view.currentRun())
        for (const analyzerdata& run : document.wholeSet().alldata)
            if (std::cmp_equal(run.athleteInt, *row))
                request.shownCrew = crewKey(run.names);
    m_phonePages->ask(std::move(request));
}

void RaceActions::makeContentMenu(QMenu& menu) {
    struct Choice {
        QString text;
        Qt::Key key;
        CellContent content;
    };
    const std::vector<Choice> choices{
        {tr("&Times"), Qt::Key_1, CellContent::Time},
        {tr("&Gap to the reference"), Qt::Key_2, CellContent::Gap},
        {tr("&Place"), Qt::Key_3, CellContent::Rank},
        {tr("Per&cent behind the best"), Qt::Key_4, CellContent::PercentBehind},
        {tr("Percenti&le"), Qt::Key_5, CellContent::Percentile},
    };
    auto* group = new QActionGroup(this);
    for (const Choice& choice : choices)
        group->addAction(addSwitch(
            menu, choice.text, QKeySequence(Qt::CTRL | choice.key),
            [content = choice.content](const RaceView& view) {
                return view.model().content() == content;
            },
            [content = choice.content](RaceView& view, bool) { view.setContent(content); }));
}

void RaceActions::makeReferenceMenu(QMenu& menu) {
    const auto refersTo = [](ReferenceKind kind) {
        return [kind](const RaceView& view) { return view.model().reference().kind == kind; };
    };
    const auto set = [](ReferenceKind kind) {
        return [kind](RaceView& view, bool) { view.setReference(kind); };
    };
    addSwitch(menu, tr("&Reference: the best"), QKeySequence(Qt::SHIFT | Qt::Key_B),
              refersTo(ReferenceKind::Best), set(ReferenceKind::Best));
    addSwitch(menu, tr("Reference: the &median"), QKeySequence(Qt::SHIFT | Qt::Key_M),
              refersTo(ReferenceKind::Median), set(ReferenceKind::Median));
    addSwitch(
        menu, tr("Reference: the &selected row"), QKeySequence(Qt::SHIFT | Qt::Key_R),
        [](const RaceView& view) {
            const ReferenceKind kind = view.model().reference().kind;
            return kind == ReferenceKind::Run || kind == ReferenceKind::Values;
        },
        [](RaceView& view, bool) { view.useSelectionAsReference(); });
}

void RaceActions::makeTableMenu() {
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Table"));
    makeContentMenu(*menu);
    menu->addSeparator();
    makeReferenceMenu(*menu);
    menu->addSeparator();
    addSwitch(
        *menu, tr("&Accumulated times"), QKeySequence(Qt::Key_A),
        [](const RaceView& view) { return view.document().isAccumulated(); },
        [](RaceView& view, bool on) { view.document().setAccumulated(on); });
    addPreference(*menu, tr("Penalties &included"), QKeySequence(Qt::Key_I), "penaltiesIncluded");
    addPreference(*menu, tr("Penalties &visible"), QKeySequence(Qt::Key_V), "penaltiesVisible");
    addColourMode(*menu);
    menu->addSeparator();
    QMenu* columns = menu->addMenu(tr("C&olumns"));
    connect(columns, &QMenu::aboutToShow, this, [this, columns] {
        columns->clear();
        m_window.view().fillColumnMenu(*columns);
    });
    add(*menu, tr("&Find a name"), QKeySequence::Find, [](RaceView& view) { view.findName(); });
    add(*menu, tr("Show all r&uns"), QKeySequence(Qt::Key_Escape),
        [](RaceView& view) { view.clearFilter(); });
}

void RaceActions::addPreference(QMenu& menu, const QString& text, const QKeySequence& keys,
                                const char* key) {
    addSwitch(
        menu, text, keys,
        [this, key](const RaceView&) { return m_workspace.preferences().boolean(key); },
        [this, key](RaceView&, bool on) { m_workspace.setPreference(key, on); });
}

void RaceActions::addColourMode(QMenu& menu) {
    addSwitch(
        menu, tr("&Tint cells by rank"), QKeySequence(Qt::Key_T),
        [this](const RaceView& view) { return view.document().settings().isTinted(); },
        [this](RaceView&, bool on) {
            m_workspace.setPreference("colorMode", std::string(on ? "Training" : "Race"));
        });
    addSwitch(
        menu, tr("&Blue to orange instead of green to red"), QKeySequence(Qt::Key_B),
        [](const RaceView& view) { return view.model().scale() == ColourScale::BlueOrange; },
        [](RaceView& view, bool on) {
            view.setScale(on ? ColourScale::BlueOrange : ColourScale::GreenRed);
        });
}

void RaceActions::makeCompareMenu() {
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Compare"));
    addSwitch(
        *menu, tr("&Ideal run on top"), QKeySequence(Qt::Key_O),
        [](const RaceView& view) { return view.document().isIdealShown(); },
        [](RaceView& view, bool on) { view.document().setIdealShown(on); });
    add(*menu, tr("A &run of another race…"), QKeySequence(Qt::Key_C),
        [](RaceView& view) { view.compareWithOtherRace(); });
    add(*menu, tr("&Films of the selected runs…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F),
        [this](RaceView& view) { compareFilms(view); });
    menu->addAction(
        tr("With &official results…"), QKeySequence(Qt::CTRL | Qt::Key_U), &m_window,
        [this] { emit m_window.officialDifferencesRequested(m_window.document().path()); });
    menu->addAction(tr("The results list as a &table"),
                    QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T), &m_window,
                    [this] { emit m_window.tablesRequested(m_window.document().path()); });
    add(*menu, tr("&Clear the comparison"), QKeySequence(Qt::SHIFT | Qt::Key_C),
        [](RaceView& view) { view.document().clearComparisons(); });
}

void RaceActions::compareFilms(const RaceView& view) {
    CompareRequest request;
    for (const std::size_t run : view.selectedRuns())
        request.runs.push_back({view.document().path(), run});
    emit m_window.compareRequested(request);
}

/// Of the window and not of the charts: their keys are meant from the table too, and where races
/// stand side by side for the one in front.
void RaceActions::makeChartMenu() {
    QMenu* menu = m_window.menuBar()->addMenu(tr("Ch&arts"));
    const QStringList titles{tr("&Gaps along the course"), tr("T&imes of the sections"),
                             tr("P&enalties at the gates"), tr("&Totals")};
    for (int index = 0; index < titles.size(); ++index)
        add(*menu, titles[index], QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + index)),
            [index](RaceView& view) { view.charts().goToChart(index); });
    menu->addSeparator();
    menu->addAction(tr("&Penalties"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P), &m_window,
                    [this] { emit m_window.penaltiesRequested({m_window.document().path()}); });
    add(*menu, tr("Time &losses"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_L),
        [this](RaceView& view) {
            emit m_window.lossesRequested({view.document().path()}, view.currentRun());
        });
    menu->addAction(tr("&Draw the course…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G),
                    &m_window,
                    [this] { emit m_window.courseRequested(m_window.document().path()); });
    menu->addSeparator();
    add(*menu, tr("Show the &whole chart"), QKeySequence(Qt::CTRL | Qt::Key_0),
        [](RaceView& view) { view.charts().fit(); });
    add(*menu, tr("&Save the chart…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E),
        [](RaceView& view) { view.charts().askAndSave(); });
}

void RaceActions::makeWindowMenu() {
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Window"));
    addSwitch(
        *menu, tr("Races &side by side"), QKeySequence(Qt::Key_F8),
        [this](const RaceView&) { return m_window.isSideBySide(); },
        [this](RaceView&, bool on) { m_window.setSideBySide(on); });
    addSwitch(
        *menu, tr("&Larger: the table or the chart alone"), QKeySequence(Qt::Key_F9),
        [](const RaceView& view) { return view.isEnlarged(); },
        [](RaceView& view, bool on) { view.setEnlarged(on); });
    menu->addAction(tr("&Next race"), QKeySequence(Qt::CTRL | Qt::Key_PageDown), &m_window,
                    [this] { m_window.showNextView(1); });
    menu->addAction(tr("&Previous race"), QKeySequence(Qt::CTRL | Qt::Key_PageUp), &m_window,
                    [this] { m_window.showNextView(-1); });
}

Commands RaceActions::athletes() const {
    Commands commands;
    RaceView& view = m_window.view();
    const std::vector<analyzerdata>& runs = view.document().shownSet().alldata;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        QStringList where{QString::fromStdString(runs[i].category),
                          QString::fromStdString(runs[i].phase)};
        where.removeAll(QString());
        commands.push_back({QString::fromStdString(runs[i].name), where.join(" · "), QString(),
                            [&view, i] { view.selectRun(i); }});
    }
    return commands;
}

} // namespace kavela::desktop
