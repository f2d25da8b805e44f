#include "share/share_plan.h"

#include "common/text.h"
#include "share/shared_names.h"

#include <set>

namespace kavela::share {

namespace {

template <class File>
const File* entryAt(const std::map<std::string, File>& files, const std::string& path) {
    const auto found = files.find(path);
    return found == files.end() ? nullptr : &found->second;
}

bool isStampOf(const HereFile& here, const KnownFile& known) {
    return here.size == known.size && here.modified == known.modified;
}

bool isAsKnown(const HereFile& here, const KnownFile& known) {
    return here.sha256.empty() ? isStampOf(here, known) : here.sha256 == known.sha256;
}

/// A mark that nobody told says nothing of the state.
bool isAsKnown(const ThereFile& there, const KnownFile& known) {
    return !known.mark.empty() && there.mark == known.mark;
}

bool isSame(const HereFile& here, const ThereFile& there) {
    return !here.sha256.empty() && here.sha256 == there.sha256;
}

/// Of files that are on both sides.
Change changeOfBoth(const HereFile& here, const ThereFile& there, const KnownFile* known) {
    if (isSame(here, there))
        return known && isAsKnown(here, *known) && isAsKnown(there, *known) ? Change::None
                                                                            : Change::Agree;
    if (!known)
        return Change::BothSides;
    const bool isHereAsKnown = isAsKnown(here, *known);
    const bool isThereAsKnown = isAsKnown(there, *known);
    if (isHereAsKnown && isThereAsKnown)
        return Change::None;
    if (isHereAsKnown) // a server without marks may have the same as ever
        return known->mark.empty() ? Change::BothSides : Change::ChangedThere;
    return isThereAsKnown ? Change::ChangedHere : Change::BothSides;
}

std::string noteOf(Change change, const ShareRow& row, bool wasKnown) {
    std::string note;
    if (change == Change::NewThere && wasKnown)
        note = say("It was deleted here and changed there: it is brought again.");
    else if (change == Change::NewHere && wasKnown)
        note = say("It was deleted there and changed here: it is put there again.");
    else if (change == Change::BothSides)
        note = say("Where they differ, both stay.");
    const std::string windows = windowsNote(row.path.substr(row.path.rfind('/') + 1));
    return note.empty() ? windows : windows.empty() ? note : note + ' ' + windows;
}

std::int64_t movedBytes(Change change, const HereFile* here, const ThereFile* there) {
    if (change == Change::NewHere || change == Change::ChangedHere)
        return here->size;
    if (change == Change::NewThere || change == Change::ChangedThere || change == Change::BothSides)
        return there->size.value_or(0);
    return 0;
}

} // namespace

Change changeOf(const HereFile* here, const ThereFile* there, const KnownFile* known) {
    if (here && there)
        return changeOfBoth(*here, *there, known);
    if (here)
        return known && isAsKnown(*here, *known) ? Change::DeletedThere : Change::NewHere;
    if (there)
        return known && isAsKnown(*there, *known) ? Change::DeletedHere : Change::NewThere;
    return Change::Gone;
}

bool needsHash(const HereFile& here, const ThereFile* there, const KnownFile* known) {
    if (known && isStampOf(here, *known))
        return false;
    // Another size is another content, whatever the content is.
    if (known && here.size == known->size)
        return true;
    return there && !there->sha256.empty() && there->size.value_or(here.size) == here.size;
}

std::vector<ShareRow> sharePlan(const HereFiles& here, const ThereFiles& there,
                                const KnownFiles& known) {
    std::set<std::string> paths;
    for (const auto& [path, file] : here)
        paths.insert(path);
    for (const auto& [path, file] : there)
        paths.insert(path);
    std::vector<ShareRow> plan;
    for (const std::string& path : paths) {
        const HereFile* const own = entryAt(here, path);
        const ThereFile* const other = entryAt(there, path);
        const KnownFile* const noted = entryAt(known, path);
        const Change change = changeOf(own, other, noted);
        if (change == Change::None || change == Change::Agree)
            continue;
        ShareRow row{.path = path, .change = change, .size = movedBytes(change, own, other)};
        row.note = noteOf(change, row, noted != nullptr);
        plan.push_back(std::move(row));
    }
    return plan;
}

} // namespace kavela::share
