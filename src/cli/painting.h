#pragma once

#include "analysis/split_table.h"
#include "app/preference_table.h"
#include "facts/fact_store.h"
#include "page/page_films.h"
#include "performance/loss_season.h"
#include "performance/season.h"
#include "results/categorization.h"
#include "results/selection_records.h"
#include "sample/season.h"
#include "splitdata/document.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavela::cli {

/// What is fetched by a call, and how.
struct FilmFetchCall {
    std::string source;     ///< the file that tells where from
    std::string user;       ///< empty where the server asks for none
    bool showsOnly = false; ///< nothing is to be fetched
    bool isAgreed = false;  ///< nobody is asked
};

/// What is followed through a film, and where to.
struct TrackCall {
    using Box = std::array<double, 4>; ///< left, upper side, width, height, in pixels

    std::string film;
    Box box{};
    double at = 0;                 ///< second of the film at which the box was drawn
    std::optional<double> to = {}; ///< second at which it ends
    std::string plane;             ///< file of known points; empty for none
    std::string output;            ///< file to write
};

/// What is shared by a call, and how.
struct FolderShareCall {
    std::string folder;
    std::string to;         ///< the address; empty for the one that was used last
    std::string user;       ///< empty where the server asks for none
    bool showsOnly = false; ///< nothing is to be moved
    bool isAgreed = false;  ///< nobody is asked
    bool deletes = false;   ///< what was deleted on one side may be deleted on the other
    bool isJson = false;
};

/// What is shown of a film's line, and how.
struct SlitCall {
    std::string film;
    std::array<double, 4> line{}; ///< X1, Y1, X2, Y2 in pixels of the upright picture
    std::optional<double> from;   ///< seconds of the film
    std::optional<double> to;
    std::string output; ///< a picture; empty for none
    bool isJson = false;
    bool hasProposals = false;
    std::array<double, 4> boat{}; ///< X, Y, width, height of a box round one boat
    bool isFromLeft = true;
};

/// What commands do with libraries that take longer to load than a table takes to print: those that
/// paint, make films and keep preferences. `kavela` does without them; a command that needs this
/// asks for it with `neededIf` before it prints or writes anything, and `kavela-paint` takes over.
class Painting {
public:
    virtual ~Painting() = default;

    /// The value of a preference as the platform's store has it.
    [[nodiscard]] virtual PreferenceValue preference(std::string_view key) const = 0;

    /// Paints the report of a race into a file. `splitFile` is where the document stands. Throws
    /// FileError when the report cannot be written.
    virtual void writeRaceReport(splittakerdata031 document, const std::filesystem::path& splitFile,
                                 const TableSettings& settings,
                                 const std::filesystem::path& target) const = 0;

    /// Paints the report of a categorization into a folder; false, after a message, when it cannot
    /// be written.
    [[nodiscard]] virtual bool
    isCategorizationWritten(const std::string& category,
                            const std::vector<Categorization>& athletes,
                            const std::filesystem::path& folder) const = 0;

    /// Paints both reports of a selection into a folder; false, after a message, when one of them
    /// cannot be written.
    [[nodiscard]] virtual bool isSelectionWritten(const selectionracesStruct_v3& document,
                                                  std::optional<std::size_t> bonus,
                                                  const std::filesystem::path& folder) const = 0;

    /// Paints the season of an athlete into a folder, as a page named after the athlete. An earlier
    /// page of the same athlete is replaced, any other file of that name stays. False, after a
    /// message, when the page cannot be written.
    [[nodiscard]] virtual bool isAthletePageWritten(const FactStore& facts,
                                                    const SeasonLossQuery& query,
                                                    const std::filesystem::path& folder) const = 0;

    /// Paints a season into a folder: a report of the team, named after the category, and a page
    /// for each athlete. As with an athlete's page only earlier ones of the same are replaced.
    /// False, after a message, when one cannot be written.
    [[nodiscard]] virtual bool areSeasonPagesWritten(const Season& season,
                                                     const std::filesystem::path& folder) const = 0;

    /// Cuts the clips that lie beside an athlete's page, with a progress bar; an earlier clip of
    /// the same run is replaced. False, after a message for each, when one could not be cut.
    [[nodiscard]] virtual bool arePageClipsCut(const std::vector<page::ClipOrder>& clips) const = 0;

    /// The files of the sample season, which is too much for a program that is built for a table.
    [[nodiscard]] virtual std::vector<SampleFile> sampleFiles() const = 0;

    /// Makes the films of the sample season beside their split files, with a progress bar; a film
    /// that is there already stays. Returns the exit status; throws FileError when a film cannot be
    /// written.
    [[nodiscard]] virtual int writeSeasonFilms(const std::filesystem::path& folder) const = 0;

    /// Composes the film that a job file asks for, with a line that tells how far it is; into
    /// `output` where that is not empty, otherwise where the job says. Returns the exit status,
    /// after a message where that is not 0.
    [[nodiscard]] virtual int composeFilm(const std::filesystem::path& job,
                                          const std::filesystem::path& output) const = 0;

    /// Prints what would be fetched from a source, and fetches it where that is wanted. Returns the
    /// exit status.
    [[nodiscard]] virtual int fetchFilms(const FilmFetchCall& call) const = 0;

    /// Follows something through a film and writes its path as a table. Returns the exit status,
    /// after a message where that is not 0.
    [[nodiscard]] virtual int trackFilm(const TrackCall& call) const = 0;

    /// Prints what differs between a folder and a server, and shares it where that is wanted.
    /// Returns the exit status.
    [[nodiscard]] virtual int shareFolder(const FolderShareCall& call) const = 0;

    /// Writes the slit picture of a film's line, and prints its columns and what may have crossed
    /// it where that is wanted. Returns the exit status.
    [[nodiscard]] virtual int writeSlit(const SlitCall& call) const = 0;
};

/// Thrown by a command of a program without painting: the call is for `kavela-paint`.
struct NeedsPainting {};

/// The painting of this program. Throws NeedsPainting where it has none.
inline const Painting& needed(const Painting* painting) {
    if (!painting)
        throw NeedsPainting();
    return *painting;
}

/// The painting that a call asks for; null where it asks for none.
inline const Painting* neededIf(bool isAskedFor, const Painting* painting) {
    return isAskedFor ? &needed(painting) : nullptr;
}

} // namespace kavela::cli
