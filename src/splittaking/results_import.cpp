#include "splittaking/results_import.h"

#include "common/error.h"
#include "common/number_text.h"
#include "common/text_file.h"
#include "splittaking/perfect_time.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kavela {

namespace {

constexpr std::size_t FieldsNeeded = 6;

using Fields = std::vector<std::string_view>;

/// Takes the next line off a text that is not empty, without its line end.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

Fields fieldsOf(std::string_view line) {
    Fields fields;
    for (;;) {
        const std::size_t end = line.find(';');
        fields.push_back(line.substr(0, end));
        if (end == std::string_view::npos)
            return fields;
        line.remove_prefix(end + 1);
    }
}

template <class Number>
bool parse(std::string_view field, Number& number) {
    if (field.starts_with('+') && !field.starts_with("+-"))
        field.remove_prefix(1);
    const char* const end = field.data() + field.size();
    const auto [rest, fault] = std::from_chars(field.data(), end, number);
    return fault == std::errc() && rest == end;
}

/// One line of a list being read, with the first thing that is wrong in it.
class ResultLine {
public:
    explicit ResultLine(std::string_view line) : m_fields(fieldsOf(line)) {
        if (m_fields.size() < FieldsNeeded)
            m_reason = std::to_string(m_fields.size()) +
                       (m_fields.size() == 1 ? " field" : " fields") + " where six are needed";
    }

    [[nodiscard]] std::int64_t wholeNumber(std::size_t at, std::string_view what) {
        std::int64_t number = 0;
        if (isFine() && !parse(m_fields[at], number))
            refuse(at, what, " is no whole number");
        return number;
    }

    [[nodiscard]] double seconds(std::size_t at, std::string_view what) {
        double number = 0;
        if (isFine() && (!parse(m_fields[at], number) || !std::isfinite(number)))
            refuse(at, what, " is no number of seconds");
        return number;
    }

    [[nodiscard]] std::string text(std::size_t at) const {
        return isFine() ? std::string(m_fields[at]) : std::string();
    }

    [[nodiscard]] bool isFine() const { return m_reason.empty(); }
    [[nodiscard]] const std::string& reason() const { return m_reason; }

private:
    void refuse(std::size_t at, std::string_view what, std::string_view fault) {
        m_reason = "the " + std::string(what) + " \"" + std::string(m_fields[at]) + '"' +
                   std::string(fault);
    }

    Fields m_fields;
    std::string m_reason;
};

allresultsdata030 resultOf(ResultLine& line) {
    allresultsdata030 result;
    result.pos = line.wholeNumber(0, "position");
    result.bib = line.wholeNumber(1, "bib");
    result.name = line.text(2);
    result.nationality = line.text(3);
    result.time = line.seconds(4, "time");
    result.pen = line.wholeNumber(5, "penalty");
    result.total = result.time + static_cast<double>(result.pen);
    return result;
}

constexpr double LongestTime = 3600;
constexpr std::int64_t MostPenalty = 999;

/// What is odd in a result; empty where nothing is. Times of 0 are not: they stand for runs that
/// were not finished.
std::string oddity(const allresultsdata030& result) {
    if (result.time < 0)
        return "the time " + shortestText(result.time) + " is below 0";
    if (result.time >= LongestTime)
        return "the time " + shortestText(result.time) + " is an hour or more";
    if (result.pen < 0)
        return "the penalty " + std::to_string(result.pen) + " is below 0";
    if (result.pen > MostPenalty)
        return "the penalty " + std::to_string(result.pen) + " is over " +
               std::to_string(MostPenalty);
    return result.pos < 0 ? "the position " + std::to_string(result.pos) + " is below 0" : "";
}

bool isBlank(std::string_view line) {
    return line.find_first_not_of(" \t") == std::string_view::npos;
}

} // namespace

ResultsList parseResults(std::string_view text) {
    ResultsList list;
    for (std::int64_t number = 1; !text.empty(); ++number) {
        const std::string_view content = takeLine(text);
        if (number == 1 || isBlank(content))
            continue;
        ResultLine line(content);
        allresultsdata030 result = resultOf(line);
        if (!line.isFine()) {
            list.skipped.push_back({number, line.reason()});
            continue;
        }
        if (std::string odd = oddity(result); !odd.empty())
            list.doubtful.push_back({number, std::move(odd)});
        list.results.push_back(std::move(result));
    }
    return list;
}

ResultsImport importResults(splittakerdata031& document, const std::filesystem::path& list,
                            const DiagnosticLog& log) {
    ResultsImport import;
    ResultsList read;
    try {
        read = parseResults(readTextFile(list));
    } catch (const FileError& error) {
        import.failure = error.reason();
    } catch (const DecodeError& error) {
        import.failure = error.what();
    }
    if (import.failure) {
        log("The results list " + list.string() + " could not be read: " + *import.failure);
        return import;
    }
    import.imported = static_cast<std::int64_t>(read.results.size());
    import.skipped = std::move(read.skipped);
    import.doubtful = std::move(read.doubtful);
    std::move(read.results.begin(), read.results.end(),
              std::back_inserter(document.info.resultsCSVdata));
    recomputeExpected(document, log);
    return import;
}

} // namespace kavela
