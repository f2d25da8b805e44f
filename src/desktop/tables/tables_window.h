#pragma once

#include "desktop/shell/background_work.h"
#include "desktop/shell/tool_window.h"
#include "desktop/tables/list_panel.h"
#include "desktop/tables/offered_lists.h"
#include "desktop/tables/table_document.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <string>

class QLabel;
class QStackedWidget;

namespace kavela::desktop {

class ColumnTable;
class RaceKeeping;
class SeriesChart;
class TablesActions;

/// Any list of results as a table: sorted, tinted, grouped, with columns that are reckoned from
/// others, put together, drawn and joined with the athletes we know. The list itself is only read;
/// what is made of it can be saved.
class TablesWindow : public ToolWindow {
    Q_OBJECT

public:
    TablesWindow(Workspace& workspace, const Autosave& autosave);
    ~TablesWindow() override;

    /// Reads a file in place of what is shown; true, since it is told later what cannot be read.
    [[nodiscard]] bool open(const QString& path) override;
    /// The same for one of its lists, as an earlier start showed it; empty to ask where there are
    /// several.
    void openList(const QString& path, const std::string& list);
    /// Takes the list that was copied elsewhere: here where nothing is shown, else in another
    /// window.
    void openClipboard();
    /// Begins under the name of work that was never saved, which is offered.
    void startNew(const QString& path) override;
    /// Of what was made of the list, where something was, else of the list.
    [[nodiscard]] QStringList paths() const override;
    /// Whether a file is the list that is shown, or what was made of it.
    [[nodiscard]] bool shows(const QString& path) const;
    [[nodiscard]] QString shownView() const override;
    /// A line of the list; where the table has no such row any more, what stands there is told.
    [[nodiscard]] bool showOwnPlace(const Place& place) override;
    /// Nothing is shown, nothing is being read, and no earlier work is asked about.
    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] bool isReading() const { return m_work.isRunning(); }

    [[nodiscard]] TableDocument& document() { return m_document; }
    [[nodiscard]] ColumnTable& table() const { return m_panel->table(); }
    [[nodiscard]] SeriesChart& chart() const { return m_panel->chart(); }
    [[nodiscard]] ColumnTable& refused() const { return m_panel->refused(); }
    [[nodiscard]] QString status() const;

    // What the menus do; each step can be undone, and what cannot be taken is told.
    void take(const TableStep& step);
    void takeAtColumn(const std::function<TableStep(const std::string& column)>& step);
    /// See ListPanel.
    [[nodiscard]] std::optional<std::size_t> currentColumn() const {
        return m_panel->currentColumn();
    }
    void sort(bool isDescending);
    /// A derived column of the one with the cursor, where that has numbers, else of what ranks.
    void derive(Derivation what);
    void chooseDerived();
    void choosePivot();
    void chooseFilter();
    void chooseTeam();
    void joinTeam(const QString& team);
    /// Asks about each row that only the coach can tell, until that is given up.
    void askWhoIsMeant();
    void keepWithRace();
    void saveCsv();
    void showChart() { m_panel->drawCurrent(); }
    void saveChart();
    void showRefused();
    void setScale(ColourScale scale) { m_panel->setScale(scale); }
    [[nodiscard]] ColourScale scale() const { return m_panel->scale(); }
    void chooseFiles();
    /// Asks for another list of the same file, in place of this one and what was made of it.
    void chooseOtherList();

    /// Where files come from and go to in place of the platform's dialogs, as in tests: one for a
    /// title, empty for none.
    using ChooseFile = std::function<QString(const QString& title)>;
    void setChooseFile(ChooseFile choose) { m_chooseFile = std::move(choose); }

signals:
    /// Lists are to be opened, each in a window.
    void listsRequested(const QStringList& paths);
    /// What was copied is to be opened in another window.
    void clipboardRequested();
    void pathsChanged();

protected:
    void takeFiles(const QStringList& paths) override;

private:
    void makeParts();
    void connectParts();
    void choose(OfferedLists offered, const QString& path, const std::string& wanted);
    void start(OfferedList list, const QString& path);
    void goOn(TableWork work, const QString& path);
    void tell(const QString& title, const std::string& reason);
    void showTable();
    void showStatus();
    void showMenu(const QPoint& atGlobal, bool isOnTitle);
    [[nodiscard]] QString chosenFile(const QString& title, const QString& filter);
    [[nodiscard]] QString chosenTarget(const QString& title);

    TableDocument m_document;
    QString m_reading;  ///< path of what is being read
    QStringList m_left; ///< what the file carries besides and is no list
    ChooseFile m_chooseFile;

    QStackedWidget* m_pages = nullptr;
    ListPanel* m_panel = nullptr;
    QLabel* m_status = nullptr;
    TablesActions* m_actions = nullptr;
    RaceKeeping* m_keeping = nullptr;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
