#include "splittaking/results_import.h"

#include "common/delimited_text.h"
#include "common/error.h"
#include "common/number_text.h"
#include "common/text.h"
#include "common/text_file.h"
#include "splittaking/perfect_time.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr std::size_t FieldsNeeded = 6;

/// One line of a list being read, with the first thing that is wrong in it.
class ResultLine {
public:
    explicit ResultLine(const DelimitedReader& line)
        : m_line(line), m_reason(line.lack(FieldsNeeded, KAVELA_TEXT("six"))) {}

    [[nodiscard]] std::int64_t wholeNumber(std::size_t at, std::string_view what) {
        std::int64_t number = 0;
        if (isFine() && !parseField(m_line.field(at), number))
            m_reason = say("the {} \"{}\" is no whole number", translated(what), m_line.field(at));
        return number;
    }

    [[nodiscard]] double seconds(std::size_t at, std::string_view what) {
        double number = 0;
        if (isFine() && (!parseField(m_line.field(at), number) || !std::isfinite(number)))
            m_reason =
                say("the {} \"{}\" is no number of seconds", translated(what), m_line.field(at));
        return number;
    }

    [[nodiscard]] std::string text(std::size_t at) const {
        return isFine() ? std::string(m_line.field(at)) : std::string();
    }

    [[nodiscard]] bool isFine() const { return m_reason.empty(); }
    [[nodiscard]] const std::string& reason() const { return m_reason; }

private:
    const DelimitedReader& m_line;
    std::string m_reason;
};

allresultsdata030 resultOf(ResultLine& line) {
    allresultsdata030 result;
    result.pos = line.wholeNumber(0, KAVELA_TEXT("position"));
    result.bib = line.wholeNumber(1, KAVELA_TEXT("bib"));
    result.name = line.text(2);
    result.nationality = line.text(3);
    result.time = line.seconds(4, KAVELA_TEXT("time"));
    result.pen = line.wholeNumber(5, KAVELA_TEXT("penalty"));
    result.total = result.time + static_cast<double>(result.pen);
    return result;
}

constexpr double LongestTime = 3600;
constexpr std::int64_t MostPenalty = 999;

/// What is odd in a result; empty where nothing is. Times of 0 are not: they stand for runs that
/// were not finished.
std::string oddity(const allresultsdata030& result) {
    if (result.time < 0)
        return say("the time {} is below 0", saidNumber(shortestText(result.time)));
    if (result.time >= LongestTime)
        return say("the time {} is an hour or more", saidNumber(shortestText(result.time)));
    if (result.pen < 0)
        return say("the penalty {} is below 0", result.pen);
    if (result.pen > MostPenalty)
        return say("the penalty {} is over {}", result.pen, MostPenalty);
    return result.pos < 0 ? say("the position {} is below 0", result.pos) : "";
}

} // namespace

ResultsList parseResults(std::string_view text) {
    ResultsList list;
    DelimitedReader reader(text, ';', FieldForm::AsWritten);
    while (reader.next()) {
        const std::int64_t number = reader.number();
        if (number == 1)
            continue;
        ResultLine line(reader);
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
