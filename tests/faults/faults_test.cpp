#include "splitdata/loader.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

/// Opening an old split file with every single file operation failing in turn, and with the power
/// cut at each. Whatever happens, the disk holds the old race or the new one, whole.
namespace kavela {
namespace {

namespace fs = std::filesystem;

constexpr int MostOperations = 60;

std::string contentOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// How a child that was meant to meet a fault ended.
struct Ending {
    bool faultStruck = false;
    bool wasKilled = false;
    int status = 0;
    std::string errors;
};

class FaultTest : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "kavela-faults-XXXXXX").string();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        m_folder = name;
        m_old = contentOf(fs::path(KAVELA_TEST_DATA) / "split_versions" / "0.11.kvx");
        ASSERT_FALSE(m_old.empty());
    }
    void TearDown() override { fs::remove_all(m_folder); }

    [[nodiscard]] fs::path work() const { return m_folder / "work"; }
    [[nodiscard]] fs::path race() const { return work() / "race.kvx"; }

    void makeOldRace() {
        fs::remove_all(work());
        fs::create_directory(work());
        std::ofstream(race(), std::ios::binary) << m_old;
    }

    Ending openWithFault(const std::vector<std::string>& call, int at) {
        const fs::path report = m_folder / "struck";
        const fs::path errors = m_folder / "errors";
        fs::remove(report);
        const pid_t child = ::fork();
        if (child == 0) {
            ::setenv("LD_PRELOAD", KAVELA_FAULT_SHIM, 1);
            ::setenv("ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0", 1);
            ::setenv("KAVELA_FAULT_FOLDER", work().c_str(), 1);
            ::setenv("KAVELA_FAULT_AT", std::to_string(at).c_str(), 1);
            ::setenv("KAVELA_FAULT_KIND", GetParam(), 1);
            ::setenv("KAVELA_FAULT_REPORT", report.c_str(), 1);
            std::freopen(errors.c_str(), "w", stderr);
            std::freopen("/dev/null", "w", stdout);
            std::vector<char*> arguments;
            for (const std::string& part : call)
                arguments.push_back(const_cast<char*>(part.c_str()));
            arguments.push_back(nullptr);
            ::execv(arguments[0], arguments.data());
            ::_exit(127);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return {fs::exists(report), WIFSIGNALED(status), WEXITSTATUS(status), contentOf(errors)};
    }

    /// Whether a file holds the whole race in the current version.
    static bool holdsNewRace(const fs::path& file) {
        const auto found = recogniseSplitFile(
            file, [](std::string_view) {}, [] { return ReferenceDate{}; });
        return found.version && found.isCurrent() && found.document.athletes.size() == 2;
    }

    [[nodiscard]] std::vector<std::string> otherNames() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(work()))
            if (entry.path() != race())
                names.push_back(entry.path().filename().string());
        return names;
    }

    fs::path m_folder;
    std::string m_old;
};

TEST_P(FaultTest, UpgradeInPlaceLeavesTheOldFileOrTheNewOne) {
    int at = 1;
    for (;; ++at) {
        makeOldRace();
        const Ending ending = openWithFault({KAVELA_PROGRAM, "upgrade", race().string()}, at);
        SCOPED_TRACE("operation " + std::to_string(at) + ": " + ending.errors);
        if (!ending.faultStruck)
            break;
        const bool isOld = contentOf(race()) == m_old;
        EXPECT_TRUE(isOld || holdsNewRace(race()));
        if (!ending.wasKilled) {
            EXPECT_THAT(otherNames(), ::testing::IsEmpty());
            EXPECT_EQ(ending.status, isOld ? 1 : 0);
        }
        ASSERT_LT(at, MostOperations);
    }
    EXPECT_TRUE(holdsNewRace(race())) << "without a fault the file is upgraded";
    EXPECT_GT(at, 6) << "open, write, flush, close and rename have to have been reached";
}

TEST_P(FaultTest, AnalyzerAlwaysKeepsTheOldContentUnderOneOfTheNames) {
    const auto holdsOldRace = [&](const std::string& name) {
        return contentOf(work() / name) == m_old;
    };
    for (int at = 1;; ++at) {
        makeOldRace();
        const Ending ending = openWithFault({KAVELA_OPEN_RACE, race().string()}, at);
        SCOPED_TRACE("operation " + std::to_string(at) + ": " + ending.errors);
        const bool isOld = contentOf(race()) == m_old;
        EXPECT_TRUE(isOld || holdsNewRace(race()));
        EXPECT_TRUE(isOld || holdsOldRace("race_old.kvb"));
        if (!ending.faultStruck)
            break;
        ASSERT_LT(at, MostOperations);
    }
    EXPECT_TRUE(holdsNewRace(race()));
    EXPECT_THAT(otherNames(), ::testing::ElementsAre("race_old.kvb"));
}

/// A short film, and a job that composes it with itself.
void addComparison(const fs::path& folder, const fs::path& output) {
    const std::string film = (folder / "film.mp4").string();
    const std::string call = "ffmpeg -v error -y -f lavfi -i testsrc2=size=320x180:rate=25 -t 0.4 "
                             "-c:v libx264 -preset ultrafast -pix_fmt yuv420p '" +
                             film + "'";
    ASSERT_EQ(std::system(call.c_str()), 0);
    const std::string entry = R"({"splitFile":"","run":0,"camera":1,"film":"film.mp4","names":"",)"
                              R"("category":"","startsAt":0,"points":[]})";
    std::ofstream(folder / "job.json")
        << R"({"films":[)" << entry << ',' << entry
        << R"(],"layout":"side by side","wipe":0.5,"synchronise":"start","split":0,)"
        << R"("range":{"kind":"free","fromSplit":0,"toSplit":0,"from":0,"to":0.4},"speed":1,)"
        << R"("captions":{"names":true,"clock":true,"splits":true,"section":true,)"
        << R"("penalties":true,"gap":true},"sound":0,"output":{"file":")" << output.string()
        << R"(","width":640,"height":180,"small":false}})";
}

TEST_P(FaultTest, ComposingLeavesAWholeFilmOrNothing) {
    addComparison(m_folder, work() / "out.mp4");
    const std::vector<std::string> call{KAVELA_PROGRAM, "compose", m_folder / "job.json"};
    fs::create_directory(work());
    const Ending unhurt = openWithFault(call, 0);
    ASSERT_EQ(unhurt.status, 0) << unhurt.errors;
    const std::string whole = contentOf(work() / "out.mp4");
    ASSERT_FALSE(whole.empty());
    for (int at = 1;; ++at) {
        fs::remove_all(work());
        fs::create_directory(work());
        const Ending ending = openWithFault(call, at);
        SCOPED_TRACE("operation " + std::to_string(at) + ": " + ending.errors);
        if (!ending.faultStruck)
            break;
        const bool isThere = fs::exists(work() / "out.mp4");
        if (isThere) {
            EXPECT_TRUE(contentOf(work() / "out.mp4") == whole);
        }
        if (!ending.wasKilled) {
            EXPECT_EQ(std::distance(fs::directory_iterator(work()), {}), isThere ? 1 : 0);
            EXPECT_EQ(ending.status, isThere ? 0 : 1);
        }
        ASSERT_LT(at, MostOperations);
    }
}

// 5 is an input/output error, 13 no permission, 28 a full disk, 30 a disk that can only be read.
INSTANTIATE_TEST_SUITE_P(Kinds, FaultTest,
                         ::testing::Values("5", "13", "28", "30", "short", "power"));

} // namespace
} // namespace kavela
