#include "splittaking/training_collection.h"

#include "common/error.h"
#include "common/folded_text.h"
#include "common/utf8.h"
#include "splittaking/course_setup.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <numeric>

namespace kavela {

namespace {

namespace fs = std::filesystem;

enum class Sign { Other, Digit, Small, Capital, WordOfItsOwn };

Sign signOf(char32_t character) {
    constexpr char32_t FirstOfAsianScripts = 0x2E80; // written without blanks between words
    if (character >= '0' && character <= '9')
        return Sign::Digit;
    if (smallLetter(character) != character)
        return Sign::Capital;
    if ((character >= 'a' && character <= 'z') ||
        (character >= 0xC0 && character < FirstOfAsianScripts &&
         !(character >= 0x2000 && character < 0x2C00)))
        return Sign::Small;
    return character >= FirstOfAsianScripts ? Sign::WordOfItsOwn : Sign::Other;
}

/// Whether a new word begins between two characters: "AnnLee2" is three.
bool isBoundary(Sign before, Sign after) {
    if (before == Sign::Capital && after == Sign::Small)
        return false;
    return before != after || after == Sign::WordOfItsOwn;
}

/// The folded words of a text: runs of letters or digits.
std::vector<std::string> nameWords(std::string_view text) {
    std::vector<std::string> words;
    Sign before = Sign::Other;
    while (!text.empty()) {
        // Character by character in the original bytes, since folding changes their number.
        std::size_t length = 1;
        while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
            ++length;
        const std::string_view bytes = text.substr(0, length);
        text.remove_prefix(length);
        const std::string plain = folded(bytes);
        if (plain.empty())
            continue; // an accent belongs to the letter before it
        const Sign sign = signOf(charactersIn(bytes).front());
        if (sign != Sign::Other && isBoundary(before, sign))
            words.emplace_back();
        if (sign != Sign::Other)
            words.back() += plain;
        before = sign;
    }
    return words;
}

std::string joined(const std::vector<std::string>& words) {
    return std::accumulate(words.begin(), words.end(), std::string());
}

/// Whether some words in a row read as the name when written together.
bool holds(const std::vector<std::string>& words, const std::string& name) {
    for (std::size_t begin = 0; begin < words.size(); ++begin) {
        std::string text;
        for (std::size_t i = begin; i < words.size() && text.size() < name.size(); ++i)
            text += words[i];
        if (text == name)
            return true;
    }
    return false;
}

std::vector<std::string> filmsOf(const fs::path& folder) {
    std::vector<std::string> films;
    try {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            std::error_code ignored;
            std::string name = entry.path().filename().string();
            if (isVideoFile(name) && entry.is_regular_file(ignored))
                films.push_back(std::move(name));
        }
    } catch (const fs::filesystem_error& error) {
        throw FileError(folder, error.code().message());
    }
    std::sort(films.begin(), films.end(), isNaturallyBefore);
    return films;
}

athletedata031 runOf(const std::string& film, const std::vector<std::string>& names,
                     std::size_t place) {
    const FilmFacts facts = filmFacts(film);
    athletedata031 run;
    run.names = names;
    run.cat = facts.category;
    run.phase = facts.phase.empty() ? "Run " + std::to_string(place) : facts.phase;
    run.videoname = {film};
    return run;
}

} // namespace

bool isAthleteName(std::string_view text) {
    return isUtf8(text) && !nameWords(text).empty();
}

bool carriesName(std::string_view fileName, std::string_view athlete) {
    const std::vector<std::string> words = nameWords(fileName);
    std::vector<std::string> name = nameWords(athlete);
    for (std::size_t turn = 0; turn < name.size(); ++turn) {
        if (holds(words, joined(name)))
            return true;
        std::rotate(name.begin(), name.begin() + 1, name.end());
    }
    return false;
}

TrainingCollection collectTraining(const fs::path& folder, const TrainingPlan& plan) {
    TrainingCollection collection;
    infodata031& info = collection.document.info;
    info.session = "Training";
    info.title = plan.athlete;
    info.date = plan.now;
    info.lastSavedDate = plan.now;
    info.totalsplits = plan.totalsplits;
    info.splitTitles = sectionTitles(defaultSections(0, plan.totalsplits));
    const std::vector<std::string> names = crewIn(plan.athlete);
    std::vector<athletedata031>& runs = collection.document.athletes;
    for (const std::string& film : filmsOf(folder)) {
        const auto isCarried = [&](const std::string& name) { return carriesName(film, name); };
        if (names.empty() || !std::all_of(names.begin(), names.end(), isCarried))
            continue;
        if (isUtf8(film))
            runs.push_back(runOf(film, names, runs.size() + 1));
        else
            collection.unusable.push_back(film);
    }
    return collection;
}

} // namespace kavela
