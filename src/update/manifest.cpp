#include "update/manifest.h"

#include "common/json_decode.h"
#include "common/text.h"
#include "update/version.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <set>
#include <string>

namespace kavela::update {

namespace {

constexpr std::size_t Sha256Digits = 64;
constexpr std::size_t MostNoteBytes = 100'000;
constexpr std::size_t MostNameBytes = 120;
constexpr std::string_view PlatformLetters = "abcdefghijklmnopqrstuvwxyz0123456789-_";
constexpr std::string_view NameLetters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._+~-";

bool isMadeOf(std::string_view text, std::string_view letters) {
    return !text.empty() && text.find_first_not_of(letters) == std::string_view::npos;
}

/// The number of the digits, which are of that count alone; -1 for anything else.
int fixedNumber(std::string_view digits) {
    int number = -1;
    if (isMadeOf(digits, "0123456789"))
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

bool isCalendarDate(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return false;
    const int year = fixedNumber(text.substr(0, 4));
    const int month = fixedNumber(text.substr(5, 2));
    const int day = fixedNumber(text.substr(8, 2));
    if (year < 0 || month < 0 || day < 0)
        return false;
    return std::chrono::year_month_day(std::chrono::year(year),
                                       std::chrono::month(static_cast<unsigned>(month)),
                                       std::chrono::day(static_cast<unsigned>(day)))
        .ok();
}

/// Lines and tabs are all that a text for people holds besides its letters.
bool isPlainText(std::string_view text) {
    return std::ranges::none_of(text, [](char c) {
        const auto code = static_cast<unsigned char>(c);
        return (code < 32 && c != '\n' && c != '\t') || code == 127;
    });
}

bool isOfThisComputer(std::string_view host) {
    if (host == "localhost" || host == "[::1]")
        return true;
    // Digits and points alone: "127.example.org" is anybody's.
    return host.starts_with("127.") && isMadeOf(host, "0123456789.");
}

void requireField(bool isGood, const std::string& path, const std::string& text) {
    if (!isGood)
        throw DecodeError({path, text});
}

void checkUpdateFile(const updatefile001& file, const std::string& path) {
    requireField(isMadeOf(file.platform, PlatformLetters), path + ".platform",
                 say("a name of small letters, digits and dashes was expected"));
    const auto address = safeAddress(file.address);
    requireField(address.has_value(), path + ".address", say("an https address was expected"));
    requireField(!fileNameOf(*address).empty(), path + ".address",
                 say("it does not end in the plain name of a file"));
    requireField(file.size > 0 && file.size <= MostFileBytes, path + ".size",
                 say("1 to {} bytes were expected", MostFileBytes));
    requireField(file.sha256.size() == Sha256Digits && isMadeOf(file.sha256, "0123456789abcdef"),
                 path + ".sha256", say("64 small hexadecimal digits were expected"));
}

} // namespace

updatemanifest001 readManifest(std::string_view text) {
    requireField(text.size() <= MostManifestBytes, {}, say("it is longer than any manifest is"));
    updatemanifest001 manifest = decodeText<updatemanifest001>(text);
    requireField(parsedVersion(manifest.version).has_value(), "version",
                 say("three numbers such as 0.32.0 were expected"));
    requireField(isCalendarDate(manifest.date), "date",
                 say("a date such as 2026-11-22 was expected"));
    requireField(manifest.notes.size() <= MostNoteBytes && isPlainText(manifest.notes), "notes",
                 say("a plain text of at most 100,000 bytes was expected"));
    std::set<std::string> platforms;
    for (std::size_t i = 0; i < manifest.files.size(); ++i) {
        const std::string path = "files[" + std::to_string(i) + ']';
        checkUpdateFile(manifest.files[i], path);
        requireField(platforms.insert(manifest.files[i].platform).second, path + ".platform",
                     say("there is a file for it already"));
    }
    return manifest;
}

std::optional<fetch::Address> safeAddress(std::string_view text) {
    std::optional<fetch::Address> address = fetch::parsedAddress(text);
    if (address && address->scheme != "https" && !isOfThisComputer(address->host))
        return std::nullopt;
    return address;
}

std::string fileNameOf(const fetch::Address& address) {
    std::string name = address.lastName();
    const bool isPlain = isMadeOf(name, NameLetters) && name.front() != '.' &&
                         name.size() <= MostNameBytes && address.query.empty();
    return isPlain ? name : std::string();
}

} // namespace kavela::update
