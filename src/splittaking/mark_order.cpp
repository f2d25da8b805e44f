#include "splittaking/mark_order.h"

#include "common/number_text.h"
#include "common/text.h"
#include "splittaking/annotations/film_marks.h"

#include <cctype>

namespace kavela {

namespace {

std::optional<std::string> refusalBeside(const std::optional<Neighbour>& neighbour,
                                         const CMTime& moment, std::strong_ordering wanted) {
    if (!neighbour || !isTaken(neighbour->moment))
        return std::nullopt;
    const auto order = orderOf(moment, neighbour->moment);
    if (order == wanted)
        return std::nullopt;
    if (order == std::strong_ordering::equal)
        return alreadyThere(neighbour->name);
    const std::string at = saidNumber(hundredthsText(neighbour->moment.seconds()));
    return wanted == std::strong_ordering::greater
               ? say("This frame lies before {} at {}.", neighbour->name, at)
               : say("This frame lies after {} at {}.", neighbour->name, at);
}

} // namespace

std::optional<std::string> refusalBetween(const std::optional<Neighbour>& before,
                                          const std::optional<Neighbour>& after,
                                          const CMTime& moment) {
    auto refusal = refusalBeside(before, moment, std::strong_ordering::greater);
    return refusal ? refusal : refusalBeside(after, moment, std::strong_ordering::less);
}

std::string alreadyThere(std::string name) {
    name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
    return say("{} is marked on this frame already.", name);
}

} // namespace kavela
