#pragma once

#include "planning/water_test_file.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

/// The tests of a file in one list, whatever their kind.
namespace kavela::desktop {

/// Names a test as long as its file is open, through every edit and every undo.
using TestId = std::uint64_t;

enum class TestKind { Lap, Sprint, Eight };

struct ListedTest {
    TestId id = 0;
    std::variant<onWaterTest, onWaterEight> test;

    [[nodiscard]] const onWaterTest* run() const { return std::get_if<onWaterTest>(&test); }
    [[nodiscard]] const onWaterEight* eight() const { return std::get_if<onWaterEight>(&test); }

    [[nodiscard]] TestKind kind() const;
    [[nodiscard]] QString athlete() const;
    [[nodiscard]] ReferenceDate date() const;
    [[nodiscard]] QString day() const; ///< "2026-05-19"
    [[nodiscard]] QString location() const;
    [[nodiscard]] QString title() const; ///< "THORNWICK Callum, 2026-05-19"
};

/// Motion series are long: a step of the undo stack shares the tests that it leaves alone.
using TestList = std::vector<std::shared_ptr<const ListedTest>>;

[[nodiscard]] QString kindText(TestKind kind);      ///< "Lap test"
[[nodiscard]] QString shortKindText(TestKind kind); ///< "Lap", for narrow columns

/// A test as a line of the table of tests; the peaks of an eight test are its rotations.
[[nodiscard]] testData tableRunOf(const ListedTest& test);

} // namespace kavela::desktop
