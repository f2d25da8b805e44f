#pragma once

#include "analysis/split_table.h"
#include "splitdata/document.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The page of an athlete for a telephone: one HTML file with everything in it, that opens from a
/// mail without a network and without a script.
namespace kavela::page {

/// A split file as it was read.
struct RaceFile {
    splittakerdata031 document;
    std::filesystem::path path;
};

/// Whose page, and how it shows the times. What narrows the runs narrows whom the splits are
/// coloured among too, as the filters of the analyzer do.
struct PageChoice {
    std::string crewKey;
    std::string category; ///< only runs of it, however it is written; empty for all
    std::string phase;    ///< the same
    TableSettings settings = {};
    ColourScale scale = ColourScale::GreenRed;
    std::string language = "en"; ///< what the program speaks: the page says so of itself
};

/// A film that lies beside the page.
struct PageFilm {
    std::string address; ///< path from the page, "/" between folders, as file names stand
    std::string poster;  ///< the same of its picture; empty for none
    std::string title;
    /// The run that it shows: the place of its file among the races, and its number there from 0;
    /// none for a film of several runs.
    std::optional<std::pair<std::size_t, std::size_t>> run = {};
};

/// Whether a run of a file is one of the page's.
[[nodiscard]] bool isRunMeant(const splittakerdata031& document, const athletedata031& run,
                              const PageChoice& choice);
/// Whether some run of a file is.
[[nodiscard]] bool hasRunsOf(const splittakerdata031& document, const PageChoice& choice);

/// The whole page, of one race or of several: the earliest first, those without a run of the
/// athlete left out. Nothing where no run is the athlete's.
[[nodiscard]] std::optional<std::string> athletePage(std::vector<RaceFile> races,
                                                     const PageChoice& choice,
                                                     const std::vector<PageFilm>& films = {});

/// What is wrong with the name of a page; empty when nothing is. Its end has to be one that every
/// telephone opens as a page, and tells the page from the folder of its films.
[[nodiscard]] std::string complaintAboutPageName(const std::filesystem::path& path);

} // namespace kavela::page
