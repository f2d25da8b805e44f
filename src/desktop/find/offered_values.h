#pragma once

#include "facts/query_columns.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kavela::desktop {

/// What is offered for the columns of a query, kept as long as the facts are the same: the same
/// names are offered at every letter.
class OfferedValues {
public:
    /// Other facts, with other values.
    void setFacts(std::shared_ptr<const FactStore> facts);

    /// All values of a column, in the order of people.
    [[nodiscard]] const std::vector<std::string>& of(What what, const QueryColumn& column);

private:
    std::shared_ptr<const FactStore> m_facts = std::make_shared<const FactStore>();
    std::map<std::pair<What, const QueryColumn*>, std::vector<std::string>> m_values;
};

} // namespace kavela::desktop
