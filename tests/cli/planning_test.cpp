#include "cli/program.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

/// The calls of plannings and of the gym.
namespace kavela::test {

namespace {

namespace fs = std::filesystem;

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

std::string data(const std::string& name) {
    return contentOf(fs::path(KAVELA_TEST_DATA) / "plannings" / name);
}

class PlanningCalls : public testing::Test {
protected:
    [[nodiscard]] Ending call(const std::vector<std::string>& arguments) const {
        return m_kavela.call(arguments);
    }
    void add(const std::string& name, const std::string& text) const {
        (void)m_kavela.folder().add(name, text);
    }
    [[nodiscard]] std::string content(const char* name) const {
        return contentOf(m_kavela.folder().path() / name);
    }

    Program m_kavela;
};

} // namespace

TEST_F(PlanningCalls, TellWhatAPlanningIs) {
    for (const char* version : {"1", "2", "4", "5", "6"})
        add(std::string("v") + version + ".planning",
            data(std::string("v") + version + ".planning"));
    add("a.planinf", data("access.planinf"));
    add("elsewhere.txt", data("v1.planning"));
    add("broken.planning", "{\"coach\":1}");
    const json facts =
        json::parse(call({"info", "v1.planning", "v2.planning", "v4.planning", "v5.planning",
                          "v6.planning", "elsewhere.txt", "a.planinf", "broken.planning", "--json"})
                        .output);
    const char* labels[] = {"1", "2", "4", "5", "6", "1"};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(facts[i]["kind"], "planning");
        EXPECT_EQ(facts[i]["label"], labels[i]);
        EXPECT_EQ(facts[i]["record"], std::string("planningdatac_v") + labels[i]);
        EXPECT_EQ(facts[i]["current"], i == 4);
        EXPECT_EQ(facts[i]["counts"]["sessions"], 4);
    }
    EXPECT_EQ(facts[6]["kind"], "planning access");
    EXPECT_EQ(facts[6]["counts"]["people"], 2);
    EXPECT_THAT(facts[6].dump() + call({"info", "a.planinf"}).output, Not(HasSubstr("s3cret")));
    EXPECT_EQ(facts[7]["kind"], "unknown");
    EXPECT_EQ(facts[7]["attempts"][0]["record"], "planningdatac_v6");
    EXPECT_EQ(facts[7]["attempts"][0]["fault"], "coach: a string was expected, found an integer");
}

TEST_F(PlanningCalls, ShowWeeks) {
    add("old.planning", data("v1.planning"));
    const Ending ending = call({"planning", "show", "old.planning", "--json"});
    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.errors, "try convertPlanningtoNewVersion\n");
    const json shown = json::parse(ending.output);
    EXPECT_EQ(shown["label"], "1");
    EXPECT_EQ(shown["coach"], "Eva Coach");
    const json& week = shown["athletes"][0]["seasons"][0]["weeks"][0];
    EXPECT_EQ(week["monday"], "2024-03-04");
    EXPECT_EQ(week["startsOnMonday"], true);
    EXPECT_EQ(week["sessions"][0]["date"], "2024-03-04");
    EXPECT_EQ(week["sessions"][0]["time"], "09:30");
    EXPECT_EQ(week["sessions"][0]["title"], "Gates");
    EXPECT_EQ(week["totals"][0], json::parse(R"({"category":"Aerobic lipolytic","sessions":3,
        "quantity":131.5,"plannedSessions":3,"plannedQuantity":180.5})"));
    EXPECT_EQ(shown["athletes"][1]["seasons"], json::array());

    const std::string text = call({"planning", "show", "old.planning"}).output;
    EXPECT_THAT(text, HasSubstr("Planning of Eva Coach: 2 athletes, 0 favourite"));
    EXPECT_THAT(text, HasSubstr("Season 2024: 1 week, 4 sessions"));
    EXPECT_THAT(text, HasSubstr("2024-03-04"));
    EXPECT_EQ(content("old.planning"), data("v1.planning")) << "only read";
}

TEST_F(PlanningCalls, ShowOddPlanningsWhole) {
    json odd = json::parse(data("v6.planning"));
    json& week = odd["athletes"][0]["year"][0]["micros"][0];
    week["monday"] = 1e300;
    week["total"] = {9223372036854775807, 1};
    week["sessions"][0]["data"] = {1e308, -3};
    week["sessions"][1]["data"] = {1e308};
    week["mesocycle"] = "\x1b[31mred";
    odd["athletes"][0]["year"][0]["micros"].push_back(week);
    odd["athletes"][0]["year"][0]["micros"][1]["monday"] = 731203200 + 86400;
    add("odd.planning", odd.dump());
    const Ending ending = call({"planning", "show", "odd.planning"});
    EXPECT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.output, HasSubstr("1e+300 s"));
    EXPECT_THAT(ending.output, HasSubstr("begins on 2024-03-05, which is no Monday"));
    EXPECT_THAT(ending.output, Not(HasSubstr("\x1b")));
    const json shown = json::parse(call({"planning", "show", "odd.planning", "--json"}).output);
    EXPECT_EQ(shown["athletes"][0]["seasons"][0]["weeks"][0]["totals"][0]["quantity"], nullptr);
}

TEST_F(PlanningCalls, UpgradePlanningsAndKeepWhatWasThere) {
    for (const std::vector<std::string>& upgrade :
         {std::vector<std::string>{"planning", "upgrade", "p/old.planning", "p/new.planning"},
          {"upgrade", "p"},
          {"upgrade", "p/old.planning", "p/new.planning"}}) {
        fs::remove_all(m_kavela.folder().path() / "p");
        fs::create_directory(m_kavela.folder().path() / "p");
        add("p/old.planning", data("v4.planning"));
        add("p/new.planning", data("v6.planning"));
        const Ending ending = call(upgrade);
        EXPECT_EQ(ending.status, 0) << ending.errors;
        EXPECT_EQ(ending.output, "2 files: 1 upgraded, 1 already current, 0 not opened\n");
        EXPECT_THAT(ending.errors, HasSubstr("try convertPlanningtoNewVersion"));
        EXPECT_THAT(ending.errors, HasSubstr("values of 1 variability measurement have no place"));
        EXPECT_EQ(json::parse(content("p/old.planning")), json::parse(data("v4.current.json")));
        EXPECT_EQ(content("p/old_old.planning"), data("v4.planning"));
        EXPECT_EQ(content("p/new.planning"), data("v6.planning"));
        EXPECT_EQ(call({"upgrade", "p"}).output,
                  "2 files: 0 upgraded, 2 already current, 0 not opened\n");
    }
}

TEST_F(PlanningCalls, EstimateTheGymMaximum) {
    const Ending ending = call({"gym", "10", "100", "--json"});
    EXPECT_EQ(ending.status, 0);
    const json estimates = json::parse(ending.output);
    EXPECT_EQ(estimates["result"], 125.89);
    EXPECT_NEAR(estimates["table"].get<double>(), 133.3333, 1e-4);
    EXPECT_EQ(estimates.size(), 6U);
    EXPECT_THAT(ending.errors, testing::StartsWith("First estimation: 133.33"));
    const json divided = json::parse(call({"gym", "37", "100", "--json"}).output);
    EXPECT_EQ(divided["brzycki"], nullptr);
    EXPECT_EQ(divided["result"], 143.49);
    EXPECT_EQ(json::parse(call({"gym", "-3", "80", "--json"}).output)["result"], nullptr);
    EXPECT_THAT(call({"gym", "1", "62.5"}).output, HasSubstr("62.50 kg"));
}

TEST_F(PlanningCalls, RefuseBadInputAndChangeNothing) {
    add("broken.planning", "{\"coach\":\"Eva\"}");
    add("race.planning", contentOf(fs::path(KAVELA_TEST_DATA) / "split_versions" / "0.31.kvx"));
    const auto before = m_kavela.everything();
    const struct {
        std::vector<std::string> call;
        int status;
        const char* message;
    } rows[] = {
        {{"planning", "show", "broken.planning"},
         1,
         "planningdatac_v1: athletes: the key is missing"},
        {{"planning", "show", "missing.planning"}, 1, Incompatible},
        {{"planning", "show", "race.planning", "--json"}, 1, Incompatible},
        {{"planning", "show"}, 2, "FILE is required"},
        {{"planning"}, 2, "subcommand is required"},
        {{"gym", "ten", "100"}, 2, "ten"},
        {{"gym", "10.5", "100"}, 2, "10.5"},
        {{"gym", "10", "nan"}, 2, "number of kilograms"},
        {{"gym", "10", "inf"}, 2, "number of kilograms"},
        {{"gym", "10"}, 2, "WEIGHT is required"},
    };
    for (const auto& row : rows) {
        const Ending ending = call(row.call);
        EXPECT_EQ(ending.status, row.status) << row.message;
        EXPECT_EQ(ending.output, "");
        EXPECT_THAT(ending.errors, HasSubstr(row.message));
    }
    const Ending ending = call({"planning", "upgrade", "broken.planning", "race.planning"});
    EXPECT_EQ(ending.status, 1);
    EXPECT_EQ(ending.output, "2 files: 0 upgraded, 0 already current, 2 not opened\n");
    EXPECT_EQ(m_kavela.everything(), before);
}

} // namespace kavela::test
