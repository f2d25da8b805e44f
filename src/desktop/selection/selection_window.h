#pragma once

#include "desktop/selection/ranking_model.h"
#include "desktop/selection/selection_document.h"
#include "desktop/shell/tool_window.h"
#include "results/selection_import.h"

#include <QTimer>

class QComboBox;
class QLabel;
class QPushButton;
class QTabBar;

namespace kavela::desktop {

class ColumnTable;
class WhyPanel;

/// Selection races: per category the ranking, live, with the reasons for it; races, athletes and
/// results entered, imported or taken from split files; and a mode to try what would have been.
class SelectionWindow : public ToolWindow {
    Q_OBJECT

public:
    SelectionWindow(Workspace& workspace, Autosave autosave);
    ~SelectionWindow() override;

    [[nodiscard]] bool open(const QString& path) override;
    void startNew(const QString& path, std::int64_t year);
    /// Of the season that is on.
    void startNew(const QString& path) override;

    [[nodiscard]] SelectionDocument& document() { return m_document; }
    [[nodiscard]] RankingModel& model() { return m_model; }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }

    void showCategory(std::size_t category);
    void addRace(const QString& location);
    void addCategory(const QString& label);
    void addAthlete(const NewAthlete& athlete);
    void importAthletesFrom(const QString& path);
    void importResultsFrom(const QString& path, std::size_t race, ResultLayout layout);
    void attachFiles(std::size_t race, const QStringList& paths);
    void setWhatIf(bool isOn);

protected:
    void takeFiles(const QStringList& paths) override;

private:
    [[nodiscard]] QWidget* makeBar();
    void makeMenus();
    void makeRaceMenu();
    void makeAthleteMenu();
    void makeReportMenu(QMenu& menu);
    void showDocument();
    void fillCategories();
    void fillBonuses();
    void showWhy();
    void tell(const std::string& text);
    void tellLines(const QStringList& lines);
    void tellUnread(const QString& path, const std::string& reason);
    void tellImported(const ListImport& import, bool isLatin1);
    void lookAndEnter(const QString& path, std::size_t race, FoundRuns found);
    [[nodiscard]] bool askForCategory();
    void leaveRow();
    void watchFocus();
    [[nodiscard]] std::optional<std::size_t> askForRace(const QString& title);
    [[nodiscard]] bool hasRace();
    void askForAthlete();
    void editAthlete();
    void removeAthlete();
    void renameRace();
    void removeRace();
    void askForResults(ResultLayout layout, const char* help);
    void askForSplitFiles();
    void makeZerosMissing();
    void copyTable();
    void preview();

    SelectionDocument m_document;
    RankingModel m_model;
    QTabBar* m_categories = nullptr;
    QComboBox* m_bonus = nullptr;
    QComboBox* m_times = nullptr;
    QPushButton* m_whatIf = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_hint = nullptr;
    ColumnTable* m_table = nullptr;
    WhyPanel* m_why = nullptr;
    QTimer m_leaveRow;
};

} // namespace kavela::desktop
