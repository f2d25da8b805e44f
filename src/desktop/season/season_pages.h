#pragma once

#include "desktop/season/shown_season.h"

#include <QTabWidget>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace kavela::desktop {

class ChartFrame;
class ColumnTable;
class ComparisonPanel;
class FiguresPanel;
class ProgressionPanel;
class Workspace;

/// The figures of a season, a page for each kind: a chart beside its table.
class SeasonPages : public QTabWidget {
    Q_OBJECT

public:
    enum Page { Progression, Pairs, Spread, Trend, Heads, Rates, Places, Benchmarks, Compared };
    static constexpr int PageCount = Compared + 1;

    explicit SeasonPages(Workspace& workspace, QWidget* parent = nullptr);
    ~SeasonPages() override;

    /// Another season; the choices on the pages are offered anew where they hang on it.
    void take(const SharedSeason& season);
    /// One of its athletes on all pages; nothing happens without a season or for another number.
    void show(std::optional<std::size_t> athlete);

    void showPage(Page page);
    [[nodiscard]] Page page() const { return static_cast<Page>(currentIndex()); }
    /// In front.
    [[nodiscard]] ChartFrame& chart() const;
    [[nodiscard]] ColumnTable& table() const;
    /// Of all pages.
    [[nodiscard]] std::vector<ChartFrame*> charts() const;

    [[nodiscard]] ProgressionPanel& progression() const { return *m_progression; }
    /// Of the pages from Pairs to Benchmarks.
    [[nodiscard]] FiguresPanel& figures(Page page) const;
    [[nodiscard]] ComparisonPanel& compared() const { return *m_compared; }

private:
    static constexpr int FirstOfFigures = Pairs;

    void addFigures(Page page, const char* name, const QString& title, const QString& label,
                    const QStringList& choices);
    void showFigures(Page page);

    Workspace& m_workspace;
    SharedSeason m_season;
    std::optional<std::size_t> m_athlete;
    ProgressionPanel* m_progression;
    std::array<FiguresPanel*, Benchmarks - FirstOfFigures + 1> m_figures{};
    ComparisonPanel* m_compared;
};

} // namespace kavela::desktop
