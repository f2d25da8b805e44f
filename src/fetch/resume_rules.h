#pragma once

#include "common/text.h"
#include "fetch/address.h"

#include <boost/describe.hpp>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What to ask of a server about a film that is there in part, and what its answer means. Bytes of
/// two states of a film are never put together: that is what all of this is for.
namespace kavela::fetch {

/// What is noted beside a part of a film.
struct filmpart001 {
    std::string address;   ///< where it comes from
    std::string validator; ///< strong ETag or date of its state; empty where the server tells none
    std::int64_t size = 0; ///< of the whole film in bytes; 0 where it is not known

    friend bool operator==(const filmpart001&, const filmpart001&) = default;
};
BOOST_DESCRIBE_STRUCT(filmpart001, (), (address, validator, size))

/// The part of a film that is on the disk.
struct HeldPart {
    std::int64_t bytes = 0;
    filmpart001 note;
};

/// The headers of a question for the rest.
struct RestQuestion {
    std::string range;   ///< "bytes=1000-"
    std::string ifRange; ///< the state that the rest must be of
};

/// Nothing where the film has to be asked for as a whole: nothing is held, or nobody could tell
/// whether the rest belongs to it.
[[nodiscard]] std::optional<RestQuestion> restQuestion(const HeldPart& held,
                                                       const Address& address);

/// What an answer says before its content; empty for headers that it has not.
struct AnswerHead {
    int status = 0;
    std::string contentRange = {};
    std::string contentLength = {};
    std::string contentEncoding = {};
    std::string etag = {};
    std::string lastModified = {};
    std::string retryAfter = {};
    std::string digest = {}; ///< Repr-Digest
    std::string contentType = {};
    std::string dav = {};       ///< what a WebDAV server can do: "1, 2"
    std::string lockToken = {}; ///< in its angle brackets
};

struct AnswerPlan {
    enum class Step {
        Append,   ///< the content goes behind what is held
        Start,    ///< the content is the film from its beginning
        AskWhole, ///< what is held is given up, and the whole film asked for: one more try
        Wait,     ///< to be asked again later: one more try
        NotThere, ///< there is no such film yet
        Refuse    ///< another try would bring the same
    };

    Step step = Step::Refuse;
    filmpart001 note = {};                            ///< for Append and Start
    std::string reason = {};                          ///< for the others: a sentence
    std::optional<std::chrono::seconds> retryAfter{}; ///< that the server asks for
};

/// `wasRest` tells whether the rest of what is held was asked for; `now` is seconds since 1970.
[[nodiscard]] AnswerPlan planOfAnswer(const HeldPart& held, bool wasRest, const Address& address,
                                      const AnswerHead& head, std::int64_t now);

/// "bytes 100-199/500"; an unknown size ("*") is none.
struct ContentRange {
    std::int64_t first = 0;
    std::int64_t last = 0;
    std::optional<std::int64_t> size;

    friend bool operator==(const ContentRange&, const ContentRange&) = default;
};
[[nodiscard]] std::optional<ContentRange> parsedContentRange(std::string_view text);

/// Seconds from now, of a number or a date; nothing for what is neither or lies in the past.
[[nodiscard]] std::optional<std::chrono::seconds> parsedRetryAfter(std::string_view text,
                                                                   std::int64_t now);

/// How often a film is asked for before it is given up.
inline constexpr int MostTries = 5;
/// A server that wants to be left alone for longer is not waited for.
inline constexpr std::chrono::seconds LongestRetryAfter{600};

/// Before the next try, `tries` of which were in vain (1 and more): 1 to 30 seconds, and as long as
/// the server asks. Nothing where the film is to be given up.
[[nodiscard]] std::optional<std::chrono::seconds>
waitBeforeTry(int tries, std::optional<std::chrono::seconds> retryAfter);

/// Where a redirect leads, or why it is not followed.
struct RedirectPlan {
    std::optional<Address> address;
    std::string reason;    ///< a sentence
    std::string otherSite; ///< the server that would have to be ticked; empty where that is no help
};

inline constexpr int MostRedirects = 8;

/// `followed` counts the redirects before. Servers other than the one of the source are followed
/// to only where they are ticked, and nobody leads from https to http.
template <class IsAllowed>
[[nodiscard]] RedirectPlan planOfRedirect(const Address& from, std::string_view location,
                                          int followed, IsAllowed isAllowed) {
    if (followed >= MostRedirects)
        return {{}, say("The server leads in a circle."), {}};
    const std::optional<Address> to = resolved(from, location);
    if (location.empty() || !to)
        return {{}, say("The server leads to an address that is none."), {}};
    if (from.scheme == "https" && to->scheme == "http")
        return {
            {}, say("The server leads from https to http, which anybody can read and change."), {}};
    if (!isAllowed(to->site()))
        return {{},
                say("The server leads to another one, {}, which is not ticked.", to->site()),
                to->site()};
    return {to, {}, {}};
}

/// The SHA-256 of a film in small hexadecimal digits, of "sha-256=:…:"; empty for none.
[[nodiscard]] std::string sha256OfDigest(std::string_view reprDigest);
/// The same of a file "HEX  NAME" as it lies beside films; empty for none.
[[nodiscard]] std::string sha256OfFile(std::string_view content);

} // namespace kavela::fetch
