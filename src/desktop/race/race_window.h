#pragma once

#include "desktop/shell/tool_window.h"
#include "splitdata/document.h"

#include <optional>
#include <vector>

class QSplitter;
class QTabBar;

namespace kavela::desktop {

class FrozenTable;
class RaceActions;
class RaceDocument;
class RaceView;
class SplitTableModel;
class Workspace;
struct ReadRace;

/// The race analyzer: one or several races, as tabs or side by side.
class RaceWindow : public ToolWindow {
    Q_OBJECT

public:
    explicit RaceWindow(Workspace& workspace);
    ~RaceWindow() override;

    /// Opens a split file in a tab of its own and shows it; a file that is open already is shown.
    /// False, after an alert, when it cannot be opened.
    [[nodiscard]] bool open(const QString& path) override;
    /// The same with a file that was read beside the windows.
    [[nodiscard]] bool openRead(ReadRace& race);
    /// Shows a race as it is being edited elsewhere, in the tab of its file or in one of its own.
    void showRace(splittakerdata031 race, const QString& path, const QString& note);

    [[nodiscard]] const std::vector<RaceView*>& views() const { return m_views; }
    /// The race that the menus act on; there is always one once a file was opened.
    [[nodiscard]] RaceView& view() const;
    [[nodiscard]] const RaceDocument& document() const;
    [[nodiscard]] const SplitTableModel& model() const;
    [[nodiscard]] FrozenTable& table() const;
    [[nodiscard]] QStringList paths() const override;

    void showView(int index);
    void showNextView(int step);
    void setSideBySide(bool isSideBySide);
    [[nodiscard]] bool isSideBySide() const { return m_isSideBySide; }
    /// Closes the race in front, and the window with the last one.
    void closeView();

signals:
    void viewsChanged();
    /// The race in front is to be timed, or timed on.
    void takingRequested(const QString& path);
    /// Where time was lost is to be shown: of a run of the file, or of any.
    void lossesRequested(const QStringList& paths, std::optional<std::size_t> run);
    /// The frame behind a time is wanted: of a run of the file, of a split counted from 1.
    void momentRequested(const QString& path, int run, std::size_t split);
    /// The lists of results that the race in front carries are to be shown as tables.
    void tablesRequested(const QString& path);
    /// Where the race in front and official results differ is to be shown.
    void officialDifferencesRequested(const QString& path);
    /// The course of the race in front is to be drawn.
    void courseRequested(const QString& path);
    /// The penalties of the race in front are to be shown in a window of their own.
    void penaltiesRequested(const QStringList& paths);

protected:
    void closeFront() override { closeView(); }

private:
    void addView(RaceView* view);
    [[nodiscard]] bool showViewOf(const QString& path);
    void showViews();
    void followFocus(const QWidget* focused);

    std::vector<RaceView*> m_views;
    int m_current = -1;
    bool m_isSideBySide = false;
    QTabBar* m_tabs;
    QSplitter* m_splitter;
    RaceActions* m_actions;
};

} // namespace kavela::desktop
