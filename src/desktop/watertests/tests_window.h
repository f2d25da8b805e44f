#pragma once

#include "boatmotion/sessions.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/tool_window.h"
#include "desktop/watertests/result_columns.h"
#include "desktop/watertests/tests_document.h"

#include <exception>
#include <memory>

class QTabWidget;

namespace kavela {
struct RecognisedSplitFile;
}

namespace kavela::desktop {

class ChartView;
class ColumnTable;
class TestListPanel;
class ValuesPanel;

/// On-water tests: lap tests, sprints and eight tests, typed in or taken in from split files and
/// recordings, their charts laid over each other, and the table of their results.
class TestsWindow : public ToolWindow {
    Q_OBJECT

public:
    TestsWindow(Workspace& workspace, Autosave autosave);
    ~TestsWindow() override;

    /// A new file; the path is a folder, or a file that saving will propose.
    void startNew(const QString& path) override;

    enum Page { ChartPage, ValuePage, TablePage };
    void showPage(Page page);

    [[nodiscard]] TestsDocument& document() const { return *m_document; }
    [[nodiscard]] TestListPanel& list() const { return *m_list; }
    [[nodiscard]] ChartView& charts() const { return *m_charts; }

    /// A new test of the athlete that is chosen, ready to be typed.
    void addTest(TestKind kind);
    void duplicateTest();
    /// Takes out the selected tests; empties the cell where one is being edited in a table.
    void removeCurrent();
    /// Moves the choice in the list.
    void moveBy(int rows);

    void askForSplitFile();
    void askForRecording();
    /// Shows what split files and recordings hold, and takes in what was chosen.
    void takeIn(const QStringList& paths);

    void copyTable();
    void askAndExport();
    /// Writes the table of the listed tests; told where it cannot be written.
    void exportTable(const QString& path);

protected:
    [[nodiscard]] FileReading readingOf(const QString& path) override;
    void takeFiles(const QStringList& paths) override;

private:
    TestsWindow(Workspace& workspace, std::unique_ptr<TestsDocument> document);
    void makeParts();
    QWidget* makeTablePage();
    void connectParts();
    void showTests();
    void showTable();
    void tell(const QString& title, const QString& text);
    void takeIn(RecognisedSplitFile file);
    void readRecording(const QString& path);
    void takeIn(const QString& path, bmrawdata_v5 recording);
    void tellNotTaken(const QString& path, const std::exception_ptr& fault);
    void addAndChoose(const QString& what, std::vector<TestsDocument::Content> tests);
    [[nodiscard]] std::string chosenAthlete() const;
    [[nodiscard]] QString ownFolder() const;

    std::unique_ptr<TestsDocument> m_document;
    BackgroundWork m_takingIn;
    TestListPanel* m_list = nullptr;
    QTabWidget* m_pages = nullptr;
    ChartView* m_charts = nullptr;
    ValuesPanel* m_values = nullptr;
    std::unique_ptr<ColumnModel<TestResultRow, TestId>> m_results;
    ColumnTable* m_table = nullptr;
};

} // namespace kavela::desktop
