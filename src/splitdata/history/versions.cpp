#include "splitdata/history/versions.h"

#include "common/json_decode.h"
#include "splitdata/history/old_versions.h"
#include "splitdata/history/run_history.h"

#include <vector>

namespace kavela {

void convertValue(std::vector<std::vector<ReferenceDate>>&& from, std::vector<fixMarkStruct>& to) {
    to.clear();
    for (auto& dates : from)
        to.push_back({static_cast<std::int64_t>(to.size()), std::move(dates)});
}

namespace {

bool readCurrent(simdjson::dom::element root, splittakerdata031& document, Fault& fault) {
    return tryDecode(root, document, fault);
}

} // namespace

std::span<const DocumentVersion> documentVersions() {
    static const std::vector<DocumentVersion> versions = [] {
        std::vector<DocumentVersion> all{{"splittakerdata031", "0.31", readCurrent}};
        for (const auto part : {versions022To030(), versions015To021(), versions02To014()})
            all.insert(all.end(), part.begin(), part.end());
        return all;
    }();
    return versions;
}

} // namespace kavela
