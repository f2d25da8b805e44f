#include "fetch/dav_listing.h"

#include "common/text.h"
#include "fetch/listing.h"
#include "fetch/resume_rules.h"

#include <pugixml.hpp>

#include <charconv>

namespace kavela::fetch {

namespace {

/// Servers choose the letters in front of a name at their whim.
std::string_view davName(const pugi::xml_node& node) {
    const std::string_view name = node.name();
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::optional<std::int64_t> davSize(std::string_view text) {
    std::int64_t bytes = -1;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), bytes);
    return read.ec == std::errc() && bytes >= 0 ? std::optional(bytes) : std::nullopt;
}

/// "SHA256:…" among others in one text, as servers of clouds write it.
std::string sha256OfChecksums(std::string_view text) {
    constexpr std::string_view Begin = "SHA256:";
    const std::size_t begin = text.find(Begin);
    return begin == std::string_view::npos ? std::string()
                                           : sha256OfFile(text.substr(begin + Begin.size()));
}

struct DavProperties {
    DavEntry entry;
    std::string modified;

    void take(const pugi::xml_node& property) {
        const std::string_view name = davName(property);
        const std::string_view text = property.child_value();
        if (name == "getcontentlength")
            entry.size = davSize(text);
        else if (name == "getetag" && !text.empty())
            entry.mark = markOfTag(text);
        else if (name == "getlastmodified")
            modified = text;
        else if (name == "resourcetype")
            for (const pugi::xml_node type : property)
                entry.isFolder = entry.isFolder || davName(type) == "collection";
        else if (name == "checksums")
            for (const pugi::xml_node sum : property)
                if (const std::string hash = sha256OfChecksums(sum.child_value()); !hash.empty())
                    entry.sha256 = hash;
    }
};

/// Properties that the server has not stand in a part of their own, with another status.
bool isTold(const pugi::xml_node& part) {
    for (const pugi::xml_node status : part)
        if (davName(status) == "status")
            return std::string_view(status.child_value()).find(" 200") != std::string_view::npos;
    return true;
}

std::optional<DavEntry> entryOf(const pugi::xml_node& response, const Address& base) {
    DavProperties told;
    std::optional<Address> address;
    bool endsWithSlash = false;
    for (const pugi::xml_node part : response) {
        if (davName(part) == "href") {
            const std::string_view link = part.child_value();
            address = link.empty() ? std::nullopt : resolved(base, link);
            endsWithSlash = address && address->path.ends_with('/');
        }
        if (davName(part) != "propstat" || !isTold(part))
            continue;
        for (const pugi::xml_node properties : part)
            if (davName(properties) == "prop")
                for (const pugi::xml_node property : properties)
                    told.take(property);
    }
    if (!address)
        return std::nullopt;
    DavEntry& entry = told.entry;
    entry.address = *address;
    entry.isFolder = entry.isFolder || endsWithSlash;
    entry.isTag = !entry.mark.empty();
    if (!entry.isTag && !told.modified.empty())
        entry.mark = told.modified + ' ' + std::to_string(entry.size.value_or(-1));
    return entry;
}

} // namespace

std::vector<DavEntry> entriesOfDav(std::string_view body, const Address& base) {
    pugi::xml_document document;
    const auto result = document.load_buffer(body.data(), body.size());
    const pugi::xml_node root = document.document_element();
    if (!result || davName(root) != "multistatus")
        throw ListingError(result
                               ? say("The answer is no WebDAV folder.")
                               : say("The answer is no WebDAV folder: {}", result.description()));
    std::vector<DavEntry> entries;
    for (const pugi::xml_node response : root)
        if (davName(response) == "response")
            if (std::optional<DavEntry> entry = entryOf(response, base))
                entries.push_back(std::move(*entry));
    return entries;
}

std::string markOfTag(std::string_view etag) {
    if (etag.starts_with("W/"))
        etag.remove_prefix(2);
    return std::string(etag);
}

std::string_view davQuestion() {
    return R"(<?xml version="1.0" encoding="utf-8"?>)"
           R"(<d:propfind xmlns:d="DAV:" xmlns:oc="http://owncloud.org/ns"><d:prop>)"
           "<d:resourcetype/><d:getcontentlength/><d:getetag/><d:getlastmodified/><oc:checksums/>"
           "</d:prop></d:propfind>";
}

} // namespace kavela::fetch
