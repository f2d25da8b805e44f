#pragma once

#include "analysis/course_gaps.h"
#include "desktop/charts/chart_race.h"

#include <QWidget>

#include <vector>

class QAction;
class QComboBox;
class QLabel;
class QStackedWidget;
class QTabBar;
class QToolBar;

namespace kavela::desktop {

class Chart;

/// The charts of a race under one bar: tabs, the reference, the switches of the chart in front,
/// saving. The window links it with its table: `setSelection` one way, `runActivated` the other.
class ChartPanel : public QWidget {
    Q_OBJECT

public:
    explicit ChartPanel(QWidget* parent = nullptr);

    /// The runs that the table shows. The selection has to be set again; a chosen reference run
    /// stays the reference, by its times alone where it is not among them.
    /// `isFiltered` when there are runs of the race that are not among these.
    void setRace(const RaceSet& set, bool isFiltered = false);
    void setSelection(const std::vector<std::size_t>& runs);
    void setPenaltiesIncluded(bool included);

    [[nodiscard]] const CourseReference& reference() const { return m_reference; }
    void setReference(const CourseReference& reference);
    /// Offers the section times of runs from elsewhere as references, in place of those offered
    /// before. A chosen one that is gone gives way to the best run.
    void setForeignReferences(const std::vector<CourseReference>& references);

    [[nodiscard]] const std::vector<Chart*>& charts() const { return m_charts; }
    [[nodiscard]] Chart& currentChart() const;
    void setCurrentChart(int index);
    /// Shows a chart and gives it the focus.
    void goToChart(int index);
    /// Shows all of the chart in front again.
    void fit();
    /// Asks where to save the chart in front, and saves it there.
    void askAndSave();

    /// Saves the chart in front; throws FileError.
    void saveChart(const QString& path);

signals:
    void runActivated(std::size_t run);
    /// The user chose another reference, or the chosen run has another place.
    void referenceChanged(const kavela::CourseReference& reference);
    void chartSaved(const QString& path);
    void savingFailed(const QString& path, const QString& reason);

private:
    void addChart(Chart* chart);
    void makeBar();
    void makeActions();
    void showCurrent();
    void fillReferences();
    void offerReference(const CourseReference& reference);
    void chooseReference(int index);
    void applyReference();
    void followReferenceRun();
    void noteReferenceRun();
    [[nodiscard]] QString titleOf(const CourseReference& reference) const;

    ChartRace m_race;
    std::vector<std::size_t> m_selection;
    CourseReference m_reference;
    std::optional<analyzerdata> m_referenceRun; ///< where the reference is, or stands for, a run
    bool m_penaltiesIncluded = false;
    std::vector<CourseReference> m_foreign; ///< from elsewhere
    std::vector<CourseReference> m_offered; ///< as in the chooser
    std::vector<Chart*> m_charts;

    QTabBar* m_tabs;
    QToolBar* m_bar;
    QStackedWidget* m_stack;
    QComboBox* m_references = nullptr;
    QAction* m_referenceLabelAction = nullptr;
    QAction* m_referenceAction = nullptr;
};

} // namespace kavela::desktop
