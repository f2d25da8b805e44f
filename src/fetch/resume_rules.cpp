#include "fetch/resume_rules.h"

#include "common/delimited_text.h"
#include "common/text.h"

#include <algorithm>
#include <array>

namespace kavela::fetch {

namespace {

constexpr std::size_t Sha256Digits = 64;

/// Reads a number without a sign at the beginning of a text and takes it off.
std::optional<std::int64_t> takeNumber(std::string_view& text) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
    std::int64_t number = 0;
    if (!parseField(text.substr(0, end), number))
        return std::nullopt;
    text.remove_prefix(end);
    return number;
}

bool takeText(std::string_view& text, std::string_view expected) {
    if (!text.starts_with(expected))
        return false;
    text.remove_prefix(expected.size());
    return true;
}

/// "Sun, 06 Nov 1994 08:49:37 GMT" in seconds since 1970.
std::optional<std::int64_t> parsedHttpDate(std::string_view text) {
    constexpr std::array<std::string_view, 12> Months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    text.remove_prefix(std::min(text.find(", "), text.size()));
    const bool hasDay = takeText(text, ", ");
    const auto day = takeNumber(text);
    if (!hasDay || !day || !takeText(text, " ") || text.size() < 4)
        return std::nullopt;
    const auto month = std::ranges::find(Months, text.substr(0, 3));
    text.remove_prefix(4);
    const auto year = takeNumber(text);
    const bool hasTime = takeText(text, " ");
    std::array<std::int64_t, 3> time{};
    for (std::size_t i = 0; i < time.size(); ++i) {
        const auto part = takeNumber(text);
        if (!part || *part > 60 || (i < 2 && !takeText(text, ":")))
            return std::nullopt;
        time[i] = *part;
    }
    if (!year || *year > 9999 || !hasTime || month == Months.end() || text != " GMT")
        return std::nullopt;
    const std::chrono::year_month_day date{
        std::chrono::year(static_cast<int>(*year)),
        std::chrono::month(static_cast<unsigned>(month - Months.begin() + 1)),
        std::chrono::day(static_cast<unsigned>(*day))};
    if (*day > 31 || !date.ok())
        return std::nullopt;
    const auto days = std::chrono::sys_days(date).time_since_epoch().count();
    return std::int64_t{days} * 86'400 + time[0] * 3'600 + time[1] * 60 + time[2];
}

/// A weak ETag says that two states look alike, not that their bytes are the same.
std::string strongValidator(const AnswerHead& head) {
    if (head.etag.size() > 2 && head.etag.starts_with('"'))
        return head.etag;
    return head.etag.empty() ? head.lastModified : std::string();
}

std::int64_t announcedSize(const AnswerHead& head) {
    std::int64_t size = 0;
    return parseField(std::string_view(head.contentLength), size) && size > 0 ? size : 0;
}

/// A tag is compared with a tag and a date with a date; a server may leave out what it told before.
bool isOtherState(const AnswerHead& head, std::string_view validator) {
    const bool isTag = validator.starts_with('"');
    const std::string_view now = isTag ? head.etag : head.lastModified;
    return !now.empty() && now != validator;
}

AnswerPlan planOfRest(const HeldPart& held, bool wasRest, const AnswerHead& head) {
    using Step = AnswerPlan::Step;
    const std::optional<ContentRange> range = parsedContentRange(head.contentRange);
    if (!wasRest || !range)
        return {.step = Step::AskWhole,
                .reason = say("The server sent a part that nobody asked for.")};
    const bool isOther = isOtherState(head, held.note.validator);
    const bool hasOtherSize = range->size && held.note.size > 0 && *range->size != held.note.size;
    if (isOther || hasOtherSize)
        return {.step = Step::AskWhole, .reason = say("The file was changed meanwhile.")};
    if (range->first != held.bytes)
        return {.step = Step::AskWhole,
                .reason = say("The server went on from another place than it was asked to.")};
    AnswerPlan plan{.step = Step::Append, .note = held.note};
    if (range->size)
        plan.note.size = *range->size;
    return plan;
}

AnswerPlan planOfWhole(const Address& address, const AnswerHead& head) {
    if (!head.contentEncoding.empty() && head.contentEncoding != "identity")
        return {.step = AnswerPlan::Step::Refuse,
                .reason = say("The server packs the file in a way that was not asked for.")};
    return {.step = AnswerPlan::Step::Start,
            .note = {address.text(), strongValidator(head), announcedSize(head)}};
}

} // namespace

std::optional<RestQuestion> restQuestion(const HeldPart& held, const Address& address) {
    if (held.bytes <= 0 || held.note.validator.empty() || held.note.address != address.text() ||
        (held.note.size > 0 && held.bytes >= held.note.size))
        return std::nullopt;
    return RestQuestion{"bytes=" + std::to_string(held.bytes) + '-', held.note.validator};
}

AnswerPlan planOfAnswer(const HeldPart& held, bool wasRest, const Address& address,
                        const AnswerHead& head, std::int64_t now) {
    using Step = AnswerPlan::Step;
    const std::string answered = say("The server answered with status {}.", head.status);
    switch (head.status) {
    case 200:
        return planOfWhole(address, head);
    case 206:
        return planOfRest(held, wasRest, head);
    case 416:
        if (wasRest)
            return {.step = Step::AskWhole, .reason = say("The server has no more of the file.")};
        return {.reason = answered};
    case 404:
    case 410:
        return {.step = Step::NotThere, .reason = say("Not there yet.")};
    case 401:
    case 403:
        return {.reason = say("The server does not accept the user name or the password.")};
    case 408:
    case 425:
    case 429:
    case 500:
    case 502:
    case 503:
    case 504:
        return {.step = Step::Wait,
                .reason =
                    head.status == 429 ? say("The server asks for fewer questions.") : answered,
                .retryAfter = parsedRetryAfter(head.retryAfter, now)};
    default:
        return {.reason = answered};
    }
}

std::optional<ContentRange> parsedContentRange(std::string_view text) {
    if (!takeText(text, "bytes "))
        return std::nullopt;
    const auto first = takeNumber(text);
    const bool hasDash = takeText(text, "-");
    const auto last = takeNumber(text);
    if (!first || !hasDash || !last || *last < *first || !takeText(text, "/"))
        return std::nullopt;
    ContentRange range{*first, *last, std::nullopt};
    if (text == "*")
        return range;
    range.size = takeNumber(text);
    if (!range.size || !text.empty() || *range.size <= *last)
        return std::nullopt;
    return range;
}

std::optional<std::chrono::seconds> parsedRetryAfter(std::string_view text, std::int64_t now) {
    std::string_view digits = text;
    if (const auto seconds = takeNumber(digits); seconds && digits.empty())
        return std::chrono::seconds(std::min<std::int64_t>(*seconds, 1'000'000));
    const auto date = parsedHttpDate(text);
    if (!date || *date < now)
        return std::nullopt;
    return std::chrono::seconds(*date - now);
}

std::optional<std::chrono::seconds> waitBeforeTry(int tries,
                                                  std::optional<std::chrono::seconds> retryAfter) {
    constexpr std::array<int, MostTries> Waits{1, 3, 10, 30, 30};
    if (tries >= MostTries || retryAfter.value_or(std::chrono::seconds(0)) > LongestRetryAfter)
        return std::nullopt;
    const std::chrono::seconds own(Waits.at(static_cast<std::size_t>(std::max(tries, 1) - 1)));
    return std::max(own, retryAfter.value_or(own));
}

std::string sha256OfDigest(std::string_view reprDigest) {
    constexpr std::string_view Begin = "sha-256=:";
    constexpr std::string_view Letters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::string_view Digits = "0123456789abcdef";
    const std::size_t begin = reprDigest.find(Begin);
    if (begin == std::string_view::npos)
        return {};
    std::string hex;
    unsigned bits = 0;
    unsigned held = 0;
    for (const char c : reprDigest.substr(begin + Begin.size())) {
        const std::size_t value = Letters.find(c);
        if (value == std::string_view::npos)
            break;
        held = (held << 6U) | static_cast<unsigned>(value);
        for (bits += 6; bits >= 4; bits -= 4)
            hex += Digits[(held >> (bits - 4)) & 15U];
        held &= 15U;
    }
    // Base 64 of 32 bytes ends with two bits of nothing, which make no digit.
    return hex.size() == Sha256Digits ? hex : std::string();
}

std::string sha256OfFile(std::string_view content) {
    const std::size_t end = std::min(content.find_first_of(" \t\r\n*"), content.size());
    std::string hex(content.substr(0, end));
    std::ranges::transform(hex, hex.begin(), [](char c) {
        return c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    const bool isHash = hex.size() == Sha256Digits &&
                        hex.find_first_not_of("0123456789abcdef") == std::string::npos;
    return isHash ? hex : std::string();
}

} // namespace kavela::fetch
