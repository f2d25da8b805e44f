#pragma once

#include "splitdata/history/documents.h"
#include "splitdata/history/versions.h"
#include "splitdata/history/video_names.h"

#include "common/json_decode.h"

#include <type_traits>
#include <utility>

namespace kavela {

/// Decodes a document of an older release and brings it to the current one.
template <class Old>
bool readOld(simdjson::dom::element root, splittakerdata031& document, Fault& fault) {
    Old old;
    if (!tryDecode(root, old, fault))
        return false;
    document = {};
    convertValue(std::move(old), document);
    if constexpr (std::is_same_v<decltype(old.athletes[0].videoname), history::OneVideo>)
        nameMissingVideos(document);
    return true;
}

} // namespace kavela
