#include "cli/losses_csv.h"

#include "common/delimited_text.h"
#include "common/number_text.h"

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace kavela::cli {

namespace {

/// A line of semicolon-separated text.
class LossCsvLine {
public:
    LossCsvLine& add(std::string_view text) {
        separate();
        m_text += csvField(text);
        return *this;
    }
    LossCsvLine& add(double value) { return add(std::string_view(plainText(value))); }
    LossCsvLine& add(std::int64_t value) { return add(std::string_view(std::to_string(value))); }
    LossCsvLine& add(std::size_t value) { return add(static_cast<std::int64_t>(value)); }
    template <class Value>
    LossCsvLine& add(const std::optional<Value>& value) {
        return value ? add(*value) : add(std::string_view());
    }

    [[nodiscard]] std::string text() const { return m_text + '\n'; }

private:
    void separate() {
        if (m_hasField)
            m_text += ';';
        m_hasField = true;
    }

    std::string m_text;
    bool m_hasField = false;
};

LossCsvLine runFields(const FactStore& facts, const RunLosses& losses, std::string_view part) {
    const RunRow& row = facts.runs()[losses.run];
    LossCsvLine line;
    line.add(static_cast<std::int64_t>(row.number))
        .add(facts.text(row.crew))
        .add(facts.text(row.category))
        .add(facts.text(row.phase))
        .add(std::string_view(textOf(losses.reference)));
    if (losses.referenceRun)
        line.add(static_cast<std::int64_t>(facts.runs()[*losses.referenceRun].number));
    else
        line.add(std::string_view());
    line.add(part);
    return line;
}

std::string stretchLine(const FactStore& facts, const RunLosses& losses, std::size_t index) {
    const Stretch& stretch = losses.stretches[index];
    LossCsvLine line = runFields(facts, losses, "stretch");
    line.add(stretch.first).add(stretch.last).add(kindText(stretch.kind));
    line.add(static_cast<std::int64_t>(stretch.third)).add(stretch.time).add(stretch.reference);
    line.add(stretch.loss)
        .add(static_cast<double>(losses.shown.stretches[index]) / 100)
        .add(stretch.percent);
    line.add(stretch.pen).add(stretch.between).add(stretch.strokes).add(stretch.referenceStrokes);
    return line.text();
}

std::string sumLine(const FactStore& facts, const RunLosses& losses, std::string_view part,
                    double value, std::int64_t shown) {
    LossCsvLine line = runFields(facts, losses, part);
    for (int empty = 0; empty < 6; ++empty)
        line.add(std::string_view());
    line.add(value).add(static_cast<double>(shown) / 100);
    for (int empty = 0; empty < 5; ++empty)
        line.add(std::string_view());
    return line.text();
}

} // namespace

std::string lossesCsv(const FactStore& facts, std::span<const RunLosses> runs) {
    std::string text = "Run;Crew;Category;Phase;Reference;Reference run;Part;First;Last;Kind;Third;"
                       "Time s;Reference s;Lost s;Shown s;Percent;Penalty s;Between s;Strokes;"
                       "Reference strokes\n";
    for (const RunLosses& losses : runs) {
        for (std::size_t i = 0; i < losses.stretches.size(); ++i)
            text += stretchLine(facts, losses, i);
        if (!losses.sum)
            continue;
        text += sumLine(facts, losses, "penalties", losses.sum->penalties, losses.shown.penalties);
        text += sumLine(facts, losses, "timing", losses.sum->timing, losses.shown.timing);
        text += sumLine(facts, losses, "gap", losses.sum->gap, losses.shown.gap);
    }
    return text;
}

std::string seasonLossesCsv(const SeasonLosses& season) {
    std::string text =
        "Field;Key;Runs;Lost s;Reference s;Percent;Low;High;Per run s;Share;Verdict\n";
    for (const SeasonLossRow& row : season.rows) {
        LossCsvLine line;
        line.add(std::string_view(row.field)).add(std::string_view(row.key)).add(row.runs);
        line.add(row.loss).add(row.reference).add(row.percent);
        line.add(row.interval ? std::optional(row.interval->low) : std::nullopt);
        line.add(row.interval ? std::optional(row.interval->high) : std::nullopt);
        line.add(row.perRun).add(row.share).add(verdictText(row.verdict));
        text += line.text();
    }
    return text;
}

} // namespace kavela::cli
