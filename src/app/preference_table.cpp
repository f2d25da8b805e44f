#include "app/preference_table.h"

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
                        "List of online planning entries."},
        PreferenceEntry{"watchedfiles", List{}, "Files that have already been watched."},
        PreferenceEntry{"autoplaynext", false, "Play the next video of a list when one ends."},
        PreferenceEntry{"startinCMTime", false,
                        "Start a run at its stored video time rather than at the video's start."},
        PreferenceEntry{"playonclick", false, "Start playback as soon as a row is clicked."},
        PreferenceEntry{"penaltiesVisible", false, "Show penalties in the tables."},
        PreferenceEntry{"penaltiesIncluded", false,
                        "Include penalty seconds in the times that are compared."},
        PreferenceEntry{"colorMode", text("Race"), "Colours of the split table."},
        PreferenceEntry{"comtagIndex", Integer{0}, "Comment tag chosen last."},
        PreferenceEntry{"coachswordvisible", true, "Show the coach's comments."},
        PreferenceEntry{"tagmodeplaysjustpart", true,
                        "In tag mode, play only the tagged part of a video."},
        PreferenceEntry{"lastdatatype", Integer{0}, "Kind of data opened last."},
        PreferenceEntry{"lastdatatype", Integer{0}, "Kind of data opened last."},
        PreferenceEntry{"fullscreenBMRoll", true, "Full screen shows the roll chart."},
        PreferenceEntry{"fullscreenBMPitch", true, "Full screen shows the pitch chart."},
        PreferenceEntry{"fullscreenHR", true, "Full screen shows the heart-rate chart."},
        PreferenceEntry{"fullscreenBMScatter", false, "Full screen shows the scatter chart."},
        PreferenceEntry{"normalizedBMvalues", false, "Show boat-motion values normalised."},
        PreferenceEntry{"gaugeImpulse", true, "Show the impulse gauge."},
        PreferenceEntry{"gaugeStrokerate", true, "Show the stroke-rate gauge."},
        PreferenceEntry{"predeterminatedsplits", Integer{7},
                        "Number of splits of a new split file."},
        PreferenceEntry{"savedtags", List{}, "Tag names saved for reuse."},
        PreferenceEntry{"savedTLreasons", List{}, "Time-loss reasons saved for reuse."},
        PreferenceEntry{"autoloadPlanning", false, "Load a planning file at start."},
        PreferenceEntry{"autoloadPlanningOnline", false,
                        "The planning file to load at start is an online one."},
        PreferenceEntry{"autoloadPlanningOnline", false,
                        "The planning file to load at start is an online one."},
        PreferenceEntry{"autoloadPlanningURL", PreferenceUrl{}, "Planning file to load at start."},
        PreferenceEntry{"savetoCSV", false, "Also export the table as CSV on saving."},
        PreferenceEntry{"savetoPDF", false, "Also export a PDF on saving."},
        PreferenceEntry{"autoloadMainFolderURL", PreferenceUrl{}, "Main folder to open at start."},
        PreferenceEntry{"autoloadTestMonitor", false, "Open the test tool at start."},
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
