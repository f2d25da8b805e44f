#include "boatmotion/conversion.h"

#include "boatmotion/session_files.h"
#include "boatmotion/simulator.h"
#include "common/json_encode.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Converting : public testing::Test {
protected:
    Conversion convert(const std::filesystem::path& source, const std::string& name = {}) {
        return convertRecording(source, conversionTarget(source, name),
                                [this](std::string_view line) { m_log.emplace_back(line); });
    }

    TempFolder m_folder;
    std::vector<std::string> m_log;
};

std::string testSession(const char* name) {
    return contentOf(std::filesystem::path(KAVELA_TEST_DATA) / "sessions" / name);
}

} // namespace

TEST_F(Converting, WritesTheProcessedSessionBesideTheRecording) {
    const bmrawdata_v5 session =
        simulate({.seed = 92, .seconds = 60, .style = Style::Slalom}).session;
    const std::string before = encode(session);
    const auto source = m_folder.add("run.kvb", before);
    const Conversion conversion = convert(source);
    EXPECT_EQ(conversion.outcome, ConversionOutcome::Saved);
    EXPECT_EQ(conversion.message(), "Autosaved!");
    EXPECT_EQ(conversion.target, m_folder.path() / "run_postv5.bms");
    EXPECT_THAT(m_log, ElementsAre("BM data count for run.kvb " +
                                   std::to_string(session.boatmotion.size())));
    EXPECT_EQ(contentOf(source), before);
    EXPECT_THAT(m_folder.names(), UnorderedElementsAre("run.kvb", "run_postv5.bms"));

    EXPECT_THAT(contentOf(conversion.target), HasSubstr("\"aerealPhase\":"));
    const smartAlldata_v4 processed = readSmartSession(conversion.target);
    EXPECT_EQ(processed.info.name, "Ada Example");
    EXPECT_EQ(processed.info.date, session.info.date);
    EXPECT_EQ(processed.gps.size(), session.gps.size());
    EXPECT_EQ(processed.heart.size(), session.heart.size());
    ASSERT_EQ(processed.strokesData.size(), conversion.strokes + conversion.turns);
    EXPECT_GT(conversion.turns, 0U);
    double last = 0;
    for (const smartBMdata_v4& entry : processed.strokesData) {
        EXPECT_GE(entry.timestamp, last);
        last = entry.timestamp;
        const bool hasStroke = entry.stroke.strokeRate > 0;
        const bool hasTurn = entry.rotation.rotationTime > 0;
        EXPECT_NE(hasStroke, hasTurn) << "one block is zero";
        if (hasTurn) {
            EXPECT_EQ(encode(entry.stroke), encode(smartStraight_v3{}));
        }
    }
}

TEST_F(Converting, FurtherFilesNeedANameOfTheirOwn) {
    const auto source =
        m_folder.add("run.kvb", encode(simulate({.seed = 93, .seconds = 20}).session));
    (void)m_folder.add("run_postv5.bms", "precious");
    EXPECT_EQ(convert(source).outcome, ConversionOutcome::TargetExists);
    EXPECT_EQ(contentOf(m_folder.path() / "run_postv5.bms"), "precious");
    const Conversion further = convert(source, "second");
    EXPECT_EQ(further.outcome, ConversionOutcome::Saved);
    EXPECT_EQ(further.target, m_folder.path() / "second.bms");
    EXPECT_EQ(conversionTarget(source, "third.bms"), m_folder.path() / "third.bms");
    for (const char* name : {"../out", "/out", ".", "..", "a/b"})
        EXPECT_THROW((void)conversionTarget(source, name), std::invalid_argument) << name;
}

TEST_F(Converting, SaysWhatIsWrongAndWritesNothing) {
    const std::pair<std::string, const char*> refused[] = {
        {testSession("raw_v4.kvb"), "`kavela upgrade` converts it"},
        {testSession("raw_v5.kvb"), "0 can be used, 100 are needed"},
        {"{}", "info"},
        {"no JSON", ""},
    };
    for (const auto& [content, reason] : refused) {
        const auto source = m_folder.add("run.kvb", content);
        m_log.clear();
        const Conversion conversion = convert(source);
        EXPECT_EQ(conversion.outcome, ConversionOutcome::NotConverted);
        EXPECT_EQ(conversion.message(), "Error converting!");
        EXPECT_THAT(conversion.detail, HasSubstr(reason));
        EXPECT_THAT(m_log, testing::Contains("Error converting!"));
        EXPECT_THAT(m_folder.names(), ElementsAre("run.kvb"));
    }
    EXPECT_EQ(convert(m_folder.path() / "missing.kvb").message(), "Error converting!");
}

TEST_F(Converting, ReportsAFileThatCannotBeCreated) {
    const auto source =
        m_folder.add("run.kvb", encode(simulate({.seed = 94, .seconds = 20}).session));
    const Conversion conversion =
        convertRecording(source, m_folder.path() / "nowhere" / "x.bms",
                         [this](std::string_view line) { m_log.emplace_back(line); });
    EXPECT_EQ(conversion.message(), "Failed to create file");
    EXPECT_THAT(m_log, testing::Contains("Failed to create file"));
}

} // namespace kavela::test
