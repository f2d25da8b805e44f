#pragma once

#include "desktop/selection/ranking_model.h"
#include "desktop/selection/selection_document.h"
#include "desktop/selection/selection_edits.h"
#include "desktop/selection/selection_take_over.h"
#include "desktop/shell/tool_window.h"

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

    void startNew(const QString& path, std::int64_t year);
    /// Of the season that is on.
    void startNew(const QString& path) override;

    [[nodiscard]] SelectionDocument& document() { return m_document; }
    [[nodiscard]] RankingModel& model() { return m_model; }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }

    void showCategory(std::size_t category);
    void addRace(const QString& location) { m_edits.addRace(location); }
    void addCategory(const QString& label) { m_edits.addCategory(label); }
    void addAthlete(const NewAthlete& athlete) { m_edits.addAthlete(m_model.category(), athlete); }
    void importAthletesFrom(const QString& path) { m_takeOver.importAthletesFrom(path); }
    void attachFiles(std::size_t race, const QStringList& paths) {
        m_takeOver.attachFiles(race, paths);
    }
    void setWhatIf(bool isOn);

protected:
    [[nodiscard]] FileReading readingOf(const QString& path) override;
    void takeFiles(const QStringList& paths) override;

private:
    [[nodiscard]] QWidget* makeBar();
    void makeMenus();
    void makeRaceMenu();
    void makeAthleteMenu();
    void showDocument();
    void fillCategories();
    void fillBonuses();
    void showWhy();
    [[nodiscard]] std::optional<Reason> whyOf(const QModelIndex& cell) const;
    void leaveRow();
    void watchFocus();
    void chooseAthlete(std::size_t athlete);
    [[nodiscard]] std::optional<AthletePlace> currentAthlete() const;
    void copyTable();

    SelectionDocument m_document;
    RankingModel m_model;
    SelectionEdits m_edits;
    SelectionTakeOver m_takeOver;
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
