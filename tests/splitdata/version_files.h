#pragma once

#include "common/temp_folder.h"
#include "splitdata/loader.h"
#include "splitdata/record_table.h"

#include <gtest/gtest.h>

namespace kavela::test {

/// One genuine file per release stands in data/split_versions, beside it its expected current form.
inline std::filesystem::path versionFile(const std::string& label) {
    return std::filesystem::path(KAVELA_TEST_DATA) / "split_versions" / (label + ".kvx");
}

/// The current form of a release's file, once upgraded at the moment of `upgradeClock`.
inline nlohmann::json currentForm(const std::string& label) {
    auto path = versionFile(label);
    if (label != "0.31")
        path.replace_extension("expected.json");
    return nlohmann::json::parse(contentOf(path));
}

inline ReferenceDate upgradeClock() {
    return {700000000};
}

inline const RecordTable& recordTable() {
    static const RecordTable table;
    return table;
}

/// "Trying version …" down to a label, or all of them.
inline std::vector<std::string> attemptLines(const std::string& lastLabel = {}) {
    std::vector<std::string> lines;
    for (const auto& document : recordTable().documents()) {
        if (document.label != "0.31")
            lines.push_back("Trying version " + document.label);
        if (document.label == lastLabel)
            break;
    }
    return lines;
}

/// Takes log lines, for tests that look at them.
struct LogRecorder {
    std::vector<std::string> lines;
    [[nodiscard]] DiagnosticLog log() {
        return [this](std::string_view line) { lines.emplace_back(line); };
    }
};

/// Tests that run once per release.
class EveryRelease : public testing::TestWithParam<RecordTable::Document> {
protected:
    [[nodiscard]] const std::string& label() const { return GetParam().label; }
};

/// Instances of EveryRelease and what derives from it, named "v0_31".
inline auto everyRelease() {
    return testing::ValuesIn(recordTable().documents());
}
inline std::string releaseName(const testing::TestParamInfo<RecordTable::Document>& info) {
    std::string name = 'v' + info.param.label;
    name[name.find('.')] = '_';
    return name;
}

} // namespace kavela::test
