#pragma once

#include "facts/fact_rows.h"
#include "splitdata/document.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavela {

/// The tables of facts of any number of split files: columns of plain rows and every text once. A
/// race is a store of one file, a season one of many, and what is computed from them is the same
/// code.
class FactStore {
public:
    /// Adds what a document says. `path` is where it lies; runs are numbered as they stand in it.
    void add(const splittakerdata031& document, const std::filesystem::path& path);

    /// Adds all of another store behind this one's rows.
    void add(const FactStore& other);

    [[nodiscard]] std::span<const FileRow> files() const { return m_files; }
    [[nodiscard]] std::span<const RunRow> runs() const { return m_runs; }
    [[nodiscard]] std::span<const RunRow> runsOf(const FileRow& file) const;
    [[nodiscard]] const FileRow& fileOf(const RunRow& run) const { return m_files[run.file]; }

    [[nodiscard]] std::span<const SectionRow> sectionsOf(const RunRow& run) const;
    [[nodiscard]] std::span<const GateRow> gatesOf(const RunRow& run) const;
    [[nodiscard]] std::span<const PenaltyRow> penaltiesOf(const RunRow& run) const;
    [[nodiscard]] std::span<const LossRow> lossesOf(const RunRow& run) const;
    [[nodiscard]] std::span<const WayRow> waysOf(const RunRow& run) const;
    [[nodiscard]] std::span<const TagRow> tagsOf(const RunRow& run) const;
    [[nodiscard]] std::span<const std::int64_t> pensOf(const RunRow& run) const;
    [[nodiscard]] std::span<const TextId> filmsOf(const RunRow& run) const;

    [[nodiscard]] std::span<const std::int64_t> upGatesOf(const FileRow& file) const;
    [[nodiscard]] std::span<const double> interestsOf(const FileRow& file) const;
    /// How many sections the course defines, and the gates of one, counted from 0.
    [[nodiscard]] std::size_t definedSections(const FileRow& file) const;
    [[nodiscard]] std::span<const std::int64_t> definedSection(const FileRow& file,
                                                               std::size_t section) const;
    [[nodiscard]] std::span<const double> timesOf(const WayRow& way) const;
    [[nodiscard]] std::span<const TextId> optionsOf(const WayRow& way) const;

    [[nodiscard]] std::string_view text(TextId id) const { return m_texts[id]; }
    /// Texts are numbered from 0 to one below this.
    [[nodiscard]] std::size_t textCount() const { return m_texts.size(); }
    [[nodiscard]] std::filesystem::path pathOf(const RunRow& run) const;
    /// The lines of a text that holds one on each.
    [[nodiscard]] std::vector<std::string> lines(TextId id) const;

private:
    void addRun(const splittakerdata031& document, const athletedata031& run);
    void addSections(const infodata031& info, const athletedata031& run, RunRow& row);
    void addNotes(const athletedata031& run, RunRow& row);
    void addPenalties(const athletedata031& run, RunRow& row);
    void addTags(const athletedata031& run, RunRow& row);
    void addWays(const athletedata031& run, RunRow& row);
    [[nodiscard]] TextId idOfLines(std::span<const std::string> lines);
    [[nodiscard]] RowRange keep(std::span<const std::int64_t> numbers);
    [[nodiscard]] RowRange keep(std::span<const double> numbers);
    [[nodiscard]] RowRange keep(std::span<const std::string> texts);

    std::vector<FileRow> m_files;
    std::vector<CourseRow> m_courses;
    std::vector<RunRow> m_runs;
    std::vector<SectionRow> m_sections;
    std::vector<GateRow> m_gates;
    std::vector<PenaltyRow> m_penalties;
    std::vector<LossRow> m_losses;
    std::vector<WayRow> m_ways;
    std::vector<TagRow> m_tags;
    std::vector<std::int64_t> m_wholeNumbers;
    std::vector<double> m_numbers;
    std::vector<TextId> m_textLists;
    Texts m_texts;

    friend class FactTransfer; ///< copies single files from store to store
    friend class FactTables;   ///< the cache on the disk
};

} // namespace kavela
