#pragma once

#include "desktop/planning/body/measures.h"
#include "desktop/planning/season_panel.h"

#include <memory>

class QComboBox;
class QLabel;
class QTabWidget;

namespace kavela::desktop {

class MeasureTable;
class SeriesChart;

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
    [[nodiscard]] MeasureTable& table(Section section) const { return *m_parts[section].table; }
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
        std::unique_ptr<Measures> measures;
        MeasureTable* table = nullptr;
        SeriesChart* chart = nullptr;
        QLabel* words = nullptr;
        QString what; ///< a measurement, as a step of the undo stack
    };

    void addPart(Section section, const QString& title, const QString& what,
                 const QString& addText);
    void connectPart(Section section);
    void makeImport();
    void addMeasurement(Section section);
    void showCharts(const yearsplannings_v6& shown);
    [[nodiscard]] QString emptyText(Section section) const;

    Clock m_clock;
    QTabWidget* m_tabs;
    Part m_parts[3];
    QComboBox* m_index = nullptr;
};

} // namespace kavela::desktop
