#pragma once

#include "desktop/shell/background_work.h"
#include "desktop/shell/tool_window.h"
#include "desktop/team/team_document.h"

#include <memory>
#include <string>

namespace kavela {
struct RecognisedSplitFile;
}

namespace kavela::desktop {

class AthletePanel;
class ChartTabs;
class ResultsView;
class SummaryPanel;
class TakeOverDialog;

/// The team: every athlete's results season by season, typed in or taken over from split files and
/// official lists, with summary, categorization and charts, all live.
class TeamWindow : public ToolWindow {
    Q_OBJECT

public:
    TeamWindow(Workspace& workspace, Autosave autosave);
    ~TeamWindow() override;

    /// A new team; the path is a folder, or a file that saving will propose.
    void startNew(const QString& path) override;

    [[nodiscard]] TeamDocument& document() const { return *m_document; }
    [[nodiscard]] AthletePanel& athletes() const { return *m_athletes; }
    [[nodiscard]] ResultsView& results() const { return *m_results; }
    [[nodiscard]] ChartTabs& charts() const { return *m_charts; }

    void addAthlete(myTeamStruct athlete);
    void removeAthlete();
    void addCategory(const std::string& category);
    void removeCategory();
    void addSeason();
    void addRace();
    /// Takes out what has the focus: a run, a race, a season or an athlete.
    void removeCurrent();
    void editCurrent();
    /// Shows what split files or official lists have, and enters what was ticked.
    void takeOverFrom(const QStringList& paths);

    /// Asks for the season of the chosen athlete's losses.
    void requestLosses();
    /// Asks for the chosen athlete's season, once what is typed is in the file.
    void requestSeason();
    /// What of a season's figures is known from the team alone is being computed.
    [[nodiscard]] bool isComputingSeason() const { return m_work.isRunning(); }
    void askForAthlete();
    void askForResults();
    void previewCategorization();
    void saveChart();

signals:
    /// Where an athlete of the team loses time is to be shown.
    void lossesRequested(const QString& athlete, const QString& teamFile);
    /// How an athlete stands over the seasons is to be shown.
    void seasonRequested(const QString& athlete, const QString& category, const QString& teamFile);

protected:
    [[nodiscard]] FileReading readingOf(const QString& path) override;
    void takeFiles(const QStringList& paths) override;

private:
    TeamWindow(Workspace& workspace, std::unique_ptr<TeamDocument> document);
    void makeParts();
    void connectParts();
    void showAthlete();
    void showFigures();
    void showSeason();
    void tell(const std::string& text);
    void tellChartNotSaved(const QString& path, const QString& reason);
    void takeOverList(const QString& path);
    void takeOver(const RecognisedSplitFile& file);
    void apply(TakeOverDialog& dialog);

    /// Whose season, from which team.
    struct SeasonAsked {
        std::shared_ptr<const myTeamToSaveStruct> team;
        std::string athlete;
        std::string category;

        friend bool operator==(const SeasonAsked&, const SeasonAsked&) = default;
    };

    std::unique_ptr<TeamDocument> m_document;
    AthletePanel* m_athletes = nullptr;
    ResultsView* m_results = nullptr;
    SummaryPanel* m_summary = nullptr;
    ChartTabs* m_charts = nullptr;
    SeasonAsked m_asked; ///< whose figures are shown, or being computed
    BackgroundWork m_work;
};

} // namespace kavela::desktop
