#pragma once

#include "desktop/planning/body/measure_columns.h"
#include "desktop/planning/season_panel.h"

#include <functional>
#include <vector>

class QAction;
class QComboBox;
class QLabel;
class QTabWidget;

namespace kavela::desktop {

class ColumnTable;
class SeriesChart;
class TablePanel;

/// Body, resting heart rate and heart-rate variability of a season: tables to type into beside
/// their charts.
class BodyPanel : public SeasonPanel {
    Q_OBJECT

public:
    /// The clock says which day a new measurement is of.
    BodyPanel(PlanningDocument& document, Clock clock, QWidget* parent = nullptr);

    enum Section { Body, Resting, Variability };
    void showSection(Section section);
    [[nodiscard]] QTabWidget& sections() const { return *m_tabs; }
    [[nodiscard]] ColumnTable& table(Section section) const { return *m_parts[section].table; }
    [[nodiscard]] SeriesChart& chart(Section section) const { return *m_parts[section].chart; }
    /// Chooses the index of variability that the chart shows, by its column.
    void chooseIndex(int index);

    /// Shows what a list of variability measurements would bring, and takes it in after a yes as
    /// one step.
    void importVariability(const QString& path);
    /// Asks for such a list.
    void askForImport();

protected:
    void refresh() override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct Part {
        std::function<void()> show;
        std::function<ReferenceDate(int place)> dateAt;
        ColumnTable* table = nullptr;
        TablePanel* panel = nullptr;
        QAction* add = nullptr;
        SeriesChart* chart = nullptr;
        QLabel* words = nullptr;
    };
    struct PartTexts {
        const char* name; ///< of the table
        QString title;
        QString what; ///< a measurement, as a step of the undo stack
        QString add;
    };

    /// `list` gives the list of measurements of a season.
    template <class Record, class List>
    void addPart(Section section, const PartTexts& texts, List list,
                 const std::vector<Measure<Record>>& measures);
    void layOut(Section section, const PartTexts& texts, ColumnTable* table);
    void choosePoint(Section section, int series, int index);
    void makeImport();
    [[nodiscard]] ReferenceDate today() const;
    void showCharts(const yearsplannings_v6& shown);
    [[nodiscard]] QString emptyText(Section section) const;

    Clock m_clock;
    QTabWidget* m_tabs;
    Part m_parts[3];
    QComboBox* m_index = nullptr;
};

} // namespace kavela::desktop
