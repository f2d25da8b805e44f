#include "desktop/tables/tables_actions.h"

#include "desktop/charts/series_chart.h"
#include "desktop/tables/tables_window.h"

#include <QAction>
#include <QMenuBar>

#include <algorithm>
#include <array>
#include <utility>

namespace kavela::desktop {

TablesActions::TablesActions(TablesWindow& window) : QObject(&window), m_window(window) {
    makeFileMenu();
    makeEditMenu();
    makeColumnMenu();
    makeAddMenu();
    makeAthleteMenu();
    makeShowMenu();
    window.finishMenus([] { return Commands(); });
    refresh();
}

QAction* TablesActions::add(QMenu& menu, const QString& text, const QKeySequence& keys,
                            std::function<void()> act) {
    QAction* const action = menu.addAction(text, keys, &m_window, std::move(act));
    m_ofList.append(action);
    return action;
}

void TablesActions::makeFileMenu() {
    TablesWindow* const window = &m_window;
    QMenu* const menu =
        window->makeFileMenu({tr("&Open a list…"), [window] { window->chooseFiles(); }});
    menu->addAction(tr("Open what was &copied"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V),
                    window, [window] { window->openClipboard(); });
    add(*menu, tr("A&nother list of this file…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O),
        [window] { window->chooseOtherList(); });
    menu->addSeparator();
    add(*menu, tr("&Keep with the race…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_K),
        [window] { window->keepWithRace(); });
    add(*menu, tr("Save the &table as CSV…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E),
        [window] { window->saveCsv(); });
    add(*menu, tr("Save the c&hart…"), QKeySequence(Qt::CTRL | Qt::Key_E),
        [window] { window->saveChart(); });
}

void TablesActions::makeEditMenu() {
    QMenu* const menu = m_window.makeEditMenu();
    add(*menu, tr("The first line holds the &titles"), QKeySequence(Qt::CTRL | Qt::Key_T),
        [this] { m_window.take(TitlesStep{true}); });
    add(*menu, tr("The first line is a ro&w"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T),
        [this] { m_window.take(TitlesStep{false}); });
    add(*menu, tr("No &groups"), QKeySequence(Qt::SHIFT | Qt::Key_G),
        [this] { m_window.take(GroupStep{}); });
}

void TablesActions::makeColumnMenu() {
    TablesWindow* const window = &m_window;
    m_column = window->menuBar()->addMenu(tr("&Column"));
    const auto at = [this](const QString& text, const QKeySequence& keys,
                           std::function<void()> act) {
        m_ofColumn.append(add(*m_column, text, keys, std::move(act)));
    };
    at(tr("&Sort"), QKeySequence(Qt::Key_S), [window] { window->sort(false); });
    at(tr("Sort &downwards"), QKeySequence(Qt::SHIFT | Qt::Key_S),
       [window] { window->sort(true); });
    at(tr("&Group by it"), QKeySequence(Qt::Key_G), [window] {
        window->takeAtColumn([](const std::string& column) { return GroupStep{column}; });
    });
    at(tr("&Tint it"), QKeySequence(Qt::Key_T), [window] {
        const auto& tinted = window->document().table()->coloured;
        window->takeAtColumn([&](const std::string& column) {
            return TintStep{column, std::ranges::find(tinted, column) == tinted.end()};
        });
    });
    at(tr("&Chart of it"), QKeySequence(Qt::Key_C), [window] { window->showChart(); });
    at(tr("&Keep rows with…"), QKeySequence(Qt::Key_F), [window] { window->chooseFilter(); });
    at(tr("&Leave it out"), QKeySequence(Qt::Key_Delete), [window] {
        window->takeAtColumn([](const std::string& column) { return RemoveStep{column}; });
    });
    makeKindMenu();
}

void TablesActions::makeKindMenu() {
    QMenu* const menu = m_column->addMenu(tr("&Read it as"));
    constexpr std::array Kinds{ListColumnKind::Whole, ListColumnKind::Decimal,
                               ListColumnKind::Time,  ListColumnKind::Status,
                               ListColumnKind::Date,  ListColumnKind::Text};
    for (std::size_t i = 0; i < Kinds.size(); ++i)
        m_ofColumn.append(
            add(*menu, kindTitle(Kinds[i]),
                QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(i))),
                [this, kind = Kinds[i]] {
                    m_window.takeAtColumn([kind](const std::string& column) {
                        return KindStep{column, kind};
                    });
                }));
}

void TablesActions::makeAddMenu() {
    TablesWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("&Add"));
    const std::array<std::pair<QString, Derivation>, 5> kinds{
        {{tr("&Total"), Derivation::Total},
         {tr("&Rank"), Derivation::Rank},
         {tr("&Gap to the best"), Derivation::Gap},
         {tr("&Percent behind the best"), Derivation::Percent},
         {tr("Percenti&le"), Derivation::Percentile}}};
    int key = Qt::Key_1;
    for (const auto& [text, what] : kinds)
        add(*menu, text, QKeySequence(Qt::CTRL | static_cast<Qt::Key>(key++)),
            [window, derivation = what] { window->derive(derivation); });
    menu->addSeparator();
    add(*menu, tr("&Another column…"), QKeySequence(Qt::CTRL | Qt::Key_D),
        [window] { window->chooseDerived(); });
    add(*menu, tr("P&ivot…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P),
        [window] { window->choosePivot(); });
}

void TablesActions::makeAthleteMenu() {
    TablesWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("A&thletes"));
    add(*menu, tr("&Join a team…"), QKeySequence(Qt::CTRL | Qt::Key_J),
        [window] { window->chooseTeam(); });
    m_whoIsMeant = menu->addAction(tr("&Who is meant?…"), QKeySequence(Qt::Key_F6), window,
                                   [window] { window->askWhoIsMeant(); });
}

void TablesActions::makeShowMenu() {
    TablesWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("&Show"));
    m_refused = menu->addAction(tr("What was &refused"), QKeySequence(Qt::Key_F7), window,
                                [window] { window->showRefused(); });
    QAction* const scale = menu->addAction(tr("&Blue to orange instead of green to red"),
                                           QKeySequence(Qt::Key_B), window, [window](bool isOn) {
                                               window->setScale(isOn ? ColourScale::BlueOrange
                                                                     : ColourScale::GreenRed);
                                           });
    scale->setCheckable(true);
    scale->setChecked(window->scale() == ColourScale::BlueOrange);
    add(*menu, tr("The &whole chart"), QKeySequence(Qt::CTRL | Qt::Key_0),
        [window] { window->chart().fit(); });
}

void TablesActions::refresh() {
    const TableDocument& document = m_window.document();
    for (QAction* const action : m_ofList)
        action->setEnabled(document.hasList());
    const bool hasColumn = m_window.currentColumn().has_value();
    for (QAction* const action : m_ofColumn)
        action->setEnabled(document.hasList() && hasColumn);
    m_whoIsMeant->setEnabled(!document.unsureRows().empty());
    m_refused->setEnabled(!document.table()->refused.empty());
}

} // namespace kavela::desktop
