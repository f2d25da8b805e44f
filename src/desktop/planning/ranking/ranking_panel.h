#pragma once

#include "desktop/planning/season_panel.h"
#include "desktop/shell/background_work.h"

namespace kavela::desktop {

class RacesSection;
class RankingSection;
class SplitStatistics;
class Workspace;

/// The athlete's ranking in a season, and the statistics of its races and penalties.
class RankingPanel : public SeasonPanel {
    Q_OBJECT

public:
    RankingPanel(PlanningDocument& document, Workspace& workspace, QWidget* parent = nullptr);

    [[nodiscard]] RankingSection& ranking() const { return *m_ranking; }
    [[nodiscard]] RacesSection& races() const { return *m_races; }

    /// Makes the season's statistics from split files, and from those in folders, once the coach
    /// has seen what was found and agrees: they are read beside the window, which is locked
    /// meanwhile. Files of another year are told and left out.
    void takeFrom(const QStringList& paths);
    void askForFiles();
    void askForFolder();

protected:
    void refresh() override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void connectParts();
    void takeStatistics(const SplitStatistics& found);

    Workspace& m_workspace;
    RankingSection* m_ranking;
    RacesSection* m_races;
    BackgroundWork m_reading;
};

} // namespace kavela::desktop
