#include "boatmotion/test_attempts.h"

#include "common/text.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

/// The date of the first entry of an attempt, s.
double beginOf(const differentGTdata& attempt) {
    double begin = HUGE_VAL;
    for (const smartBMdata& entry : attempt.boatdata)
        begin = std::min(begin, entry.date.seconds);
    for (const smartSprintdata& entry : attempt.sprintdata)
        begin = std::min(begin, entry.date.seconds);
    return begin;
}

Cell heartCell(std::int64_t hr) {
    return hr > 0 ? Cell(static_cast<double>(hr)) : Cell();
}

} // namespace

std::vector<std::string> kindsIn(const differentGTdata& attempt) {
    std::vector<std::string> kinds;
    for (const smartBMdata& entry : attempt.boatdata)
        if (std::ranges::find(kinds, entry.kind) == kinds.end())
            kinds.push_back(entry.kind);
    return kinds;
}

SessionGrid strokeDataGrid(const differentGTdata& attempt, const std::string& kind) {
    const auto isShown = [&](const smartBMdata& entry) {
        return kind.empty() || entry.kind == kind;
    };
    std::size_t most = 0;
    for (const smartBMdata& entry : attempt.boatdata)
        if (isShown(entry))
            most = std::max(most, entry.values.size());
    SessionGrid grid;
    grid.columns = {{KAVELA_TEXT("Time"), "s", 2},
                    {KAVELA_TEXT("Kind"), "", 0},
                    {KAVELA_TEXT("Heart rate"), "1/min", 0}};
    for (std::size_t i = 0; i < most; ++i)
        grid.columns.push_back({"Value " + std::to_string(i + 1), "", 3});
    const double begin = beginOf(attempt);
    for (const smartBMdata& entry : attempt.boatdata) {
        if (!isShown(entry))
            continue;
        SessionGrid::Row row;
        row.moment = entry.date.seconds - begin;
        row.cells = {row.moment, entry.kind, heartCell(entry.hr)};
        row.cells.insert(row.cells.end(), entry.values.begin(), entry.values.end());
        row.cells.resize(grid.columns.size());
        grid.rows.push_back(std::move(row));
    }
    return grid;
}

SessionGrid sprintDataGrid(const differentGTdata& attempt) {
    SessionGrid grid;
    grid.columns = {{KAVELA_TEXT("Time"), "s", 2},
                    {KAVELA_TEXT("Value"), "", 3},
                    {KAVELA_TEXT("Heart rate"), "1/min", 0}};
    const double begin = beginOf(attempt);
    for (const smartSprintdata& entry : attempt.sprintdata) {
        SessionGrid::Row row;
        row.moment = entry.date.seconds - begin;
        row.cells = {row.moment, entry.values, heartCell(entry.hr)};
        grid.rows.push_back(std::move(row));
    }
    return grid;
}

} // namespace kavela
