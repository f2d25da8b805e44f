#include "desktop/find/offered_values.h"

#include "facts/query_completion.h"

namespace kavela::desktop {

void OfferedValues::setFacts(std::shared_ptr<const FactStore> facts) {
    m_facts = std::move(facts);
    m_values.clear();
}

/// What is told of a file or a run is the same for all kinds of its rows.
const std::vector<std::string>& OfferedValues::of(What what, const QueryColumn& column) {
    const What asked = column.level == ColumnLevel::Row ? what : What::Runs;
    const auto [values, isNew] = m_values.try_emplace({asked, &column});
    if (isNew)
        values->second = valuesIn(*m_facts, what, column);
    return values->second;
}

} // namespace kavela::desktop
