#pragma once

#include "performance/table_join.h"
#include "tables/table_reasons.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace kavela::desktop {

/// Where a list comes from.
struct ListOrigin {
    QString path;     ///< of its file; empty for the clipboard
    std::string list; ///< which of the file's lists
    QString title;    ///< how the coach calls it
};

/// What was made of a list, at one moment. Copies share what they have in common.
struct TableState {
    std::optional<TableSteps> steps;                           ///< none before a list was opened
    std::shared_ptr<const std::vector<KnownAthlete>> athletes; ///< null: joined with nobody
    /// By line of the list who is meant, by place among the athletes; none for nobody.
    std::map<std::int64_t, std::optional<std::size_t>> answers;
};

/// A list and what is made of it: every step can be taken back, and the list's file is never
/// written. So there is nothing to save: what is worth it leaves as text or with a race.
class TableDocument : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~TableDocument() override;

    /// Begins anew with a list; nothing leads behind it. Throws TableError where it is no table.
    void start(ListGrid list, ListOrigin origin);

    [[nodiscard]] bool hasList() const { return m_state->steps.has_value(); }
    [[nodiscard]] const ListOrigin& origin() const { return m_origin; }
    /// As it stands; without columns before a list was opened. It is not changed any more.
    [[nodiscard]] const std::shared_ptr<const ListTable>& table() const { return m_table; }
    /// The steps that made it.
    [[nodiscard]] std::vector<TableStep> steps() const;

    /// Why the number in a cell is what it is; nothing for a cell without one.
    [[nodiscard]] std::optional<Reason> whyOf(std::size_t row, std::size_t column) const;
    /// What stands in a line and column of the list, both counted from 1; nothing beyond it.
    [[nodiscard]] std::optional<QString> textAt(std::int64_t line, std::int64_t column) const;

    /// One more step, which can be undone. Throws TableError where it cannot be taken, and nothing
    /// changes.
    void take(const TableStep& step);

    /// Joins the rows with athletes that we know, in one step; answers of before are forgotten.
    /// Throws TableError where no column has names.
    void join(std::vector<KnownAthlete> athletes);
    [[nodiscard]] bool isJoined() const { return m_state->athletes != nullptr; }
    /// Null before join().
    [[nodiscard]] const std::vector<KnownAthlete>* athletes() const {
        return m_state->athletes.get();
    }
    /// By row who is meant, answers included; empty where nothing is joined or no column has names.
    [[nodiscard]] const std::vector<JoinedRow>& joined() const { return m_joined; }
    /// Says who a row is about, in one step: a place among the athletes, none for nobody.
    void answer(std::size_t row, std::optional<std::size_t> athlete);
    /// Rows about which only the coach can tell.
    [[nodiscard]] std::vector<std::size_t> unsureRows() const;

    [[nodiscard]] QUndoStack& undoStack() { return m_undo; }

signals:
    void changed();

private:
    class Step;

    void put(const QString& what, TableState after);
    void show(std::shared_ptr<const TableState> state);
    void follow();

    ListOrigin m_origin;
    std::shared_ptr<const TableState> m_state = std::make_shared<const TableState>();
    std::shared_ptr<const ListTable> m_table = std::make_shared<const ListTable>();
    std::vector<JoinedRow> m_joined;
    QUndoStack m_undo;
};

} // namespace kavela::desktop
