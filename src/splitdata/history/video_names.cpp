#include "splitdata/history/video_names.h"

#include <map>

namespace kavela {

void nameMissingVideos(splittakerdata031& document) {
    const bool isRace = document.info.session == "Race";
    std::map<std::string, int> runsOf;
    for (athletedata031& run : document.athletes) {
        const std::string& name = run.names.front();
        const int number = ++runsOf[name];
        std::string& video = run.videoname.front();
        if (video.empty())
            video = name + ' ' + (isRace ? run.phase : std::to_string(number)) + ".MOV";
    }
}

} // namespace kavela
