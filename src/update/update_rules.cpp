#include "update/update_rules.h"

#include "common/text.h"

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
        verdict.sentence =
            newest == known.own
                ? say("The server offers version {}, which is older than {}, the one you have. It "
                      "is not used.",
                      version.text(), newest.text())
                : say("The server offers version {}, which is older than {}, which it had before. "
                      "It is not used.",
                      version.text(), newest.text());
        return verdict;
    }
    if (version == known.own) {
        verdict.sentence = say("Version {} is the newest one.", version.text());
        return verdict;
    }
    const auto file = std::ranges::find(manifest.files, platform, &updatefile001::platform);
    if (file == manifest.files.end()) {
        verdict.kind = Verdict::Kind::NoFile;
        verdict.sentence = say("There is a version {}, but no file of it for this computer ({}).",
                               version.text(), platform);
        return verdict;
    }
    const bool isSkipped = known.skipped == version && !isAskedFor;
    verdict.kind = isSkipped ? Verdict::Kind::Skipped : Verdict::Kind::Offer;
    verdict.file = *file;
    return verdict;
}

} // namespace kavela::update
