#include "facts/fact_transfer.h"

#include "facts/row_ranges.h"

namespace kavela {

FactTransfer::FactTransfer(const FactStore& from, FactStore& to)
    : m_from(from), m_to(to), m_texts(from.m_texts.size()) {}

TextId FactTransfer::moved(TextId text) {
    if (text == 0)
        return 0;
    if (m_texts[text] == 0)
        m_texts[text] = m_to.m_texts.idOf(m_from.m_texts[text]);
    return m_texts[text];
}

template <class Row>
RowRange FactTransfer::moved(std::vector<Row> FactStore::*table, RowRange range) {
    const std::span<const Row> rows = rowsIn(m_from.*table, range);
    std::vector<Row>& target = m_to.*table;
    const std::size_t first = target.size();
    target.insert(target.end(), rows.begin(), rows.end());
    return rangeFrom(target, first);
}

RowRange FactTransfer::movedTexts(RowRange range) {
    const RowRange rows = moved(&FactStore::m_textLists, range);
    for (TextId& text : std::span(m_to.m_textLists).subspan(rows.first))
        text = moved(text);
    return rows;
}

void FactTransfer::add(std::size_t file, std::string_view path) {
    FileRow row = m_from.m_files[file];
    const RowRange runs = row.runs;
    row.path = m_to.m_texts.idOf(path);
    for (TextId FileRow::*text :
         {&FileRow::title, &FileRow::place, &FileRow::session, &FileRow::event, &FileRow::category,
          &FileRow::water, &FileRow::siwicode, &FileRow::tags, &FileRow::comments})
        row.*text = moved(row.*text);
    row.upGates = moved(&FactStore::m_wholeNumbers, row.upGates);
    row.interests = moved(&FactStore::m_numbers, row.interests);
    row.courses = moved(&FactStore::m_courses, row.courses);
    for (CourseRow& course : std::span(m_to.m_courses).subspan(row.courses.first))
        course.gates = moved(&FactStore::m_wholeNumbers, course.gates);
    row.runs.first = rowCount(m_to.m_runs.size());
    for (const RunRow& run : rowsIn(m_from.m_runs, runs))
        addRun(run);
    m_to.m_files.push_back(row);
}

void FactTransfer::addRun(const RunRow& from) {
    RunRow row = from;
    row.file = rowCount(m_to.m_files.size());
    for (TextId RunRow::*text :
         {&RunRow::crew, &RunRow::names, &RunRow::crewKey, &RunRow::category, &RunRow::categoryKey,
          &RunRow::phase, &RunRow::phaseKey, &RunRow::hand})
        row.*text = moved(row.*text);
    row.sections = moved(&FactStore::m_sections, row.sections);
    row.pens = moved(&FactStore::m_wholeNumbers, row.pens);
    row.gates = moved(&FactStore::m_gates, row.gates);
    row.penalties = moved(&FactStore::m_penalties, row.penalties);
    row.losses = moved(&FactStore::m_losses, row.losses);
    for (LossRow& loss : std::span(m_to.m_losses).subspan(row.losses.first)) {
        loss.versus = moved(loss.versus);
        loss.reasons = moved(loss.reasons);
        loss.comments = moved(loss.comments);
    }
    row.ways = moved(&FactStore::m_ways, row.ways);
    for (WayRow& way : std::span(m_to.m_ways).subspan(row.ways.first)) {
        way.title = moved(way.title);
        way.comments = moved(way.comments);
        way.options = movedTexts(way.options);
        way.times = moved(&FactStore::m_numbers, way.times);
    }
    row.tags = moved(&FactStore::m_tags, row.tags);
    for (TagRow& tag : std::span(m_to.m_tags).subspan(row.tags.first)) {
        tag.tag = moved(tag.tag);
        tag.comments = moved(tag.comments);
    }
    row.films = movedTexts(row.films);
    m_to.m_runs.push_back(row);
}

} // namespace kavela
