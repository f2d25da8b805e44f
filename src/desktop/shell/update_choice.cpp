#include "desktop/shell/update_choice.h"

#include "desktop/shell/workspace.h"
#include "update/manifest.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* MayLookKey = "versions/mayLook";
constexpr const char* LastLookKey = "versions/lastLook";
constexpr const char* SeenKey = "versions/seen";
constexpr const char* SkippedKey = "versions/skipped";
constexpr const char* AddressKey = "versions/address";
constexpr const char* Yes = "yes";
constexpr const char* No = "no";

std::optional<update::Version> rememberedVersion(const Workspace& workspace, const char* key) {
    return update::parsedVersion(workspace.remembered(key).value(0).toStdString());
}

void rememberVersion(Workspace& workspace, const char* key, const update::Version& version) {
    workspace.remember(key, {QString::fromStdString(version.text())});
}

} // namespace

update::LookHabit lookHabit(const Workspace& workspace) {
    update::LookHabit habit;
    const QString answer = workspace.remembered(MayLookKey).value(0);
    if (answer == Yes || answer == No)
        habit.mayLook = answer == Yes;
    bool isNumber = false;
    const qint64 last = workspace.remembered(LastLookKey).value(0).toLongLong(&isNumber);
    if (isNumber)
        habit.lastLook = last;
    return habit;
}

void setMayLook(Workspace& workspace, bool mayLook) {
    workspace.remember(MayLookKey, {mayLook ? Yes : No});
}

void setLastLook(Workspace& workspace, std::int64_t when) {
    workspace.remember(LastLookKey, {QString::number(when)});
}

update::KnownVersions knownVersions(const Workspace& workspace, const update::Version& own) {
    return {own, rememberedVersion(workspace, SeenKey), rememberedVersion(workspace, SkippedKey)};
}

void noteSeen(Workspace& workspace, const update::Version& version) {
    const auto before = rememberedVersion(workspace, SeenKey);
    if (!before || *before < version)
        rememberVersion(workspace, SeenKey, version);
}

void skipVersion(Workspace& workspace, const update::Version& version) {
    rememberVersion(workspace, SkippedKey, version);
}

QString chosenUpdateAddress(const Workspace& workspace) {
    return workspace.remembered(AddressKey).value(0);
}

bool chooseUpdateAddress(Workspace& workspace, const QString& text) {
    const QString address = text.trimmed();
    if (!address.isEmpty() && !update::safeAddress(address.toStdString()))
        return false;
    workspace.remember(AddressKey, address.isEmpty() ? QStringList() : QStringList{address});
    return true;
}

std::optional<update::UpdateSource> updateSource(const Workspace& workspace) {
    std::optional<update::UpdateSource> source = workspace.updateSource();
    if (!source)
        return std::nullopt;
    if (const auto chosen = update::safeAddress(chosenUpdateAddress(workspace).toStdString()))
        source->manifest = *chosen;
    return source;
}

} // namespace kavela::desktop
