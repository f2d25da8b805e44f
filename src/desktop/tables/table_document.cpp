#include "desktop/tables/table_document.h"

#include "common/text.h"
#include "desktop/shell/qt_text.h"
#include "tables/table_error.h"

#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

class TableDocument::Step : public QUndoCommand {
public:
    Step(TableDocument& document, const QString& what, std::shared_ptr<const TableState> before,
         std::shared_ptr<const TableState> after)
        : QUndoCommand(what),
          m_document(document),
          m_before(std::move(before)),
          m_after(std::move(after)) {}
    void undo() override { m_document.show(m_before); }
    void redo() override { m_document.show(m_after); }

private:
    TableDocument& m_document;
    std::shared_ptr<const TableState> m_before;
    std::shared_ptr<const TableState> m_after;
};

TableDocument::~TableDocument() {
    m_undo.disconnect(); // it tells of its end, when the rest is gone already
}

void TableDocument::start(ListGrid list, ListOrigin origin) {
    TableState state;
    state.steps.emplace(std::move(list));
    m_origin = std::move(origin);
    m_undo.clear();
    show(std::make_shared<const TableState>(std::move(state)));
}

std::vector<TableStep> TableDocument::steps() const {
    return hasList() ? m_state->steps->steps() : std::vector<TableStep>();
}

std::optional<Reason> TableDocument::whyOf(std::size_t row, std::size_t column) const {
    return hasList() ? explainTable(*m_state->steps, row, column, m_origin.path.toStdString())
                     : std::nullopt;
}

std::optional<QString> TableDocument::textAt(std::int64_t line, std::int64_t column) const {
    if (!hasList() || column < 1)
        return std::nullopt;
    const std::vector<GridLine>& lines = m_state->steps->source().lines;
    const auto found = std::ranges::find(lines, line, &GridLine::number);
    const auto place = static_cast<std::size_t>(column - 1);
    if (found == lines.end() || place >= found->fields.size())
        return std::nullopt;
    return qtText(found->fields[place]);
}

void TableDocument::take(const TableStep& step) {
    if (!hasList())
        throw TableError(say("No list is open."));
    TableState after = *m_state;
    after.steps = m_state->steps->with(step);
    put(qtText(stepText(step)), std::move(after));
}

/// Joined once here, so that a table without names is refused before it is a step.
void TableDocument::join(std::vector<KnownAthlete> athletes) {
    (void)joinedRows(*m_table, athletes);
    TableState after = *m_state;
    after.athletes = std::make_shared<const std::vector<KnownAthlete>>(std::move(athletes));
    after.answers.clear();
    put(tr("Join the athletes"), std::move(after));
}

void TableDocument::answer(std::size_t row, std::optional<std::size_t> athlete) {
    TableState after = *m_state;
    after.answers[m_table->lines.at(row)] = athlete;
    put(tr("Say who line %1 is").arg(m_table->lines[row]), std::move(after));
}

std::vector<std::size_t> TableDocument::unsureRows() const {
    std::vector<std::size_t> rows;
    for (const JoinedRow& joined : m_joined)
        if (joined.certainty == JoinCertainty::Unsure && m_table->lines[joined.row] > 0)
            rows.push_back(joined.row);
    return rows;
}

void TableDocument::put(const QString& what, TableState after) {
    m_undo.push(
        new Step(*this, what, m_state, std::make_shared<const TableState>(std::move(after))));
}

void TableDocument::show(std::shared_ptr<const TableState> state) {
    m_state = std::move(state);
    follow();
    emit changed();
}

/// A pivot, or a table whose names were left out, is about nobody any more: it can be joined again
/// when that step is taken back.
void TableDocument::follow() {
    m_table = std::make_shared<const ListTable>(hasList() ? m_state->steps->table() : ListTable());
    m_joined.clear();
    if (!m_state->athletes)
        return;
    try {
        m_joined = joinedRows(*m_table, *m_state->athletes);
    } catch (const TableError&) {
        return;
    }
    for (JoinedRow& joined : m_joined) {
        const auto answer = m_state->answers.find(m_table->lines[joined.row]);
        if (answer == m_state->answers.end())
            continue;
        joined.certainty = answer->second ? JoinCertainty::Certain : JoinCertainty::None;
        joined.athletes.clear();
        if (answer->second)
            joined.athletes.push_back(*answer->second);
    }
}

} // namespace kavela::desktop
