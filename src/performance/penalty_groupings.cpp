#include "performance/penalty_groupings.h"

#include "common/folded_text.h"
#include "common/reference_date.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace kavela {

namespace {

/// What tells a row from others and what is shown of it.
struct RowName {
    std::string same; ///< equal for all passages of the row
    std::string key;
    std::string label;
    std::optional<std::int64_t> number;
};

/// The calendar month of a date in UTC: "2026-05".
std::string monthText(double seconds) {
    constexpr std::size_t MonthLength = 7;
    constexpr std::size_t DayLength = 10;
    const std::string day = dayText({seconds});
    return day.size() == DayLength ? day.substr(0, MonthLength) : day;
}

/// ⌈10·gate/gates⌉, without overflow for the gates of a damaged file.
std::int64_t tenthOf(std::int64_t gate, std::int64_t gates) {
    constexpr std::int64_t Tenths = 10;
    return (Tenths * gate + gates - 1) / gates;
}

class RowNaming {
public:
    RowNaming(const FactStore& facts, RateBy by)
        : m_facts(facts), m_by(by), m_files(fileLabels(facts)) {}

    /// A number that is the same for passages which are alike to the naming: most are, and a row's
    /// name need then be found only once.
    [[nodiscard]] std::uint64_t likenessOf(const GatePassage& passage) const {
        constexpr int FileShift = 40;
        const bool isOfCourse = m_by <= RateBy::Section;
        const std::uint64_t file = m_facts.runs()[passage.run].file;
        return isOfCourse ? (file << FileShift) + static_cast<std::uint64_t>(passage.gate)
                          : passage.run;
    }

    /// The passages of a file come together, so its course is looked up once.
    [[nodiscard]] RowName nameOf(const GatePassage& passage) {
        const RunRow& run = m_facts.runs()[passage.run];
        switch (m_by) {
        case RateBy::Gate:
            return onCourse(run.file, "gate", passage.gate);
        case RateBy::Type:
            return typeOf(courseOf(run).isUpstream(passage.gate));
        case RateBy::Tenth:
            return tenth(tenthOf(passage.gate, m_facts.fileOf(run).gates));
        case RateBy::Section:
            if (const auto section = courseOf(run).sectionOf(passage.gate))
                return onCourse(run.file, "section", static_cast<std::int64_t>(*section));
            return {"", "", "in no section", {}};
        default:
            return nameOfRun(run);
        }
    }

private:
    [[nodiscard]] RowName nameOfRun(const RunRow& run) const {
        switch (m_by) {
        case RateBy::Crew:
            return written(run.crewKey, run.crew);
        case RateBy::Category:
            return written(run.categoryKey, run.category);
        case RateBy::Phase:
            return written(run.phaseKey, run.phase);
        case RateBy::Hand: {
            const std::string hand(m_facts.text(run.hand));
            return {folded(hand), hand, hand, {}};
        }
        case RateBy::Month: {
            const std::string month = monthText(m_facts.fileOf(run).date);
            return {month, month, month, {}};
        }
        default: {
            const std::string path(m_facts.text(m_facts.fileOf(run).path));
            return {std::to_string(run.file), path, m_files[run.file], {}};
        }
        }
    }

    [[nodiscard]] RowName written(TextId same, TextId first) const {
        const std::string text(m_facts.text(first));
        return {std::string(m_facts.text(same)), text, text, {}};
    }

    [[nodiscard]] RowName onCourse(std::uint32_t file, const char* kind,
                                   std::int64_t number) const {
        const std::string text = std::string(kind) + ' ' + std::to_string(number);
        const bool isAlone = m_facts.files().size() == 1;
        return {std::to_string(file) + ':' + std::to_string(number),
                courseKey(m_facts, file, static_cast<std::uint64_t>(number)),
                isAlone ? text : m_files[file] + ", " + text, number};
    }

    static RowName typeOf(bool isUpstream) {
        return isUpstream ? RowName{"up", "up", "upstream", {}}
                          : RowName{"down", "down", "downstream", {}};
    }

    static RowName tenth(std::int64_t number) {
        const std::string key = std::to_string(number);
        return {key, key, "tenth " + key, number};
    }

    [[nodiscard]] const CourseGates& courseOf(const RunRow& run) {
        if (!m_course || m_courseFile != run.file) {
            m_course.emplace(m_facts, m_facts.fileOf(run));
            m_courseFile = run.file;
        }
        return *m_course;
    }

    const FactStore& m_facts;
    RateBy m_by;
    std::vector<std::string> m_files;
    std::optional<CourseGates> m_course;
    std::uint32_t m_courseFile = 0;
};

/// The rows as they come up.
class RowTable {
public:
    RowTable(const FactStore& facts, RateBy by) : m_facts(facts), m_naming(facts, by) {}

    /// The row of a passage, which is added where it is new. Good until the next call.
    [[nodiscard]] PassageRow& rowOf(const GatePassage& passage) {
        const auto [like, isUnlike] = m_rowOfLike.try_emplace(m_naming.likenessOf(passage), 0);
        if (isUnlike)
            like->second = rowOfName(m_naming.nameOf(passage), passage);
        return m_rows[like->second];
    }

    [[nodiscard]] std::vector<PassageRow> rows() && { return std::move(m_rows); }

private:
    std::size_t rowOfName(const RowName& name, const GatePassage& passage) {
        const auto [at, isNew] = m_rowOfName.try_emplace(name.same, m_rows.size());
        if (isNew)
            m_rows.push_back({.key = name.key,
                              .label = name.label,
                              .file = m_facts.runs()[passage.run].file,
                              .number = name.number,
                              .passages = {},
                              .touches = 0,
                              .missed = 0});
        return at->second;
    }

    const FactStore& m_facts;
    RowNaming m_naming;
    std::unordered_map<std::uint64_t, std::size_t> m_rowOfLike;
    std::unordered_map<std::string, std::size_t> m_rowOfName;
    std::vector<PassageRow> m_rows;
};

std::string fileStem(std::string_view path) {
    path.remove_prefix(path.find_last_of('/') + 1);
    const std::size_t dot = path.find_last_of('.');
    return std::string(path.substr(0, dot == 0 ? path.npos : dot));
}

} // namespace

std::optional<RateBy> rateByOf(std::string_view name) {
    const auto found = std::ranges::find(RateByNames, name);
    return found == RateByNames.end()
               ? std::nullopt
               : std::optional(static_cast<RateBy>(found - RateByNames.begin()));
}

std::string_view nameOf(RateBy by) {
    return RateByNames[static_cast<std::size_t>(by)];
}

std::vector<PassageRow> passageRows(const FactStore& facts, const CountedPassages& counted,
                                    RateBy by) {
    RowTable table(facts, by);
    // First all gates in their order, so that a table has them whoever came how far.
    if (by == RateBy::Gate)
        for (const std::uint32_t file : counted.files)
            for (std::int64_t gate = 1; gate <= facts.files()[file].gates; ++gate)
                (void)table.rowOf({facts.files()[file].runs.first, gate, 0});
    for (const GatePassage& passage : counted.passages) {
        PassageRow& row = table.rowOf(passage);
        row.passages.push_back(passage);
        row.touches += passage.isTouch();
        row.missed += passage.isMissed();
    }
    return std::move(table).rows();
}

std::string courseKey(const FactStore& facts, std::uint32_t file, std::uint64_t number) {
    const std::string text = std::to_string(number);
    const std::string path(facts.text(facts.files()[file].path));
    return facts.files().size() == 1 ? text : path + ':' + text;
}

std::vector<std::string> fileLabels(const FactStore& facts) {
    std::vector<std::string> labels;
    std::unordered_map<std::string, std::size_t> uses;
    for (const FileRow& file : facts.files()) {
        labels.push_back(fileStem(facts.text(file.path)));
        ++uses[labels.back()];
    }
    for (std::size_t i = 0; i < labels.size(); ++i)
        if (uses[labels[i]] > 1)
            labels[i] = std::string(facts.text(facts.files()[i].path));
    return labels;
}

} // namespace kavela
