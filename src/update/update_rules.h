#pragma once

#include "update/manifest.h"
#include "update/version.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kavela::update {

/// What the coach said about looking by itself, and when it was done; seconds since 1970.
struct LookHabit {
    std::optional<bool> mayLook = std::nullopt; ///< nothing until it was answered
    std::optional<std::int64_t> lastLook = std::nullopt;
};

/// Whether the program is to look at a start: never without a yes, at most once a day. A last look
/// that lies in the future is that of a clock that went wrong, and forgotten.
[[nodiscard]] bool isLookDue(const LookHabit& habit, std::int64_t now);

/// Which file of a manifest is for this computer: "deb-amd64", or "bundle-amd64" for a program that
/// runs from its folder. `architecture` is as the system calls it.
[[nodiscard]] std::string platformName(std::string_view architecture, bool isBundle);

/// What the program knows when it hears of a version.
struct KnownVersions {
    Version own;
    std::optional<Version> newestSeen = std::nullopt; ///< of any manifest that was believed
    std::optional<Version> skipped = std::nullopt;    ///< the coach does not want it
};

struct Verdict {
    enum class Kind {
        Offer,   ///< a newer version, and there is a file for this computer
        Current, ///< there is none newer
        Skipped, ///< the newer one is the one that was skipped
        NoFile,  ///< a newer version, without a file for this computer
        Older    ///< older than the program or than what was offered before: not to be used
    };
    Kind kind = Kind::Current;
    Version version;
    std::optional<updatefile001> file = std::nullopt; ///< with Offer
    std::string sentence = {};                        ///< what there is to say without an offer
};

/// `manifest` is one that readManifest() made. A version that was skipped is offered again where
/// the coach asks for it.
[[nodiscard]] Verdict verdictOn(const updatemanifest001& manifest, const KnownVersions& known,
                                const std::string& platform, bool isAskedFor);

} // namespace kavela::update
