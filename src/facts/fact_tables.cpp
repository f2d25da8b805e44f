#include "facts/fact_tables.h"

#include "facts/content_hash.h"

#include <algorithm>
#include <array>

namespace kavela {

namespace {

/// To be raised whenever a row's members change their meaning, or facts are made in another way
/// from the same file.
constexpr std::uint64_t Meaning = 1;

template <class Row>
bool isWithin(RowRange range, const std::vector<Row>& table) {
    return std::uint64_t{range.first} + range.count <= table.size();
}

/// A byte that is neither 0 nor 1 is no truth value, and must not be read as one.
bool isTruth(const bool& value) {
    unsigned char byte = 0;
    std::memcpy(&byte, &value, 1);
    return byte <= 1;
}

template <class Row>
bool knows(const Row& row, std::size_t texts, std::initializer_list<TextId Row::*> members) {
    return std::ranges::all_of(members, [&](TextId Row::*member) { return row.*member < texts; });
}

} // namespace

std::uint64_t FactTables::layout() {
    const std::array<std::uint64_t, 11> shape{Meaning,
                                              sizeof(FileRow),
                                              sizeof(CourseRow),
                                              sizeof(RunRow),
                                              sizeof(SectionRow),
                                              sizeof(GateRow),
                                              sizeof(PenaltyRow),
                                              sizeof(LossRow),
                                              sizeof(WayRow),
                                              sizeof(TagRow),
                                              sizeof(std::size_t)};
    return contentHash({reinterpret_cast<const char*>(shape.data()), sizeof shape});
}

void FactTables::write(const FactStore& facts, ByteWriter& bytes) {
    bytes.put(static_cast<std::uint64_t>(facts.m_texts.size()));
    for (TextId id = 0; id < facts.m_texts.size(); ++id)
        bytes.putText(facts.m_texts[id]);
    bytes.putRows(facts.m_files);
    bytes.putRows(facts.m_courses);
    bytes.putRows(facts.m_runs);
    bytes.putRows(facts.m_sections);
    bytes.putRows(facts.m_gates);
    bytes.putRows(facts.m_penalties);
    bytes.putRows(facts.m_losses);
    bytes.putRows(facts.m_ways);
    bytes.putRows(facts.m_tags);
    bytes.putRows(facts.m_wholeNumbers);
    bytes.putRows(facts.m_numbers);
    bytes.putRows(facts.m_textLists);
}

bool FactTables::readTexts(ByteReader& bytes, Texts& texts) {
    std::uint64_t count = 0;
    if (!bytes.get(count))
        return false;
    for (std::uint64_t i = 0; i < count; ++i) {
        std::string_view text;
        if (!bytes.getText(text) || texts.idOf(text) != i)
            return false;
    }
    return count > 0;
}

bool FactTables::read(ByteReader& bytes, FactStore& facts) {
    return readTexts(bytes, facts.m_texts) && bytes.getRows(facts.m_files) &&
           bytes.getRows(facts.m_courses) && bytes.getRows(facts.m_runs) &&
           bytes.getRows(facts.m_sections) && bytes.getRows(facts.m_gates) &&
           bytes.getRows(facts.m_penalties) && bytes.getRows(facts.m_losses) &&
           bytes.getRows(facts.m_ways) && bytes.getRows(facts.m_tags) &&
           bytes.getRows(facts.m_wholeNumbers) && bytes.getRows(facts.m_numbers) &&
           bytes.getRows(facts.m_textLists) && isSound(facts);
}

bool FactTables::isSound(const FactStore& facts) {
    const std::size_t texts = facts.m_texts.size();
    return areFilesSound(facts) && areRunsSound(facts) && areNotesSound(facts) &&
           std::ranges::all_of(facts.m_textLists, [&](TextId id) { return id < texts; }) &&
           std::ranges::all_of(facts.m_sections, [](const SectionRow& section) {
               return isTruth(section.standsAlone);
           });
}

bool FactTables::areFilesSound(const FactStore& facts) {
    const std::size_t texts = facts.m_texts.size();
    const bool areCoursesSound = std::ranges::all_of(facts.m_courses, [&](const CourseRow& row) {
        return isWithin(row.gates, facts.m_wholeNumbers);
    });
    return areCoursesSound && std::ranges::all_of(facts.m_files, [&](const FileRow& row) {
               return knows(row, texts,
                            {&FileRow::path, &FileRow::title, &FileRow::place, &FileRow::session,
                             &FileRow::event, &FileRow::category, &FileRow::water,
                             &FileRow::siwicode, &FileRow::tags, &FileRow::comments}) &&
                      isWithin(row.runs, facts.m_runs) &&
                      isWithin(row.upGates, facts.m_wholeNumbers) &&
                      isWithin(row.courses, facts.m_courses) &&
                      isWithin(row.interests, facts.m_numbers);
           });
}

bool FactTables::areRunsSound(const FactStore& facts) {
    const std::size_t texts = facts.m_texts.size();
    return std::ranges::all_of(facts.m_runs, [&](const RunRow& row) {
        return row.file < facts.m_files.size() &&
               knows(row, texts,
                     {&RunRow::crew, &RunRow::names, &RunRow::crewKey, &RunRow::category,
                      &RunRow::categoryKey, &RunRow::phase, &RunRow::phaseKey, &RunRow::hand}) &&
               isTruth(row.isComplete) && isTruth(row.isOfficial) && isTruth(row.isRefused) &&
               isWithin(row.sections, facts.m_sections) &&
               isWithin(row.pens, facts.m_wholeNumbers) && isWithin(row.gates, facts.m_gates) &&
               isWithin(row.penalties, facts.m_penalties) && isWithin(row.losses, facts.m_losses) &&
               isWithin(row.ways, facts.m_ways) && isWithin(row.tags, facts.m_tags) &&
               isWithin(row.films, facts.m_textLists);
    });
}

bool FactTables::areNotesSound(const FactStore& facts) {
    const std::size_t texts = facts.m_texts.size();
    const bool areLossesSound = std::ranges::all_of(facts.m_losses, [&](const LossRow& row) {
        return knows(row, texts, {&LossRow::versus, &LossRow::reasons, &LossRow::comments});
    });
    const bool areWaysSound = std::ranges::all_of(facts.m_ways, [&](const WayRow& row) {
        return knows(row, texts, {&WayRow::title, &WayRow::comments}) &&
               isWithin(row.options, facts.m_textLists) && isWithin(row.times, facts.m_numbers);
    });
    return areLossesSound && areWaysSound &&
           std::ranges::all_of(facts.m_tags, [&](const TagRow& row) {
               return knows(row, texts, {&TagRow::tag, &TagRow::comments});
           });
}

} // namespace kavela
