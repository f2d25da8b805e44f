#pragma once

#include "desktop/race/race_document.h"
#include "desktop/race/split_table_model.h"

#include <QMainWindow>

class QComboBox;
class QLabel;
class QLineEdit;

namespace kavela::desktop {

class ChartPanel;
class FrozenTable;
class RunPanel;
class Workspace;

/// The race analyzer: the coloured split table of a race, its filters, and the selected run.
class RaceWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit RaceWindow(Workspace& workspace);

    /// Opens a split file; false, after an alert, when that failed.
    [[nodiscard]] bool open(const QString& path);

    [[nodiscard]] const RaceDocument& document() const { return m_document; }
    [[nodiscard]] const SplitTableModel& model() const { return m_model; }
    [[nodiscard]] FrozenTable& table() const { return *m_table; }

signals:
    void homeRequested();
    void settingsRequested();

private:
    void makeCentre();
    [[nodiscard]] QWidget* makeFilterBar();
    void makeFileMenu();
    void makeTableMenu();
    void makeContentMenu(QMenu& menu);
    QAction* preferenceAction(QMenu& menu, const QString& text, const QKeySequence& keys,
                              const char* key);
    void makeColourActions(QMenu& menu);

    void showDocument();
    void fillFilters();
    void applyFilter();
    void showSelection();
    void showCharts();
    void selectRun(std::size_t run);
    void clearFilter();
    void copySelection();
    void saveCsv();
    void offerReload();
    void useSelectionAsReference();

    Workspace& m_workspace;
    RaceDocument m_document;
    SplitTableModel m_model;
    FrozenTable* m_table = nullptr;
    RunPanel* m_panel = nullptr;
    ChartPanel* m_charts = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_subtitle = nullptr;
    QLabel* m_note = nullptr;
    QLabel* m_count = nullptr;
    QComboBox* m_phase = nullptr;
    QComboBox* m_category = nullptr;
    QLineEdit* m_name = nullptr;
};

} // namespace kavela::desktop
