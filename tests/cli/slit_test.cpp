#include "cli/program.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <cstdlib>

/// The call that writes slit pictures.
namespace kavela::test {

namespace {

using nlohmann::json;
using testing::HasSubstr;

constexpr int SlitFrames = 50;

class SlitCalls : public testing::Test {
protected:
    SlitCalls() {
        const std::string film = (m_kavela.folder().path() / "bridge.mp4").string();
        const std::string command =
            "ffmpeg -v error -y -f lavfi -i testsrc=s=320x180:r=25:d=2 -c:v libx264 -preset "
            "ultrafast -pix_fmt yuv420p '" +
            film + "'";
        EXPECT_EQ(std::system(command.c_str()), 0);
    }
    [[nodiscard]] Ending call(std::vector<std::string> more,
                              const std::string& line = "160,10,160,170") const {
        std::vector<std::string> arguments{"slit", "bridge.mp4", "--line", line};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return m_kavela.call(arguments);
    }
    /// A number of the head of a picture that was written.
    [[nodiscard]] int pngNumber(const char* name, std::size_t at) const {
        const std::string png = contentOf(m_kavela.folder().path() / name);
        int number = 0;
        for (std::size_t i = at; i < at + 4 && i < png.size(); ++i)
            number = number << 8 | static_cast<unsigned char>(png[i]);
        return number;
    }

    Program m_kavela;
};

} // namespace

TEST_F(SlitCalls, WriteAColumnForEachFrameAndPrintItsStamp) {
    const Ending ending = call({"-o", "slit.png", "--json"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    constexpr std::size_t WidthAt = 16;
    constexpr std::size_t HeightAt = 20;
    EXPECT_EQ(pngNumber("slit.png", WidthAt), SlitFrames);
    EXPECT_GT(pngNumber("slit.png", HeightAt), 160) << "the line with its scale below";
    const json printed = json::parse(ending.output);
    ASSERT_EQ(printed["columns"].size(), std::size_t{SlitFrames});
    EXPECT_EQ(printed["columns"][30]["frame"], 30);
    EXPECT_NEAR(printed["columns"][30]["seconds"].get<double>(), 1.2, 1e-6);

    const Ending part = call({"--json", "--from", "0.5", "--to", "1"});
    ASSERT_EQ(part.status, 0) << part.errors;
    const json columns = json::parse(part.output)["columns"];
    EXPECT_EQ(columns.front()["frame"], 12) << "the frame that is shown then";
    EXPECT_EQ(columns.back()["frame"], 25);
}

TEST_F(SlitCalls, TellWhatIsWrongAndWriteNothing) {
    const Ending outside = call({"-o", "slit.png"}, "160,10,330,170");
    EXPECT_EQ(outside.status, 1);
    EXPECT_THAT(outside.errors, HasSubstr("bridge.mp4"));
    EXPECT_EQ(call({"-o", "slit.png"}, "160,10,330").status, 2);
    EXPECT_EQ(call({}).status, 2) << "nothing is asked for";
    EXPECT_EQ(call({"--proposals"}).status, 2) << "a box round a boat is missing";
    EXPECT_EQ(call({"-o", "slit.png", "--from", "9"}).status, 1) << "behind the end";
    EXPECT_FALSE(std::filesystem::exists(m_kavela.folder().path() / "slit.png"));
}

} // namespace kavela::test
