#include "splittaking/annotations/run_notes.h"

#include "splitdata/run_timing.h"
#include "splittaking/course_setup.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace kavela {

namespace {

std::vector<Blob>& radioOf(athletedata031& run, std::size_t recording) {
    (void)entryOf(run.sectioninfo.teamradio, recording, "recording");
    return run.sectioninfo.teamradio;
}

/// What a kind of sound file has at a place of its first bytes.
struct NoteSign {
    std::size_t place;
    std::string_view bytes;
    std::string_view extension;
};

constexpr NoteSign Signs[] = {
    {4, "ftyp", ".m4a"},     {8, "WAVE", ".wav"},     {8, "AIFF", ".aiff"},
    {8, "AIFC", ".aiff"},    {0, "caff", ".caf"},     {0, "OggS", ".ogg"},
    {0, "fLaC", ".flac"},    {0, "#!AMR", ".amr"},    {0, "ID3", ".mp3"},
    {0, "\xFF\xF1", ".aac"}, {0, "\xFF\xF9", ".aac"}, {0, "\xFF\xFB", ".mp3"},
    {0, "\xFF\xF3", ".mp3"}, {0, "\xFF\xF2", ".mp3"}};

} // namespace

std::string splitComment(const athletedata031& run, std::size_t split) {
    return split == 0 ? std::string() : entryOrZero(run.sectioninfo.comments, split - 1);
}

void setSplitComment(athletedata031& run, std::size_t split, std::string text) {
    if (split < 1 || std::cmp_greater(split, MostSplits))
        throw std::out_of_range("split " + std::to_string(split) + " does not exist");
    std::vector<std::string>& comments = run.sectioninfo.comments;
    if (!text.empty() || split <= comments.size())
        setPadded(comments, split - 1, std::move(text));
}

void addGiveUps(athletedata031& run, std::int64_t more) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(run.giveups, more, &sum))
        sum = more > 0 ? std::numeric_limits<std::int64_t>::max() : 0;
    run.giveups = std::max<std::int64_t>(sum, 0);
}

void setScore(athletedata031& run, Scorer scorer, double score) {
    if (!(score >= 0 && score <= BestScore))
        throw std::invalid_argument("a score must be a number from 0 to 10");
    (scorer == Scorer::Athlete ? run.athletesscore : run.coachsscore) = score;
}

std::size_t addTeamRadio(athletedata031& run, Blob recording) {
    run.sectioninfo.teamradio.push_back(std::move(recording));
    return run.sectioninfo.teamradio.size() - 1;
}

void removeTeamRadio(athletedata031& run, std::size_t recording) {
    eraseEntry(radioOf(run, recording), recording);
}

void moveTeamRadio(athletedata031& run, std::size_t from, std::size_t to) {
    std::vector<Blob>& radio = radioOf(run, std::max(from, to));
    const auto at = [&](std::size_t place) {
        return radio.begin() + static_cast<std::ptrdiff_t>(place);
    };
    if (from < to)
        std::rotate(at(from), at(from) + 1, at(to) + 1);
    else
        std::rotate(at(to), at(from), at(from) + 1);
}

std::string_view soundExtension(const Blob& recording) {
    const auto hasSign = [&](const NoteSign& sign) {
        return recording.bytes.size() >= sign.place + sign.bytes.size() &&
               std::equal(
                   sign.bytes.begin(), sign.bytes.end(),
                   recording.bytes.begin() + static_cast<std::ptrdiff_t>(sign.place),
                   [](char a, unsigned char b) { return static_cast<unsigned char>(a) == b; });
    };
    const auto found = std::ranges::find_if(Signs, hasSign);
    return found == std::end(Signs) ? ".bin" : found->extension;
}

} // namespace kavela
