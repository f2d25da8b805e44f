#include "cli/show_text.h"

#include "common/display_text.h"
#include "common/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace kavela::cli {

namespace {

constexpr std::string_view Bold = "\x1b[1m";
constexpr std::string_view Dim = "\x1b[2m";
constexpr std::string_view Plain = "\x1b[0m";
constexpr int WidestName = 28;
constexpr int NarrowestName = 12;
constexpr std::size_t WidestTime = 16;
constexpr std::string_view Gap = " ";
// The named colours in shades that can be read on a dark and on a light ground.
constexpr Colour TextGreen{0, 0.66, 0.25, 1};
constexpr Colour TextRed{0.88, 0.25, 0.2, 1};
constexpr Colour TextGrey{0.45, 0.45, 0.45, 1};

int channel(double value, double alpha) {
    // A terminal has no alpha: the colour is laid over white, as on the screen's page.
    return static_cast<int>(std::lround((value * alpha + (1 - alpha)) * 255));
}

std::string colourCode(int ground, const Colour& colour) {
    return fmt::format("\x1b[{};2;{};{};{}m", ground, channel(colour.red, colour.alpha),
                       channel(colour.green, colour.alpha), channel(colour.blue, colour.alpha));
}

std::string codesOf(const TableCell& cell) {
    constexpr int Foreground = 38;
    constexpr int Background = 48;
    std::string codes;
    if (cell.isGreyed())
        return (cell.background ? colourCode(Background, faded(*cell.background)) : codes) +
               colourCode(Foreground, TextGrey);
    if (cell.background)
        codes += colourCode(Background, *cell.background) + "\x1b[38;2;0;0;0m";
    if (cell.foreground)
        codes += colourCode(Foreground, *cell.foreground == NamedGreen ? TextGreen : TextRed);
    return codes;
}

/// A time as the table has it, the best marked for those who see no colours; one from a damaged
/// file, hundreds of digits long, in short.
std::string cellText(const TableCell& cell) {
    const std::string text =
        cell.text.size() > WidestTime ? fmt::format("{:.3g}", cell.value) : cell.text;
    return text + (cell.isBest ? '*' : ' ');
}

std::string joined(std::initializer_list<std::string> parts, std::string_view separator) {
    std::string text;
    for (const std::string& part : parts)
        if (!part.empty())
            text += (text.empty() ? "" : std::string(separator)) + part;
    return text;
}

/// One column of the printed table: its title, its texts by row, its width.
struct PrintedColumn {
    std::string title;
    std::vector<std::string> texts;
    int width = 0;
    bool isText = false;             ///< left-aligned, without colour
    std::optional<std::size_t> cell; ///< the cells of the table it shows
    std::optional<int> number;

    void measure() {
        width = displayWidth(title) + (isText ? 0 : 1);
        for (const std::string& text : texts)
            width = std::max(width, displayWidth(text));
    }
};

class Printer {
public:
    Printer(const SplitTable& table, const Terminal& terminal)
        : m_table(table), m_terminal(terminal) {
        addText("Name", [](const analyzerdata& run) { return run.name; });
        addText("Phase", [](const analyzerdata& run) { return run.phase; });
        addText("Cat", [](const analyzerdata& run) { return run.category; });
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            addCells(i);
        for (PrintedColumn& column : m_columns)
            column.measure();
        m_columns.front().width = std::min(m_columns.front().width, WidestName);
        fitTerminal();
    }

    [[nodiscard]] std::string text() const {
        std::string lines = headLine();
        for (std::size_t row = 0; row < m_table.rows.size(); ++row)
            lines += rowLine(row);
        return lines;
    }

    [[nodiscard]] const std::string& leftOut() const { return m_leftOut; }

private:
    template <class Text>
    void addText(const char* title, Text text) {
        PrintedColumn column;
        column.title = title;
        column.isText = true;
        for (const TableRow& row : m_table.rows)
            column.texts.push_back(printable(text(*row.run)));
        const bool isEmpty = std::all_of(column.texts.begin(), column.texts.end(),
                                         [](const std::string& t) { return t.empty(); });
        if (!isEmpty || m_columns.empty())
            m_columns.push_back(std::move(column));
    }

    void addCells(std::size_t index) {
        PrintedColumn column;
        column.title = printable(m_table.columns[index].title);
        column.cell = index;
        column.number = m_table.columns[index].number;
        for (const TableRow& row : m_table.rows)
            column.texts.push_back(cellText(row.cells[index]));
        m_columns.push_back(std::move(column));
    }

    [[nodiscard]] int totalWidth() const {
        int width = -1;
        for (const PrintedColumn& column : m_columns)
            width += column.width + static_cast<int>(Gap.size());
        return width;
    }

    /// Narrows the names, then leaves out what a coach misses least: sprint, real, category, phase.
    void fitTerminal() {
        if (m_terminal.width == 0)
            return;
        const int excess = totalWidth() - m_terminal.width;
        int& name = m_columns.front().width;
        name = std::max(std::min(name, NarrowestName), name - std::max(excess, 0));
        for (const char* title : {"Sprint", "Real", "Cat", "Phase"})
            if (totalWidth() > m_terminal.width)
                leaveOut(title);
    }

    void leaveOut(std::string_view title) {
        const auto removed = std::erase_if(m_columns, [&](const PrintedColumn& column) {
            const bool isExtra = column.isText || column.number >= SprintColumn;
            return isExtra && column.title == title;
        });
        if (removed > 0)
            m_leftOut += (m_leftOut.empty() ? "" : ", ") + std::string(title);
    }

    [[nodiscard]] std::string headLine() const {
        std::string line;
        for (const PrintedColumn& column : m_columns) {
            if (!line.empty())
                line += Gap;
            line += column.isText ? fitted(column.title, column.width)
                                  : rightAligned(column.title + ' ', column.width);
        }
        return styled(Bold, line) + '\n';
    }

    [[nodiscard]] std::string rowLine(std::size_t row) const {
        std::string line;
        for (const PrintedColumn& column : m_columns) {
            if (&column != &m_columns.front())
                line += Gap;
            const std::string& text = column.texts[row];
            line += column.cell ? coloured(m_table.rows[row].cells[*column.cell],
                                           rightAligned(text, column.width))
                                : fitted(text, column.width);
        }
        while (!m_terminal.hasColours && line.ends_with(' '))
            line.pop_back();
        return line + '\n';
    }

    [[nodiscard]] std::string coloured(const TableCell& cell, const std::string& text) const {
        return styled(codesOf(cell), text);
    }

    [[nodiscard]] std::string styled(std::string_view codes, const std::string& text) const {
        if (!m_terminal.hasColours || codes.empty())
            return text;
        return std::string(codes) + text + std::string(Plain);
    }

    const SplitTable& m_table;
    Terminal m_terminal;
    std::vector<PrintedColumn> m_columns;
    std::string m_leftOut;
};

std::string legend(const TableSettings& settings) {
    std::string text = settings.isTinted()
                           ? "* fastest of its column; green to red by tenths of the column"
                           : "* best of its column";
    if (settings.kind == ValueKind::Accumulated)
        text += "; accumulated times";
    else if (settings.penaltiesIncluded)
        text += "; penalties included";
    if (settings.penaltiesVisible)
        text += "; penalty seconds in brackets";
    return text;
}

} // namespace

RaceHeading headingOf(const infodata031& info) {
    const std::string& name = info.title.empty() ? info.event : info.title;
    const std::string gates =
        info.gates > 0 ? say("{} gates, {} upstream", info.gates, info.upGates.size()) : "";
    return {printable(joined({name, info.session, info.place}, " · ")),
            printable(joined({dayText(info.date), gates, info.watertype}, " · "))};
}

std::string tableText(const RaceHeading& heading, const SplitTable& table,
                      const TableSettings& settings, const Terminal& terminal) {
    const Printer printer(table, terminal);
    const auto style = [&](std::string_view code, const std::string& text) {
        return terminal.hasColours ? std::string(code) + text + std::string(Plain) : text;
    };
    std::string text = style(Bold, heading.race) + '\n' + style(Dim, heading.course) + "\n\n";
    text += printer.text() + '\n';
    std::string foot = counted(static_cast<std::int64_t>(table.rows.size()), "run", "runs") + "; " +
                       legend(settings);
    if (terminal.hasColours && hasGreyed(table))
        foot += "; grey: not timed as a whole, never a best";
    if (!printer.leftOut().empty())
        foot += "; left out for want of width: " + printer.leftOut();
    return text + style(Dim, foot) + '\n';
}

} // namespace kavela::cli
