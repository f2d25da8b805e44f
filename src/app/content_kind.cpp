#include "app/content_kind.h"

#include <simdjson.h>

#include <algorithm>
#include <array>

namespace kavela {

namespace {

using Element = simdjson::dom::element;

/// Members that every version of a kind has, and no other kind together.
struct KindOfMembers {
    std::string_view kind;
    std::array<const char*, 2> members;
};

constexpr std::array Kinds{KindOfMembers{"split file", {"info", "athletes"}},
                           KindOfMembers{"raw session", {"info", "boatmotion"}},
                           KindOfMembers{"smart session", {"info", "strokesData"}},
                           KindOfMembers{"smart session", {"info", "boatdata"}},
                           KindOfMembers{"test session", {"info", "test"}},
                           KindOfMembers{"selection races", {"rules", "categories"}},
                           KindOfMembers{"team", {"realMyTeam", "realMyTeam"}},
                           KindOfMembers{"planning", {"coach", "athletes"}},
                           KindOfMembers{"test results", {"tests", "eights"}},
                           KindOfMembers{"comparison", {"films", "synchronise"}},
                           KindOfMembers{"path", {"boxes", "cameras"}},
                           KindOfMembers{"table", {"sourcelist", "steps"}}};

bool holdsAny(const Element& parent, std::string_view list) {
    simdjson::dom::array entries;
    return parent[list].get(entries) == simdjson::SUCCESS && entries.begin() != entries.end();
}

} // namespace

ContentKind contentKind(const JsonDocument& json) {
    const Element root = json.root();
    const auto has = [&](const char* member) { return root[member].error() == simdjson::SUCCESS; };
    ContentKind found;
    const auto kind = std::ranges::find_if(
        Kinds, [&](const KindOfMembers& known) { return std::ranges::all_of(known.members, has); });
    if (kind == Kinds.end())
        return found;
    found.kind = kind->kind;
    found.hasRuns = holdsAny(root, "athletes");
    Element cross;
    if (root["crossracedata"].get(cross) == simdjson::SUCCESS)
        found.hasCross = holdsAny(cross, "timetrials") || holdsAny(cross, "eliphase");
    return found;
}

} // namespace kavela
