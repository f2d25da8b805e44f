#pragma once

#include "planning/test_records.h"

#include <string>
#include <vector>

/// What is odd about a test and yet no reason to refuse it, each in one sentence for people.
namespace kavela {

[[nodiscard]] std::vector<std::string> odditiesOf(const testStruct& test);
[[nodiscard]] std::vector<std::string> odditiesOf(const datafor8& eight);

} // namespace kavela
