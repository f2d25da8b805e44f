#pragma once

#include "desktop/facts/watched_facts.h"
#include "desktop/season/season_pages.h"
#include "desktop/season/shown_season.h"
#include "desktop/season/watched_team.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/tool_window.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

class QStackedWidget;

namespace kavela::desktop {

class ChartFrame;
class ColumnTable;
class ComparisonPanel;
class EmptyPage;
class FactsStatus;
class FiguresPanel;
class PhonePages;
class ProgressionPanel;
class SeasonActions;
class SeasonHeader;
class SeasonReports;

/// How the athletes of a team stand over seasons: against the winners, against one another, and
/// against what chance alone would do. The team's file and the split files of its races are only
/// read, and read again as they change.
class SeasonWindow : public ToolWindow {
    Q_OBJECT

public:
    using Page = SeasonPages::Page;
    using enum SeasonPages::Page;
    static constexpr int PageCount = SeasonPages::PageCount;

    explicit SeasonWindow(Workspace& workspace);
    ~SeasonWindow() override;

    /// A team file, and files and folders of races, in place of those from before.
    void setPaths(const QStringList& paths);
    /// Adds them to those that are shown; a team takes the place of the one from before.
    [[nodiscard]] bool open(const QString& path) override;
    /// The team's file in front of those of the races.
    [[nodiscard]] QStringList paths() const override;
    [[nodiscard]] QString shownView() const override;
    /// Goes back to what shownView() told, as soon as the team is read.
    void showAgain(const QString& view);
    /// The team of before, with its races; nothing where there was none.
    void openRemembered();
    /// The races that a team was shown with last; none where it was another one.
    [[nodiscard]] static QStringList rememberedRaces(const Workspace& workspace,
                                                     const QString& teamFile);
    /// An athlete in a category, as soon as the team is read.
    void showAthlete(const QString& name, const QString& category);

    void chooseTeam();
    void chooseRaces();
    void chooseFolder();
    void readAgain();
    void stopReading() { m_facts.cancel(); }
    void showFailed();
    [[nodiscard]] bool hasFailed() const { return !m_facts.failed().empty(); }
    [[nodiscard]] bool isReading() const { return m_facts.isReading(); }

    void showPage(Page page);
    [[nodiscard]] Page page() const;
    [[nodiscard]] ChartFrame& chart() const;
    [[nodiscard]] ColumnTable& table() const;
    void saveChart();
    void saveTable();
    /// The athlete of the row that is chosen becomes the one that is shown, with the way through
    /// the races.
    void showChosenAthlete();

    /// Asks whose places are to be expected, a name a line.
    void askForField();
    void setField(const QStringList& names);

    /// None for the team's.
    void saveReport(std::optional<std::size_t> athlete);
    void previewReports();
    /// Asks whose page for a telephone is to be made, of the races that are shown.
    void askForPhonePage();
    [[nodiscard]] PhonePages& phonePages() const { return *m_phonePages; }
    [[nodiscard]] SeasonReports& reports() const { return *m_reports; }

    [[nodiscard]] SeasonHeader& header() const { return *m_header; }
    [[nodiscard]] ProgressionPanel& progression() const;
    /// Of the pages from Pairs to Benchmarks.
    [[nodiscard]] FiguresPanel& figures(Page page) const;
    [[nodiscard]] ComparisonPanel& compared() const;
    /// What is shown; null before the first team was read.
    [[nodiscard]] const SharedSeason& season() const { return m_season; }
    /// Something is being read or computed.
    [[nodiscard]] bool isBusy() const;
    [[nodiscard]] QString status() const;

signals:
    void pathsChanged();

protected:
    void takeFiles(const QStringList& paths) override;

private:
    void makeParts();
    [[nodiscard]] QWidget* makeContent();
    void connectParts();
    void takeTeam();
    void compute();
    void take(const SharedSeason& season);
    void showPages();
    void showStatus();
    void showTitle();
    void tell(const QString& text);
    void tellNotSaved(const QString& reason);

    WatchedTeam m_team;
    WatchedFacts m_facts;
    SharedSeason m_season;
    std::vector<std::string> m_field;
    QStringList m_view;                                  ///< to be gone back to
    std::optional<std::pair<QString, QString>> m_wanted; ///< athlete and category
    int m_asked = 0;                                     ///< number of the latest computation
    bool m_isComputing = false;

    QStackedWidget* m_pages = nullptr;
    EmptyPage* m_empty = nullptr;
    SeasonHeader* m_header = nullptr;
    SeasonPages* m_figures = nullptr;
    FactsStatus* m_status = nullptr;
    SeasonReports* m_reports = nullptr;
    PhonePages* m_phonePages = nullptr;
    SeasonActions* m_actions = nullptr;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
