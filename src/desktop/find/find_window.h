#pragma once

#include "common/why.h"
#include "desktop/facts/watched_facts.h"
#include "desktop/find/found_table.h"
#include "desktop/find/offered_values.h"
#include "desktop/find/query_search.h"
#include "desktop/shell/tool_window.h"

#include <filesystem>
#include <optional>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTabWidget;

namespace kavela::desktop {

class FindActions;
class KeptQueries;
class QueryEdit;
class QueryFault;
class QueryForm;
class ReadingProgress;
class SearchPlaces;

/// The search over the split files of a season: a query typed or set in fields, and its rows, each
/// of which opens the run at its frame.
class FindWindow : public ToolWindow {
    Q_OBJECT

public:
    explicit FindWindow(Workspace& workspace,
                        std::filesystem::path cacheFolder = userCacheFolder());
    ~FindWindow() override;

    [[nodiscard]] QStringList paths() const override;
    /// Searches a file or folder too.
    [[nodiscard]] bool open(const QString& path) override;
    /// Searches these beside what is searched already.
    void searchAlso(const QStringList& paths);
    /// Searches these alone.
    void searchIn(const QStringList& paths);

    /// Asks a query in place of the one that is there.
    void ask(const QString& query);
    void typeQuery();
    void keepQuery();
    [[nodiscard]] bool canKeepQuery() const;
    /// The fields, or the queries at hand.
    void showSide(int page);

    /// Of the row that is chosen in the table with the focus, else among the results.
    [[nodiscard]] std::optional<Place> currentPlace() const;
    void showRun();
    void openRace();
    void requestLosses();
    /// Somebody can show time losses.
    [[nodiscard]] bool canShowLosses() const;
    [[nodiscard]] bool isGrouped() const;
    /// Goes on to the rows of the chosen group.
    void enterGroup();

    void chooseAndSaveCsv();
    /// Writes the whole result.
    void saveCsv(const QString& path);
    void showFailed();

    [[nodiscard]] WatchedFacts& facts() { return m_facts; }
    [[nodiscard]] QueryEdit& query() const { return *m_edit; }
    [[nodiscard]] QueryForm& form() const { return *m_form; }
    [[nodiscard]] QueryFault& fault() const { return *m_fault; }
    [[nodiscard]] FoundTable& results() const { return *m_results; }
    [[nodiscard]] FoundTable& members() const { return *m_members; }
    [[nodiscard]] KeptQueries& queries() const { return *m_queries; }
    [[nodiscard]] SearchPlaces& places() const { return *m_places; }
    /// What the line at the foot says of the result.
    [[nodiscard]] QString status() const;

signals:
    void pathsChanged();
    /// The time losses of a run are wanted.
    void lossesRequested(const QString& path, std::size_t run);

protected:
    void takeFiles(const QStringList& paths) override;

private:
    void makeParts();
    [[nodiscard]] QWidget* makeSide();
    [[nodiscard]] QWidget* makeMain();
    void makeStatus();
    void connectParts();
    void connectReading();
    void readQuery();
    void take(const Query& query);
    void search();
    void showFound(const std::shared_ptr<const Found>& found);
    void showGroup();
    void showPlace();
    void showReading();
    void takeFacts();
    void tellContent();
    [[nodiscard]] QString nothingText() const;
    void offerValues();
    [[nodiscard]] const FoundTable& front() const;

    WatchedFacts m_facts;
    QuerySearch m_search;
    QuerySearch m_groupSearch;
    Query m_query; ///< the last one that could be read
    OfferedValues m_values;
    bool m_isEntered = false; ///< the coach goes on to what is found
    FindActions* m_actions = nullptr;
    QueryEdit* m_edit = nullptr;
    QueryFault* m_fault = nullptr;
    QueryForm* m_form = nullptr;
    KeptQueries* m_queries = nullptr;
    SearchPlaces* m_places = nullptr;
    FoundTable* m_results = nullptr;
    FoundTable* m_members = nullptr;
    QPushButton* m_keep = nullptr;
    QTabWidget* m_side = nullptr;
    QStackedWidget* m_pages = nullptr;
    ReadingProgress* m_progress = nullptr;
    QLabel* m_status = nullptr;
    QLabel* m_place = nullptr;
};

} // namespace kavela::desktop
