#pragma once

#include "cli/painting.h"

namespace kavela::painting {

/// The painting of a program that is linked with everything.
class OwnPainting : public cli::Painting {
public:
    [[nodiscard]] PreferenceValue preference(std::string_view key) const override;
    void writeRaceReport(splittakerdata031 document, const std::filesystem::path& splitFile,
                         const TableSettings& settings,
                         const std::filesystem::path& target) const override;
    [[nodiscard]] bool isCategorizationWritten(const std::string& category,
                                               const std::vector<Categorization>& athletes,
                                               const std::filesystem::path& folder) const override;
    [[nodiscard]] bool isSelectionWritten(const selectionracesStruct_v3& document,
                                          std::optional<std::size_t> bonus,
                                          const std::filesystem::path& folder) const override;
    [[nodiscard]] bool isAthletePageWritten(const FactStore& facts, const SeasonLossQuery& query,
                                            const std::filesystem::path& folder) const override;
    [[nodiscard]] bool areSeasonPagesWritten(const Season& season,
                                             const std::filesystem::path& folder) const override;
    [[nodiscard]] bool arePageClipsCut(const std::vector<page::ClipOrder>& clips) const override;
    [[nodiscard]] std::vector<SampleFile> sampleFiles() const override;
    [[nodiscard]] int writeSeasonFilms(const std::filesystem::path& folder) const override;
    [[nodiscard]] int composeFilm(const std::filesystem::path& job,
                                  const std::filesystem::path& output) const override;
    [[nodiscard]] int fetchFilms(const cli::FilmFetchCall& call) const override;
    [[nodiscard]] int trackFilm(const cli::TrackCall& call) const override;
    [[nodiscard]] int shareFolder(const cli::FolderShareCall& call) const override;
    [[nodiscard]] int writeSlit(const cli::SlitCall& call) const override;
};

} // namespace kavela::painting
