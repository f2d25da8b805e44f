#pragma once

#include "desktop/facts/watched_facts.h"
#include "desktop/penalties/penalty_figures.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/tool_window.h"

class QLabel;
class QStackedWidget;
class QTabWidget;

namespace kavela::desktop {

class ChartFrame;
class ColumnTable;
class CostPanel;
class CoursePanel;
class DetailsPanel;
class EmptyPage;
class FactsStatus;
class PenaltiesActions;
class PenaltyFilter;
class RatesPanel;
class TradeOffPanel;

/// Which gates are touched and missed, by whom, what it cost in places, and whether speed pays: of
/// one race, of several, or of all in a folder. Files are only read, and read again as they change.
class PenaltiesWindow : public ToolWindow {
    Q_OBJECT

public:
    enum Page { Course, Rates, Details, Costs, RiskAndSpeed };

    explicit PenaltiesWindow(Workspace& workspace);
    ~PenaltiesWindow() override;

    /// Shows these files and folders in place of those from before.
    void setPaths(const QStringList& paths);
    /// The same for one; true, since it is told later what cannot be read.
    [[nodiscard]] bool open(const QString& path) override;
    [[nodiscard]] QStringList paths() const override;

    void chooseFiles();
    void chooseFolder();
    void readAgain() { m_facts.readAgain(); }

    void showPage(Page page);
    [[nodiscard]] Page page() const;
    /// The chart in front; null on a page without one.
    [[nodiscard]] ChartFrame* chart() const;
    void saveChart();
    /// The table in front; null on a page without one.
    [[nodiscard]] ColumnTable* table() const;
    void saveTable();
    void stopReading() { m_facts.cancel(); }
    [[nodiscard]] bool isReading() const { return m_facts.isReading(); }
    /// Tells which files could not be read, and why.
    void showFailed();
    [[nodiscard]] bool hasFailed() const { return !m_facts.failed().empty(); }

    [[nodiscard]] PenaltyFilter& filter() const { return *m_filter; }
    [[nodiscard]] CoursePanel& course() const { return *m_course; }
    [[nodiscard]] RatesPanel& rates() const { return *m_rates; }
    [[nodiscard]] DetailsPanel& details() const { return *m_details; }
    [[nodiscard]] CostPanel& costs() const { return *m_costs; }
    [[nodiscard]] TradeOffPanel& tradeOff() const { return *m_tradeOff; }

    /// What is shown; null before the first files were read.
    [[nodiscard]] const SharedFigures& figures() const { return m_figures; }
    /// Files are being read, or what they say is being computed.
    [[nodiscard]] bool isBusy() const;
    /// What is told below: how many runs, and what was left out.
    [[nodiscard]] QString status() const;

signals:
    /// Other files and folders are shown.
    void pathsChanged();
    /// Other figures are shown.
    void shown();

protected:
    /// Split files and folders join those that are shown.
    void takeFiles(const QStringList& paths) override;

private:
    void makeParts();
    [[nodiscard]] QWidget* makeContent();
    void connectParts();
    void takeFacts();
    void compute();
    void take(const SharedFigures& figures);
    void showStatus();
    void showTitle();

    WatchedFacts m_facts;
    SharedFigures m_figures;
    int m_asked = 0; ///< number of the latest computation
    bool m_isComputing = false;

    QStackedWidget* m_pages = nullptr;
    EmptyPage* m_empty = nullptr;
    PenaltyFilter* m_filter = nullptr;
    QLabel* m_clean = nullptr;
    QTabWidget* m_tabs = nullptr;
    CoursePanel* m_course = nullptr;
    RatesPanel* m_rates = nullptr;
    DetailsPanel* m_details = nullptr;
    CostPanel* m_costs = nullptr;
    TradeOffPanel* m_tradeOff = nullptr;
    FactsStatus* m_status = nullptr;
    PenaltiesActions* m_actions = nullptr;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
