#include "splittaking/mark_order.h"

#include "common/number_text.h"
#include "splittaking/annotations/film_marks.h"

#include <cctype>

namespace kavela {

namespace {

std::optional<std::string> refusalBeside(const std::optional<Neighbour>& neighbour,
                                         const CMTime& moment, std::strong_ordering wanted,
                                         const char* wrongSide) {
    if (!neighbour || !isTaken(neighbour->moment))
        return std::nullopt;
    const auto order = orderOf(moment, neighbour->moment);
    if (order == wanted)
        return std::nullopt;
    if (order == std::strong_ordering::equal)
        return alreadyThere(neighbour->name);
    return std::string("This frame lies ") + wrongSide + ' ' + neighbour->name + " at " +
           hundredthsText(neighbour->moment.seconds()) + '.';
}

} // namespace

std::optional<std::string> refusalBetween(const std::optional<Neighbour>& before,
                                          const std::optional<Neighbour>& after,
                                          const CMTime& moment) {
    auto refusal = refusalBeside(before, moment, std::strong_ordering::greater, "before");
    return refusal ? refusal : refusalBeside(after, moment, std::strong_ordering::less, "after");
}

std::string alreadyThere(std::string name) {
    name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
    return name + " is marked on this frame already.";
}

} // namespace kavela
