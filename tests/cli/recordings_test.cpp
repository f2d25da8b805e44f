#include "boatmotion/simulator.h"
#include "cli/program.h"
#include "common/json_encode.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

/// The calls that analyse and convert recordings.
namespace kavela::test {

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

class RecordingCalls : public testing::Test {
protected:
    [[nodiscard]] Ending call(const std::vector<std::string>& arguments) const {
        return m_kavela.call(arguments);
    }
    void add(const std::string& name, const std::string& text) const {
        (void)m_kavela.folder().add(name, text);
    }
    void addRun(const std::string& name, bool hasPosition = true) const {
        add(name, encode(simulate({.seed = 95,
                                   .seconds = 40,
                                   .style = Style::Slalom,
                                   .mount = PhoneMount::Forward,
                                   .hasPosition = hasPosition})
                             .session));
    }
    [[nodiscard]] std::string content(const char* name) const {
        return contentOf(m_kavela.folder().path() / name);
    }
    static std::string testSession(const char* name) {
        return contentOf(std::filesystem::path(KAVELA_TEST_DATA) / "sessions" / name);
    }

    Program m_kavela;
};

std::size_t linesWith(const std::string& text, const std::string& begin) {
    std::size_t count = 0;
    for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at + 1))
        count += at == 0 || text[at - 1] == '\n';
    return count;
}

} // namespace

TEST_F(RecordingCalls, ShowStrokesAndTurnsWithTotals) {
    addRun("run.kvb");
    const std::string before = content("run.kvb");
    const Ending ending = call({"strokes", "run.kvb", "--json", "--csv", "run.csv"});
    EXPECT_EQ(ending.status, 0) << ending.errors;
    const json shown = json::parse(ending.output);
    const std::size_t strokes = shown["strokes"].size();
    const std::size_t turns = shown["turns"].size();
    EXPECT_GT(strokes, 20U);
    EXPECT_GT(turns, 0U);
    EXPECT_EQ(shown["totals"]["strokes"], strokes);
    EXPECT_EQ(shown["profile"], json::parse(R"({"mass":88,"drag":5,"boat":"kayak"})"));
    EXPECT_TRUE(shown["strokes"][3]["aerealPhase"].is_number());
    EXPECT_TRUE(shown["strokes"][3]["power"].is_number());

    const std::string csv = content("run.csv");
    EXPECT_EQ(linesWith(csv, "stroke;"), strokes);
    EXPECT_EQ(linesWith(csv, "turn;"), turns);
    for (std::size_t at = 0; at < csv.size();) {
        const std::size_t end = csv.find('\n', at);
        EXPECT_EQ(std::count(csv.begin() + static_cast<std::ptrdiff_t>(at),
                             csv.begin() + static_cast<std::ptrdiff_t>(end), ';'),
                  26);
        at = end + 1;
    }
    const std::string text = call({"strokes", "run.kvb"}).output;
    EXPECT_THAT(text, HasSubstr("Strokes             " + std::to_string(strokes) + ": "));
    EXPECT_THAT(text, HasSubstr("kayak; force and power hold on flat water only"));
    EXPECT_EQ(content("run.kvb"), before);
}

TEST_F(RecordingCalls, ShowWhatIsNotKnownAsSuch) {
    addRun("run.kvb", false);
    const Ending ending = call({"strokes", "run.kvb", "--json", "--csv", "run.csv"});
    EXPECT_EQ(ending.status, 0);
    EXPECT_THAT(ending.errors, HasSubstr("no usable position fixes"));
    const json shown = json::parse(ending.output);
    EXPECT_EQ(shown["notes"].size(), 3U) << shown["notes"] << " fixes, mount, holes";
    EXPECT_EQ(shown["strokes"][0]["power"], nullptr);
    EXPECT_EQ(shown["strokes"][0]["hand"], nullptr);
    EXPECT_EQ(shown["strokes"][0]["waterPhase"], nullptr);
    EXPECT_EQ(shown["turns"][0]["aveRoll"], nullptr);
    EXPECT_EQ(shown["totals"]["left"], nullptr);
    EXPECT_EQ(shown["totals"]["distance"], nullptr);
    EXPECT_THAT(content("run.csv"), HasSubstr(";;;;;"));
    EXPECT_THAT(content("run.csv"), Not(HasSubstr("left")));
    const std::string text = call({"strokes", "run.kvb"}).output;
    EXPECT_THAT(text, HasSubstr("Distance            –\n"));
    EXPECT_THAT(text, HasSubstr(": left or right not known, in "));
}

TEST_F(RecordingCalls, TakeTheCoachsWordForBoatAndPhone) {
    addRun("run.kvb", false);
    const Ending ending = call({"strokes", "run.kvb", "--json", "--bow", "Top", "--mass", "82,5",
                                "--drag", "4.2", "--boat", "C1"});
    EXPECT_EQ(ending.status, 0) << ending.errors;
    const json shown = json::parse(ending.output);
    EXPECT_EQ(shown["profile"], json::parse(R"({"mass":82.5,"drag":4.2,"boat":"canoe"})"));
    EXPECT_TRUE(shown["isBowKnown"]);
    EXPECT_TRUE(shown["strokes"][0]["hand"].is_number());
    EXPECT_TRUE(shown["strokes"][0]["waterPhase"].is_number());
    EXPECT_EQ(shown["strokes"][0]["power"], nullptr) << "there are no fixes";
    const std::pair<std::vector<std::string>, const char*> refusals[] = {
        {{"--bow", "stern"}, "\"stern\" is none of: top, bottom, right, left, back, screen."},
        {{"--mass", "8"}, "\"8\" is no number from 20 to 300 kg."},
        {{"--mass", "80 kg"}, "\"80 kg\" is no number from 20 to 300 kg."},
        {{"--drag", "nan"}, "\"nan\" is no number from 0 to 50"},
        {{"--boat", "raft"}, "\"raft\" is none of: k1, "},
    };
    for (const auto& [words, reason] : refusals) {
        std::vector<std::string> arguments{"strokes", "run.kvb"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        const Ending refused = call(arguments);
        EXPECT_EQ(refused.status, 2) << words[1];
        EXPECT_THAT(refused.errors, HasSubstr(words[0]));
        EXPECT_THAT(refused.errors, HasSubstr(reason));
        EXPECT_EQ(refused.output, "");
    }
}

TEST_F(RecordingCalls, ConvertBesideTheRecordingAndNeverOverIt) {
    addRun("a.kvb");
    addRun("b.kvb");
    const std::string before = content("a.kvb");
    const Ending ending = call({"convert", "a.kvb", "b.kvb"});
    EXPECT_EQ(ending.status, 0);
    EXPECT_THAT(ending.output, HasSubstr("a_postv5.bms: "));
    EXPECT_THAT(ending.output, HasSubstr("b_postv5.bms: "));
    EXPECT_THAT(ending.errors, HasSubstr("BM data count for a.kvb "));
    EXPECT_THAT(ending.errors, HasSubstr("Autosaved!"));
    EXPECT_EQ(content("a.kvb"), before);
    EXPECT_EQ(json::parse(call({"info", "a_postv5.bms", "--json"}).output)[0]["kind"],
              "smart session");

    const std::string first = content("a_postv5.bms");
    const Ending again = call({"convert", "a.kvb"});
    EXPECT_EQ(again.status, 1);
    EXPECT_THAT(again.errors, HasSubstr("a_postv5.bms exists already"));
    EXPECT_THAT(again.errors, HasSubstr("--name"));
    EXPECT_EQ(content("a_postv5.bms"), first);
    EXPECT_EQ(call({"convert", "a.kvb", "--name", "second"}).status, 0);
    EXPECT_EQ(content("second.bms"), first);
    EXPECT_EQ(call({"convert", "a.kvb", "b.kvb", "--name", "third"}).status, 2);
    EXPECT_EQ(call({"convert", "a.kvb", "--name", "../third"}).status, 2);
    EXPECT_EQ(call({"convert"}).status, 2);
}

TEST_F(RecordingCalls, RefuseWhatIsNoCurrentRecording) {
    add("old.kvb", testSession("raw_v4.kvb"));
    add("short.kvb", testSession("raw_v5.kvb"));
    add("broken.kvb", "{\"info\":1}");
    const std::pair<const char*, const char*> refused[] = {{"old.kvb", "`kavela upgrade` converts"},
                                                           {"short.kvb", "too few motion samples"},
                                                           {"broken.kvb", "info"},
                                                           {"missing.kvb", "missing.kvb"}};
    for (const auto& [file, reason] : refused) {
        for (const char* command : {"strokes", "convert"}) {
            const Ending ending = call({command, file});
            EXPECT_EQ(ending.status, 1) << command << ' ' << file;
            EXPECT_THAT(ending.errors, HasSubstr(reason));
            EXPECT_EQ(ending.output, "");
        }
        EXPECT_THAT(call({"convert", file}).errors, HasSubstr("Error converting!"));
    }
    EXPECT_EQ(m_kavela.everything().size(), 3U) << "nothing was written";
    EXPECT_EQ(call({"strokes", "short.kvb", "--csv", "short.kvb"}).status, 2);
    EXPECT_EQ(content("short.kvb"), testSession("raw_v5.kvb"));
}

} // namespace kavela::test
