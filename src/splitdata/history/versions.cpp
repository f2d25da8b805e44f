#include "splitdata/history/versions.h"

#include "common/json_decode.h"
#include "splitdata/history/documents.h"
#include "splitdata/history/video_names.h"

#include <array>

namespace kavela {

void convertValue(std::vector<std::vector<ReferenceDate>>&& from, std::vector<fixMarkStruct>& to) {
    to.clear();
    for (auto& dates : from)
        to.push_back({static_cast<std::int64_t>(to.size()), std::move(dates)});
}

namespace {

using namespace history;

bool readCurrent(simdjson::dom::element root, splittakerdata031& document, Fault& fault) {
    return tryDecode(root, document, fault);
}

template <class Old>
bool readOld(simdjson::dom::element root, splittakerdata031& document, Fault& fault) {
    Old old;
    if (!tryDecode(root, old, fault))
        return false;
    document = {};
    convertValue(std::move(old), document);
    if constexpr (std::is_same_v<decltype(old.athletes[0].videoname), OneVideo>)
        nameMissingVideos(document);
    return true;
}

constexpr std::array Versions{
    DocumentVersion{"splittakerdata031", "0.31", readCurrent},
    DocumentVersion{"splittakerdata030", "0.30", readOld<splittakerdata030>},
    DocumentVersion{"splittakerdata029", "0.29", readOld<splittakerdata029>},
    DocumentVersion{"splittakerdata028", "0.28", readOld<splittakerdata028>},
    DocumentVersion{"splittakerdata027", "0.27", readOld<splittakerdata027>},
    DocumentVersion{"splittakerdata026", "0.26", readOld<splittakerdata026>},
    DocumentVersion{"splittakerdata025", "0.25", readOld<splittakerdata025>},
    DocumentVersion{"splittakerdata024", "0.24", readOld<splittakerdata024>},
    DocumentVersion{"splittakerdata023", "0.23", readOld<splittakerdata023>},
    DocumentVersion{"splittakerdata022", "0.22", readOld<splittakerdata022>},
    DocumentVersion{"splittakerdata021", "0.21", readOld<splittakerdata021>},
    DocumentVersion{"splittakerdata020", "0.20", readOld<splittakerdata020>},
    DocumentVersion{"splittakerdata019", "0.19", readOld<splittakerdata019>},
    DocumentVersion{"splittakerdata018", "0.18", readOld<splittakerdata018>},
    DocumentVersion{"splittakerdata017", "0.17", readOld<splittakerdata017>},
    DocumentVersion{"splittakerdata016", "0.16", readOld<splittakerdata016>},
    DocumentVersion{"splittakerdata015", "0.15", readOld<splittakerdata015>},
    DocumentVersion{"splittakerdata014", "0.14", readOld<splittakerdata014>},
    DocumentVersion{"splittakerdata013", "0.13", readOld<splittakerdata013>},
    DocumentVersion{"splittakerdata012", "0.12", readOld<splittakerdata012>},
    DocumentVersion{"splittakerdata011", "0.11", readOld<splittakerdata011>},
    DocumentVersion{"splittakerdata05", "0.5", readOld<splittakerdata05>},
    DocumentVersion{"splittakerdataOLD2", "0.4", readOld<splittakerdataOLD2>},
    DocumentVersion{"splittakerdataOLD", "0.2", readOld<splittakerdataOLD>},
};

} // namespace

std::span<const DocumentVersion> documentVersions() {
    return Versions;
}

} // namespace kavela
