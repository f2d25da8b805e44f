#include "cli/program.h"
#include "vision/tracking/scene_film.h"
#include "vision/tracking/track_scene.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

/// The call that follows something through a film.
namespace kavela::test {

namespace {

using testing::HasSubstr;

constexpr int ShotFrames = 50;
constexpr std::size_t Cells = 11;

TrackShot quietShot() {
    TrackShot shot;
    shot.seed = 350;
    shot.pan = 0;
    shot.speed = 1.5;
    return shot;
}

/// A line of the table, cell by cell.
using TrackRow = std::vector<std::string>;

TrackRow cellsOf(const std::string& line) {
    TrackRow cells(1);
    for (const char c : line)
        if (c == ',')
            cells.emplace_back();
        else
            cells.back() += c;
    return cells;
}

class TrackCalls : public testing::Test {
protected:
    TrackCalls() { write(m_scene, "shot.mp4"); }

    [[nodiscard]] std::filesystem::path fileOf(const std::string& name) const {
        return m_kavela.folder().path() / name;
    }
    void write(TrackScene& scene, const std::string& name) const {
        EXPECT_EQ(writeScene(scene, ShotFrames, fileOf(name)), fileOf(name));
    }
    /// Makes a film with FFmpeg, from others in the folder.
    void makeFilm(const std::string& how, const std::string& name) const {
        const std::string command = "cd '" + m_kavela.folder().path().string() +
                                    "' && ffmpeg -v error -y " + how + " " + name;
        ASSERT_EQ(std::system(command.c_str()), 0) << command;
    }
    [[nodiscard]] std::string boatBox() const {
        const TrackBox box = m_scene.athleteBox(0);
        return fmt::format("{:.2f},{:.2f},{:.2f},{:.2f}", box.x, box.y, box.width, box.height);
    }
    [[nodiscard]] Ending follow(const std::string& film, const std::string& box,
                                const std::vector<std::string>& more = {}) const {
        std::vector<std::string> arguments{"track", film, "--box", box, "-o", "path.csv"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return m_kavela.call(arguments);
    }
    /// What was written below its head. Every line holds all that was found in a frame, or its
    /// number alone.
    [[nodiscard]] std::vector<TrackRow> rows() const {
        std::istringstream lines(contentOf(fileOf("path.csv")));
        std::string line;
        std::getline(lines, line);
        EXPECT_EQ(line, "frame,seconds,x,y,steadied_x,steadied_y,metres_x,metres_y,"
                        "metres_a_second,uncertainty,score");
        std::vector<TrackRow> rows;
        while (std::getline(lines, line)) {
            rows.push_back(cellsOf(line));
            EXPECT_EQ(rows.back().size(), Cells) << line;
            rows.back().resize(Cells);
            EXPECT_EQ(rows.back()[1].empty(), rows.back()[2].empty()) << line;
            EXPECT_EQ(rows.back()[2].empty(), rows.back()[10].empty()) << line;
        }
        return rows;
    }
    /// How far a line's place is from where the boat is in a frame of the shot.
    [[nodiscard]] double errorOf(const TrackRow& row, int frame) const {
        const PicturePlace is = m_scene.athlete(frame);
        return std::hypot(std::stod(row[2]) - is.x, std::stod(row[3]) - is.y);
    }

    Program m_kavela;
    TrackScene m_scene{quietShot()};
};

} // namespace

TEST_F(TrackCalls, WriteALineForEachFrameFromTheBoxOn) {
    const Ending ending = follow("shot.mp4", boatBox(), {"--at", "0", "--to", "0.6"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.output, HasSubstr("31 frames"));
    const auto lines = rows();
    ASSERT_EQ(lines.size(), 31U);
    for (int frame = 0; frame <= 30; ++frame) {
        const TrackRow& line = lines[static_cast<std::size_t>(frame)];
        EXPECT_EQ(line[0], std::to_string(frame));
        EXPECT_EQ(line[1], fmt::format("{:.6f}", frame / 50.0));
        ASSERT_FALSE(line[2].empty()) << frame;
        EXPECT_LT(errorOf(line, frame), 12) << frame;
        EXPECT_EQ(line[6] + line[7] + line[8] + line[9], "") << "no known points, no metres";
    }
    EXPECT_EQ(lines.front()[10], "1.000");
}

TEST_F(TrackCalls, LeaveFramesEmptyInWhichItIsNotSeen) {
    makeFilm("-i shot.mp4 -vf \"drawbox=c=gray:t=fill:enable='between(n\\,20\\,25)'\" -c:v libx264 "
             "-crf 18",
             "hidden.mp4");
    const Ending ending = follow("hidden.mp4", boatBox(), {"--at", "0"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.errors, HasSubstr("Not seen from 0."));
    const auto lines = rows();
    ASSERT_GT(lines.size(), 26U);
    for (std::size_t frame = 20; frame <= 25; ++frame) {
        TrackRow alone(Cells);
        alone[0] = std::to_string(frame);
        EXPECT_EQ(lines[frame], alone);
    }
    const auto again = std::find_if(lines.begin() + 26, lines.end(),
                                    [](const TrackRow& line) { return !line[2].empty(); });
    ASSERT_NE(again, lines.end());
    EXPECT_LT(errorOf(*again, std::stoi(again->front())), 15) << "it is found again where it is";
}

TEST_F(TrackCalls, EndWhereItIsGoneAndSayWhen) {
    TrackShot shot = quietShot();
    shot.vanishesAt = 20;
    TrackScene scene(shot);
    write(scene, "gone.mp4");
    const Ending ending = follow("gone.mp4", boatBox(), {"--at", "0"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.errors, HasSubstr("Lost at 0."));
    const auto lines = rows();
    ASSERT_FALSE(lines.empty());
    EXPECT_NEAR(std::stod(lines.back()[0]), 19, 10) << "nothing is told of the frames behind";
}

TEST_F(TrackCalls, TakeTheSecondsOfAFilmWhoseRateVaries) {
    makeFilm("-i shot.mp4 -vf \"select='not(eq(mod(n\\,3)\\,2))'\" -vsync passthrough -c:v libx264 "
             "-crf 18",
             "variable.mp4");
    const Ending ending = follow("variable.mp4", boatBox(), {"--at", "0"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    const auto lines = rows();
    ASSERT_GT(lines.size(), 20U);
    for (int i = 0; i < std::ssize(lines); ++i) {
        const TrackRow& line = lines[static_cast<std::size_t>(i)];
        if (line[1].empty())
            continue;
        const int frame = 3 * (i / 2) + i % 2; // every third one is left out
        EXPECT_NEAR(std::stod(line[1]), frame / 50.0, 1e-3) << i;
        EXPECT_LT(errorOf(line, frame), 15) << i;
    }
}

TEST_F(TrackCalls, FollowAsFarAsACutFilmGoesAndSaySo) {
    // Four times as long: what lacks less than a second is not told from sound that goes on.
    makeFilm("-i shot.mp4 -vf setpts=4*PTS -vsync passthrough -c:v libx264 -crf 18", "cut.mkv");
    const auto film = fileOf("cut.mkv");
    std::filesystem::resize_file(film, std::filesystem::file_size(film) * 6 / 10);
    const Ending ending = follow("cut.mkv", boatBox(), {"--at", "0"});
    ASSERT_EQ(ending.status, 0) << ending.errors;
    EXPECT_THAT(ending.errors, HasSubstr("cut.mkv: the file is cut off"));
    const auto lines = rows();
    ASSERT_GT(lines.size(), 5U);
    EXPECT_LT(lines.size(), std::size_t{ShotFrames});
    for (const TrackRow& line : lines)
        if (!line[2].empty()) {
            EXPECT_LT(errorOf(line, std::stoi(line[0])), 15) << line[0];
        }
}

TEST_F(TrackCalls, TellWhatIsWrongAndLeaveTheFileThatIsThere) {
    makeFilm("-f lavfi -i color=gray:s=320x240:r=25:d=1 -c:v libx264", "fog.mp4");
    (void)m_kavela.folder().add("noise.mp4", std::string(3000, 'x'));
    (void)m_kavela.folder().add("points.json", R"({"frame": 0, "points": []})");
    (void)m_kavela.folder().add("path.csv", "kept");
    struct Wrong {
        std::string film;
        std::string box;
        std::vector<std::string> more;
        int status;
        std::string told;
    };
    const std::vector<std::string> start{"--at", "0"};
    const std::vector<Wrong> wrongs{
        {"shot.mp4", "460,10,40,40", start, 1, "480 × 360 pixels"},
        {"shot.mp4", "10,10,4,40", start, 1, "too small"},
        {"fog.mp4", "100,100,40,40", start, 1, "nothing in the box"},
        {"shot.mp4", "10,10,40", start, 2, "is no box"},
        {"shot.mp4", boatBox(), {}, 2, "--at"},
        {"shot.mp4", boatBox(), {"--at", "soon"}, 2, "is no time"},
        {"shot.mp4", boatBox(), {"--at", "9"}, 1, "--at: the film ends at 0.98 s."},
        {"shot.mp4", boatBox(), {"--at", "0.5", "--to", "0.4"}, 1, "does not lie behind --at"},
        {"shot.mp4", boatBox(), {"--at", "0", "--plane", "points.json"}, 1, "four known points"},
        {"missing.mp4", boatBox(), start, 1, "missing.mp4: "},
        {"noise.mp4", boatBox(), start, 1, "noise.mp4: "}};
    for (const Wrong& wrong : wrongs) {
        const Ending ending = follow(wrong.film, wrong.box, wrong.more);
        EXPECT_EQ(ending.status, wrong.status) << wrong.told << '\n' << ending.errors;
        EXPECT_THAT(ending.errors, HasSubstr(wrong.told));
        EXPECT_EQ(contentOf(fileOf("path.csv")), "kept") << wrong.told;
    }
}

} // namespace kavela::test
