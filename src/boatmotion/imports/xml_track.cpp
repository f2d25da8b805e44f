#include "boatmotion/imports/xml_track.h"

#include "boatmotion/imports/iso_date.h"
#include "boatmotion/imports/track_builder.h"
#include "common/text.h"

#include <pugixml.hpp>

#include <charconv>

namespace kavela::imports {

namespace {

std::string_view trimmedText(std::string_view text) {
    constexpr std::string_view Around = " \t\r\n";
    const auto begin = text.find_first_not_of(Around);
    if (begin == text.npos)
        return {};
    return text.substr(begin, text.find_last_not_of(Around) - begin + 1);
}

/// The name without the prefix of its name space.
std::string_view localName(const pugi::xml_node& node) {
    const std::string_view name = node.name();
    const auto colon = name.find(':');
    return colon == name.npos ? name : name.substr(colon + 1);
}

/// A number, or one that fits nowhere for a text that is none.
double numberOf(std::string_view text) {
    constexpr double NotANumber = 1e300;
    text = trimmedText(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? value : NotANumber;
}

/// The node that follows in the document, within `top`. Walked without recursion: how deep a file
/// nests is its own affair.
pugi::xml_node nodeAfter(pugi::xml_node node, const pugi::xml_node& top, bool enters = true) {
    if (enters && node.first_child())
        return node.first_child();
    while (node != top && !node.next_sibling())
        node = node.parent();
    return node == top ? pugi::xml_node() : node.next_sibling();
}

void takeField(const pugi::xml_node& node, TrackPoint& point) {
    const std::string_view name = localName(node);
    const std::string_view text = node.child_value();
    if (name == "time" || name == "Time") {
        if (const auto date = isoDate(trimmedText(text)))
            point.date = date->seconds;
    } else if (name == "speed" || name == "Speed") {
        point.speed = numberOf(text);
    } else if (name == "hr" || (name == "Value" && localName(node.parent()) == "HeartRateBpm")) {
        point.heartRate = numberOf(text);
    } else if (name == "LatitudeDegrees") {
        point.latitude = numberOf(text);
    } else if (name == "LongitudeDegrees") {
        point.longitude = numberOf(text);
    }
}

TrackPoint pointOf(const pugi::xml_node& element) {
    TrackPoint point;
    if (const auto latitude = element.attribute("lat"))
        point.latitude = numberOf(latitude.value());
    if (const auto longitude = element.attribute("lon"))
        point.longitude = numberOf(longitude.value());
    for (auto node = nodeAfter(element, element); node; node = nodeAfter(node, element))
        takeField(node, point);
    return point;
}

ImportedTrack trackOf(const pugi::xml_document& document) {
    TrackBuilder builder;
    for (auto node = nodeAfter(document, document); node;) {
        const std::string_view name = localName(node);
        const bool isPoint = name == "trkpt" || name == "Trackpoint";
        if (isPoint)
            builder.add(pointOf(node));
        else if (name == "wpt" || name == "rtept")
            builder.leaveOut(LeftOut::RoutePoint);
        node = nodeAfter(node, document, !isPoint);
    }
    return std::move(builder).finish();
}

} // namespace

ImportedTrack xmlTrack(std::string content) {
    pugi::xml_document document;
    const auto result = document.load_buffer_inplace(content.data(), content.size());
    if (!result)
        throw DecodeError(
            {say("byte {}", result.offset), say("the XML is damaged: {}", result.description())});
    const std::string_view root = localName(document.document_element());
    if (root != "gpx" && root != "TrainingCenterDatabase")
        throw DecodeError({{}, say("this XML is no track: neither GPX nor TCX")});
    return trackOf(document);
}

} // namespace kavela::imports
