#include "common/record_convert.h"

#include <charconv>

namespace kavela {

void convertValue(std::string&& from, std::int64_t& to) {
    const char* begin = from.data();
    const char* const end = begin + from.size();
    if (from.starts_with('+') && !from.starts_with("+-"))
        ++begin;
    std::int64_t number = 0;
    const auto result = std::from_chars(begin, end, number);
    to = result.ec == std::errc{} && result.ptr == end ? number : 0;
}

void convertValue(std::vector<std::string>&& from, std::string& to) {
    to.clear();
    for (std::size_t i = 0; i < from.size(); ++i) {
        if (i > 0)
            to += '\n';
        to += from[i];
    }
}

} // namespace kavela
