#include "app/preference_table.h"

#include "common/text.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace kavela {

namespace {

using List = std::vector<std::string>;
using Integer = std::int64_t;

std::string text(const char* value) {
    return value;
}

const auto& table() {
    static const std::array Table{
        PreferenceEntry{"planningOnline", List{"Team", "Club", "Personal"},
                        KAVELA_TEXT("List of online planning entries.")},
        PreferenceEntry{"watchedfiles", List{},
                        KAVELA_TEXT("Files that have already been watched.")},
        PreferenceEntry{"autoplaynext", false,
                        KAVELA_TEXT("Play the next video of a list when one ends.")},
        PreferenceEntry{
            "startinCMTime", false,
            KAVELA_TEXT("Start a run at its stored video time rather than at the video's start.")},
        PreferenceEntry{"playonclick", false,
                        KAVELA_TEXT("Start playback as soon as a row is clicked.")},
        PreferenceEntry{"penaltiesVisible", false, KAVELA_TEXT("Show penalties in the tables.")},
        PreferenceEntry{"penaltiesIncluded", false,
                        KAVELA_TEXT("Include penalty seconds in the times that are compared.")},
        PreferenceEntry{"colorMode", text("Race"), KAVELA_TEXT("Colours of the split table.")},
        PreferenceEntry{"comtagIndex", Integer{0}, KAVELA_TEXT("Comment tag chosen last.")},
        PreferenceEntry{"coachswordvisible", true, KAVELA_TEXT("Show the coach's comments.")},
        PreferenceEntry{"tagmodeplaysjustpart", true,
                        KAVELA_TEXT("In tag mode, play only the tagged part of a video.")},
        PreferenceEntry{"lastdatatype", Integer{0}, KAVELA_TEXT("Kind of data opened last.")},
        PreferenceEntry{"lastdatatype", Integer{0}, KAVELA_TEXT("Kind of data opened last.")},
        PreferenceEntry{"fullscreenBMRoll", true, KAVELA_TEXT("Full screen shows the roll chart.")},
        PreferenceEntry{"fullscreenBMPitch", true,
                        KAVELA_TEXT("Full screen shows the pitch chart.")},
        PreferenceEntry{"fullscreenHR", true,
                        KAVELA_TEXT("Full screen shows the heart-rate chart.")},
        PreferenceEntry{"fullscreenBMScatter", false,
                        KAVELA_TEXT("Full screen shows the scatter chart.")},
        PreferenceEntry{"normalizedBMvalues", false,
                        KAVELA_TEXT("Show boat-motion values normalised.")},
        PreferenceEntry{"gaugeImpulse", true, KAVELA_TEXT("Show the impulse gauge.")},
        PreferenceEntry{"gaugeStrokerate", true, KAVELA_TEXT("Show the stroke-rate gauge.")},
        PreferenceEntry{"predeterminatedsplits", Integer{7},
                        KAVELA_TEXT("Number of splits of a new split file.")},
        PreferenceEntry{"savedtags", List{}, KAVELA_TEXT("Tag names saved for reuse.")},
        PreferenceEntry{"savedTLreasons", List{},
                        KAVELA_TEXT("Time-loss reasons saved for reuse.")},
        PreferenceEntry{"autoloadPlanning", false, KAVELA_TEXT("Load a planning file at start.")},
        PreferenceEntry{"autoloadPlanningOnline", false,
                        KAVELA_TEXT("The planning file to load at start is an online one.")},
        PreferenceEntry{"autoloadPlanningOnline", false,
                        KAVELA_TEXT("The planning file to load at start is an online one.")},
        PreferenceEntry{"autoloadPlanningURL", PreferenceUrl{},
                        KAVELA_TEXT("Planning file to load at start.")},
        PreferenceEntry{"savetoCSV", false, KAVELA_TEXT("Also export the table as CSV on saving.")},
        PreferenceEntry{"savetoPDF", false, KAVELA_TEXT("Also export a PDF on saving.")},
        PreferenceEntry{"autoloadMainFolderURL", PreferenceUrl{},
                        KAVELA_TEXT("Main folder to open at start.")},
        PreferenceEntry{"autoloadTestMonitor", false, KAVELA_TEXT("Open the test tool at start.")},
    };
    return Table;
}

} // namespace

std::span<const PreferenceEntry> preferenceTable() {
    return table();
}

const PreferenceEntry& preferenceEntry(std::string_view key) {
    const auto entry = std::ranges::find(table(), key, &PreferenceEntry::key);
    if (entry == table().end())
        throw std::logic_error("no preference is called " + std::string(key));
    return *entry;
}

} // namespace kavela
