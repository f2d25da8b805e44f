#include "cli/find_text.h"

#include "common/display_text.h"
#include "common/json_encode.h"
#include "common/number_text.h"
#include "common/text.h"
#include "facts/found_text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::cli {

namespace {

/// A column of the printed table.
struct Printed {
    std::string title;
    bool isRight = false;
    std::vector<std::string> texts;

    [[nodiscard]] bool isEmpty() const {
        return std::ranges::all_of(texts, [](const std::string& text) { return text.empty(); });
    }
    [[nodiscard]] int width() const {
        int widest = displayWidth(title);
        for (const std::string& text : texts)
            widest = std::max(widest, displayWidth(text));
        return widest;
    }
};

std::string oneLine(std::string text) {
    std::ranges::replace(text, '\n', ',');
    return printable(text);
}

std::vector<Printed> printedColumns(const QueryAnswer& answer) {
    std::vector<Printed> columns;
    for (const FoundColumn& column : answer.columns())
        columns.push_back({column.name, isNumber(column), {}});
    columns.push_back({"run", true, {}});
    columns.push_back({"at", true, {}});
    columns.push_back({"file", false, {}});
    for (std::size_t row = 0; row < answer.size(); ++row) {
        for (std::size_t i = 0; i < answer.columns().size(); ++i)
            columns[i].texts.push_back(oneLine(answer.text(row, i)));
        const FoundPlace place = answer.place(row);
        const FoundPlaceTexts texts = foundPlaceTexts(answer, row);
        columns[columns.size() - 3].texts.push_back(texts.run);
        columns[columns.size() - 2].texts.push_back(
            std::isnan(place.at) ? std::string() : saidNumber(hundredthsText(place.at)));
        columns.back().texts.push_back(printable(texts.file));
    }
    std::erase_if(columns, [](const Printed& column) { return column.isEmpty(); });
    return columns;
}

std::string lineOf(const std::vector<Printed>& columns, const std::vector<int>& widths,
                   const std::vector<std::string>& texts) {
    std::string line;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const bool isLast = i + 1 == columns.size();
        const std::string text = columns[i].isRight ? rightAligned(texts[i], widths[i])
                                 : isLast           ? texts[i]
                                                    : fitted(texts[i], widths[i]);
        line += (i > 0 ? "  " : "") + text;
    }
    return line + '\n';
}

/// A value in JSON: text, label and day as words, numbers with all their digits, else null.
std::string jsonValue(const QueryAnswer& answer, std::size_t row, std::size_t column) {
    const FoundColumn& asked = answer.columns()[column];
    const FoundValue value = answer.value(row, column);
    const bool isText = asked.column && asked.column->isText() && !asked.isFigure;
    if (isText)
        return encode(validUtf8(answer.facts().text(value.text)));
    if (std::isnan(value.number))
        return "null";
    return isNumber(asked) ? encode(value.number) : encode(answer.text(row, column));
}

std::string jsonPlace(const QueryAnswer& answer, std::size_t row) {
    const FoundPlaceTexts texts = foundPlaceTexts(answer, row);
    const auto orNull = [](const std::string& number) { return number.empty() ? "null" : number; };
    return "\"file\":" + encode(texts.file) + ",\"run\":" + texts.run +
           ",\"split\":" + orNull(texts.split) +
           ",\"film\":" + (texts.film.empty() ? "null" : encode(texts.film)) +
           ",\"at\":" + orNull(texts.at);
}

std::string scannedJson(const FolderScan& scan) {
    std::string text = "{\"files\":" + std::to_string(scan.facts.files().size()) +
                       ",\"read\":" + std::to_string(scan.read) + ",\"failed\":[";
    for (const ScanFault& fault : scan.failed)
        text += (&fault == scan.failed.data() ? "" : ",") +
                ("{\"path\":" + encode(pathText(fault.path))) +
                ",\"reason\":" + encode(validUtf8(fault.reason)) + '}';
    return text + "]}";
}

} // namespace

std::string findText(const QueryAnswer& answer, const Terminal& terminal) {
    const std::vector<Printed> columns = printedColumns(answer);
    std::vector<int> widths;
    std::vector<std::string> titles;
    for (const Printed& column : columns) {
        constexpr int Widest = 32;
        widths.push_back(column.isRight ? column.width() : std::min(column.width(), Widest));
        titles.push_back(column.title);
    }
    const std::string head = answer.size() > 0 ? lineOf(columns, widths, titles) : std::string();
    std::string text = terminal.hasColours && !head.empty() ? "\x1b[1m" + head + "\x1b[0m" : head;
    for (std::size_t row = 0; row < answer.size(); ++row) {
        std::vector<std::string> texts;
        for (const Printed& column : columns)
            texts.push_back(column.texts[row]);
        text += lineOf(columns, widths, texts);
    }
    const bool isGrouped = !answer.query().by.empty();
    return text +
           counted(static_cast<std::int64_t>(answer.size()), isGrouped ? "group" : "row",
                   isGrouped ? "groups" : "rows") +
           '\n';
}

std::string findJson(const QueryAnswer& answer, const std::string& query, const FolderScan& scan) {
    std::string text = "{\"query\":" + encode(validUtf8(query)) +
                       ",\"scanned\":" + scannedJson(scan) + ",\"columns\":[";
    for (std::size_t i = 0; i < answer.columns().size(); ++i)
        text += (i > 0 ? "," : "") + encode(answer.columns()[i].name);
    text += "],\"rows\":[";
    for (std::size_t row = 0; row < answer.size(); ++row) {
        text += (row > 0 ? ",{" : "{") + jsonPlace(answer, row);
        for (std::size_t i = 0; i < answer.columns().size(); ++i)
            if (!isOfPlace(answer.columns()[i]))
                text += ',' + encode(answer.columns()[i].name) + ':' + jsonValue(answer, row, i);
        text += '}';
    }
    return text + "]}\n";
}

std::string faultText(const QueryError& error, const std::string& query) {
    const auto place = static_cast<std::size_t>(
        displayWidth(printable(std::string_view(query).substr(0, error.place()))));
    std::string text = std::string(error.what()) + "\n    " + printable(query) + "\n    " +
                       std::string(place, ' ') +
                       std::string(std::max<std::size_t>(error.length(), 1), '^');
    for (const std::string& word : error.nearest())
        text += (&word == error.nearest().data() ? "\nNear it are: " : ", ") + word;
    return text;
}

} // namespace kavela::cli
