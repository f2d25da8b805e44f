#pragma once

#include "analysis/comparison_row.h"
#include "analysis/course_gaps.h"
#include "analysis/race_set.h"
#include "analysis/split_table.h"
#include "analysis/table_figures.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/file_stamp.h"

#include <QFileSystemWatcher>
#include <QObject>

#include <functional>
#include <optional>

class QWidget;

namespace kavela::desktop {

class Workspace;
struct ReadRace;

/// Which runs of the race are shown. An empty text accepts every run.
struct RunFilter {
    QString phase;
    QString category;
    QString name; ///< part of a name

    friend bool operator==(const RunFilter&, const RunFilter&) = default;
};

/// What a row of the table is, whatever order, filter and settings make of its place.
struct RowKey {
    enum class Kind {
        Run,   ///< of this race
        Ideal, ///< the ideal run
        Other, ///< a run of another race
    };
    Kind kind = Kind::Run;
    /// Of the run in its file, counted from 0; of the runs of other races, as they were added.
    std::size_t number = 0;

    friend bool operator==(const RowKey&, const RowKey&) = default;
};

/// Where each run of the file as it was before stands in the file as it is now; none for one that
/// is gone.
using RunMoves = std::vector<std::optional<std::size_t>>;

/// A race in the analyzer: the runs of a split file, those that the filter leaves, and their table
/// as the preferences want it. The file itself is never edited here.
class RaceDocument : public QObject {
    Q_OBJECT

public:
    explicit RaceDocument(Workspace& workspace, QObject* parent = nullptr);

    /// Takes over a split file that was read. False, after an alert, where it could not be read;
    /// the document is then as it was.
    [[nodiscard]] bool open(ReadRace& race, QWidget* over);
    /// Reads the file again beside the window; comparisons stay, and the filter as far as there are
    /// runs for it. `done` is called once it is shown; where it cannot be read, that is told.
    void reload(QWidget* over, const std::function<void()>& done);

    /// Shows a document that is being edited elsewhere, as the file at a path would be shown.
    void show(splittakerdata031 document, const QString& path);

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] const infodata031& info() const { return m_info; }
    /// What the file was before it was opened, when it was of an older release.
    [[nodiscard]] const QString& upgradeNote() const { return m_upgradeNote; }

    [[nodiscard]] const RaceSet& wholeSet() const { return m_whole; }
    [[nodiscard]] const RaceSet& shownSet() const { return m_shown; }
    /// Another number for every other set of runs that is shown.
    [[nodiscard]] unsigned shownVersion() const { return m_shownVersion; }
    [[nodiscard]] const SplitTable& table() const { return m_table; }
    [[nodiscard]] const TableFigures& figures() const { return *m_figures; }
    [[nodiscard]] TableSettings settings() const;

    [[nodiscard]] const RunFilter& filter() const { return m_filter; }
    void setFilter(const RunFilter& filter);
    void setAccumulated(bool accumulated);
    [[nodiscard]] bool isAccumulated() const { return m_isAccumulated; }

    /// What the runs are held against beside each other: the ideal run, runs of other races.
    [[nodiscard]] const std::vector<ComparisonRow>& comparisons() const { return m_comparisons; }
    /// What stands in the comparison rows, in their order.
    [[nodiscard]] std::vector<RowKey> comparisonKeys() const;
    /// What a row holds under the settings as they are, whether it is shown or not; none when there
    /// is no such run.
    [[nodiscard]] std::optional<ComparisonRow> valuesOf(const RowKey& row) const;
    void setIdealShown(bool isShown);
    [[nodiscard]] bool isIdealShown() const { return m_isIdealShown; }
    /// Adds a run of another race; `race` is what that race is called.
    void addComparison(const analyzerdata& run, const QString& race);
    void clearComparisons();
    /// The runs of other races as references of the charts.
    [[nodiscard]] std::vector<CourseReference> courseReferences() const;

signals:
    /// The file was read again; `tableChanged` follows. Whoever keeps numbers of runs of the file
    /// renumbers them.
    void runsMoved(const kavela::desktop::RunMoves& moves);
    /// The table is another one: other runs, values or colours.
    void tableChanged();
    /// The file on the disk is not the one that was opened any more.
    void changedOnDisk();

private:
    [[nodiscard]] bool take(ReadRace& race, QWidget* over);
    void takeOver(infodata031 info, RaceSet now);
    void keepFilterPossible();
    void chooseRuns();
    void rebuild();
    void rebuildComparisons();
    void watch(const FileStamp& read);
    void noticeDisk();

    Workspace& m_workspace;
    QFileSystemWatcher m_watcher;
    QString m_path;
    QString m_upgradeNote;
    FileStamp m_known; ///< the file as it was read
    infodata031 m_info;
    RunFilter m_filter;
    bool m_isAccumulated = false;
    bool m_isIdealShown = false;
    std::vector<analyzerdata> m_foreign; ///< runs of other races, their event being that race
    std::vector<ComparisonRow> m_comparisons;
    RaceSet m_whole;
    RaceSet m_shown;
    unsigned m_shownVersion = 0;
    SplitTable m_table;
    std::optional<TableFigures> m_figures;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
