#pragma once

#include <stdexcept>

namespace kavela {

/// Something that a table cannot do or a list that is none; the text is for the coach: what is
/// wrong and where.
class TableError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace kavela
