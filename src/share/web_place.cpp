#include "share/web_place.h"

#include "common/text.h"

#include <algorithm>

namespace kavela::share {

namespace {

std::string encodedPath(std::string_view path) {
    std::string encoded;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        encoded += (encoded.empty() ? "" : "/") + fetch::percentEncoded(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return encoded;
}

} // namespace

bool isThisComputer(std::string_view host) {
    // A name may begin like a number: "127.example.org".
    return host == "localhost" || host == "[::1]" ||
           (host.starts_with("127.") &&
            host.find_first_not_of("0123456789.") == std::string_view::npos);
}

std::optional<std::string> faultOfPlace(std::string_view address) {
    const std::optional<fetch::Address> parsed = fetch::parsedAddress(address);
    if (!parsed)
        return say("The address must begin with https:// and hold no user name and password.");
    if (parsed->scheme != "https" && !isThisComputer(parsed->host))
        return say("Only https:// keeps the password and the files from other readers.");
    return std::nullopt;
}

fetch::Address folderAt(std::string_view address) {
    fetch::Address folder = fetch::parsedAddress(address).value_or(fetch::Address());
    folder.query.clear();
    if (!folder.path.ends_with('/'))
        folder.path += '/';
    return folder;
}

fetch::Address fileAt(const fetch::Address& folder, std::string_view path) {
    fetch::Address file = folder;
    file.path += encodedPath(path);
    return file;
}

fetch::Address folderAt(const fetch::Address& folder, std::string_view path) {
    fetch::Address within = fileAt(folder, path);
    if (!path.empty())
        within.path += '/';
    return within;
}

} // namespace kavela::share
