#include "update/update_rules.h"

#include <algorithm>

namespace kavela::update {

namespace {

constexpr std::int64_t DaySeconds = 86'400;

} // namespace

bool isLookDue(const LookHabit& habit, std::int64_t now) {
    if (!habit.mayLook.value_or(false))
        return false;
    return !habit.lastLook || *habit.lastLook > now || now - *habit.lastLook >= DaySeconds;
}

std::string platformName(std::string_view architecture, bool isBundle) {
    std::string name = isBundle ? "bundle-" : "deb-";
    // Packages have names of their own for what the system calls otherwise.
    if (architecture == "x86_64")
        return name + "amd64";
    return name + (architecture == "aarch64" ? std::string("arm64") : std::string(architecture));
}

Verdict verdictOn(const updatemanifest001& manifest, const KnownVersions& known,
                  const std::string& platform, bool isAskedFor) {
    const Version version = parsedVersion(manifest.version).value_or(Version());
    Verdict verdict{.version = version};
    const Version newest = std::max(known.own, known.newestSeen.value_or(known.own));
    if (version < newest) {
        verdict.kind = Verdict::Kind::Older;
        verdict.sentence = "The server offers version " + version.text() +
                           ", which is older than " + newest.text() +
                           (newest == known.own ? ", the one you have" : ", which it had before") +
                           ". It is not used.";
        return verdict;
    }
    if (version == known.own) {
        verdict.sentence = "Version " + version.text() + " is the newest one.";
        return verdict;
    }
    const auto file = std::ranges::find(manifest.files, platform, &updatefile001::platform);
    if (file == manifest.files.end()) {
        verdict.kind = Verdict::Kind::NoFile;
        verdict.sentence = "There is a version " + version.text() +
                           ", but no file of it for this computer (" + platform + ").";
        return verdict;
    }
    const bool isSkipped = known.skipped == version && !isAskedFor;
    verdict.kind = isSkipped ? Verdict::Kind::Skipped : Verdict::Kind::Offer;
    verdict.file = *file;
    return verdict;
}

} // namespace kavela::update
