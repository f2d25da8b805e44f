#pragma once

#include "common/cm_time.h"
#include "common/interval.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Why a shown number is what it is. A function that makes a shown number takes `Why* why` last and
/// tells it what it uses where it uses it, so that the explanation is the computation itself and
/// never a second one beside it.
namespace kavela {

/// A rule by which a number is made: a row of the table of the library that has it.
struct Rule {
    std::string_view id;       ///< unique among all libraries: "loss"
    std::string_view sentence; ///< for the coach: "Own time less the reference's."
    std::string_view formula;  ///< in letters and signs: "own − reference"
    std::string_view source;   ///< a paper or a rule of the sport; empty for our own
};

using RuleId = const Rule*;

/// Where a number stands in a file. Runs and entries are counted from 0, splits, gates, lines and
/// columns from 1.
struct Place {
    std::filesystem::path file;
    std::size_t run = 0;
    std::optional<std::size_t> split;
    std::optional<std::size_t> gate;
    std::optional<std::size_t> entry;        ///< of a run's list of notes
    std::optional<CMTime> moment;            ///< on the run's first film
    std::optional<std::int64_t> line = {};   ///< of a list, which has no runs
    std::optional<std::int64_t> column = {}; ///< of a list

    friend bool operator==(const Place&, const Place&) = default;
};

/// A number that went into another one.
struct Input {
    std::string name; ///< what it is to the rule: "own", "winner"
    double value = 0;
    std::optional<Place> place;       ///< none for one that stands in no file, such as a preference
    double plusMinus = 0;             ///< how far off it may be; 0 where nobody knows
    std::string plusMinusSource = {}; ///< "half a frame, two marks"
};

/// One number and how it came about.
struct Reason {
    RuleId rule = nullptr; ///< none while nothing was told
    double value = 0;      ///< as computed
    std::string shown;     ///< the text on the screen or the paper
    std::vector<Input> inputs;
    std::optional<Interval> uncertainty;
    std::string uncertaintySource;  ///< "half a frame, two marks"
    std::vector<std::string> notes; ///< what was left out and why
    std::vector<Reason> parts;      ///< numbers that were made on the way
};

/// Takes down what a computation tells. Passed as a pointer that is null where nobody asks; every
/// call then stands behind `if (why)`.
class Why {
public:
    /// The rule by which the number is made, the number, and its text.
    void result(const Rule& rule, double value, std::string shown);
    void input(std::string name, double value, std::optional<Place> place = {});
    /// The same for a number that may be off by some.
    void input(std::string name, double value, std::optional<Place> place, double plusMinus,
               std::string_view source);
    void uncertain(Interval range, std::string source);
    void note(std::string text);
    /// A number made on the way: pass the result on to the function that makes it. Good until the
    /// next call.
    [[nodiscard]] Why* part();

    /// What was told so far.
    [[nodiscard]] Reason reason() const;

private:
    Reason m_reason;
    std::vector<Why> m_parts;
};

} // namespace kavela
