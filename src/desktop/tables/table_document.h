#pragma once

#include "desktop/shell/document.h"
#include "performance/table_work.h"
#include "tables/table_reasons.h"

#include <QString>

#include <cstdint>
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

/// A step of the undo stack holds the list, which all share, and what was done to it. The table is
/// made of them anew: one for each step would cost far more than the step.
template <>
class PackedValue<TableWork> {
public:
    PackedValue(const std::shared_ptr<const TableWork>& value, const PackedValue* before);

    [[nodiscard]] std::shared_ptr<const TableWork> value() const;

private:
    TableWork m_rest;                         ///< without its steps
    std::shared_ptr<const ListGrid> m_source; ///< null before a list was opened
    std::vector<TableStep> m_steps;
};

/// A list and what is made of it: every step can be taken back, and the list's file is never
/// written. What was made is a file of its own, with the list in it, under a name beside the list's
/// that is free.
class TableDocument : public Document<TableWork> {
    Q_OBJECT

public:
    using Document::Document;
    ~TableDocument() override { keepPending(); }

    /// Begins anew with a list; nothing leads behind it. Throws TableError where it is no table.
    void start(ListGrid list, const ListOrigin& origin, QWidget* over);
    /// Goes on with what was made of a list and saved under a path.
    void goOn(TableWork work, const QString& path, QWidget* over);

    [[nodiscard]] bool hasList() const { return value().steps.has_value(); }
    [[nodiscard]] ListOrigin origin() const;
    /// The file of what was made of the list, where something was, else the list's; empty for one
    /// that was copied.
    [[nodiscard]] QString shownPath() const;
    /// Whether a file is the list's, or that of what was made of it.
    [[nodiscard]] bool isOf(const QString& path) const;
    [[nodiscard]] QString title() const override { return origin().title; }
    /// As it stands; without columns before a list was opened. It is not changed any more.
    [[nodiscard]] const std::shared_ptr<const ListTable>& table() const { return m_table; }
    /// The steps that made it.
    [[nodiscard]] std::vector<TableStep> steps() const;

    /// Why the number in a cell is what it is; nothing for a cell without one.
    [[nodiscard]] std::optional<Reason> whyOf(std::size_t row, std::size_t column) const;
    /// What the list says at a place of it, in a sentence; empty for one of a run.
    [[nodiscard]] QString textOfPlace(const Place& place) const;

    /// One more step, which can be undone. Throws TableError where it cannot be taken, and nothing
    /// changes.
    void take(const TableStep& step);

    /// Joins the rows with athletes that we know, in one step; answers of before are forgotten.
    /// Throws TableError where no column has names.
    void join(std::vector<KnownAthlete> athletes);
    [[nodiscard]] bool isJoined() const { return value().athletes != nullptr; }
    /// Null before join().
    [[nodiscard]] const std::vector<KnownAthlete>* athletes() const {
        return value().athletes.get();
    }
    /// By row who is meant, answers included; empty where nothing is joined or no column has names.
    [[nodiscard]] const std::vector<JoinedRow>& joined() const { return m_joined; }
    /// Says who a row is about, in one step: a place among the athletes, none for nobody.
    void answer(std::size_t row, std::optional<std::size_t> athlete);
    /// Rows about which only the coach can tell.
    [[nodiscard]] std::vector<std::size_t> unsureRows() const;

protected:
    void follow() override;
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] Content contentNow() const override;
    [[nodiscard]] bool recover(const std::string& content) override;

private:
    std::shared_ptr<const ListTable> m_table = std::make_shared<const ListTable>();
    std::vector<JoinedRow> m_joined;
};

} // namespace kavela::desktop
