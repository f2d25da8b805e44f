#pragma once

#include "boatmotion/sessions.h"
#include "desktop/shell/document.h"
#include "desktop/shell/tool_window.h"

class QComboBox;
class QLabel;
class QListWidget;

namespace kavela::desktop {

class ColumnTable;
class GridModel;
class SeriesChart;

/// An on-water test session that is looked at: nothing in it changes.
class TestSessionFile : public Document<varoTestAlldata> {
    Q_OBJECT

public:
    using Document::Document;
    ~TestSessionFile() override { keepPending(); }

    void show(varoTestAlldata session, const QString& path, QWidget* over);

protected:
    [[nodiscard]] Content contentNow() const override;
    [[nodiscard]] bool recover(const std::string& content) override;
};

/// Shows the attempts of a test session: the stroke data of the chosen one by kind, its sprint data
/// and the heart rate, as a chart and as a table.
class TestSessionWindow : public ToolWindow {
    Q_OBJECT

public:
    TestSessionWindow(Workspace& workspace, Autosave autosave);
    ~TestSessionWindow() override;

    /// False, after an alert, when the file is no test session.
    [[nodiscard]] bool open(const QString& path) override;

    void chooseAttempt(int place);
    [[nodiscard]] GridModel& table() const { return *m_model; }
    [[nodiscard]] SeriesChart& chart() const { return *m_chart; }

private:
    TestSessionWindow(Workspace& workspace, std::unique_ptr<TestSessionFile> file);
    void makeParts();
    void makeMenus();
    void showSession();
    void showKinds();
    void showData();
    void askAndExport();
    [[nodiscard]] const differentGTdata* attempt() const;

    std::unique_ptr<TestSessionFile> m_session;
    QLabel* m_title = nullptr;
    QListWidget* m_attempts = nullptr;
    QComboBox* m_kinds = nullptr; ///< every kind, all of them, and the sprint data
    SeriesChart* m_chart = nullptr;
    GridModel* m_model = nullptr;
    ColumnTable* m_view = nullptr;
};

} // namespace kavela::desktop
