#include "boatmotion/imports/track.h"

#include "boatmotion/imports/fit_track.h"
#include "boatmotion/imports/source_file.h"
#include "boatmotion/imports/xml_track.h"
#include "common/text.h"

namespace kavela {

namespace {

constexpr std::size_t LargestTrack = std::size_t{128} << 20U;

bool looksLikeXml(std::string_view content) {
    constexpr std::string_view Marks[] = {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"};
    for (const std::string_view mark : Marks)
        if (content.starts_with(mark))
            content.remove_prefix(mark.size());
    const auto begin = content.find_first_not_of(std::string_view(" \t\r\n\0", 5));
    return begin != content.npos && content[begin] == '<';
}

} // namespace

bool looksLikeTrack(std::string_view firstBytes) {
    return imports::looksLikeFit(firstBytes) || looksLikeXml(firstBytes);
}

ImportedTrack trackFromContent(std::string content) {
    if (imports::looksLikeFit(content))
        return imports::fitTrack(content);
    if (looksLikeXml(content))
        return imports::xmlTrack(std::move(content));
    throw DecodeError({{}, say("this is no track: neither GPX nor TCX nor FIT")});
}

ImportedTrack importTrack(const std::filesystem::path& path) {
    return trackFromContent(imports::readWhole(path, LargestTrack));
}

} // namespace kavela
