#include "clips.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/pixdesc.h>
}

namespace kavela {

namespace {

namespace fs = std::filesystem;

constexpr int BlockSize = 40;
constexpr int BlocksInARow = 8;
constexpr int Blocks = 16;

/// Black is 0 and white 1, the lowest bit first; below them something moves, so that frames build
/// on each other.
std::vector<unsigned char> numberedFrame(int number) {
    std::vector<unsigned char> pixels;
    for (int y = 0; y < ClipSize.height; ++y)
        for (int x = 0; x < ClipSize.width; ++x) {
            const int block = y / BlockSize * BlocksInARow + x / BlockSize;
            const int moving = 64 + (x / 4 + y / 3 + number * 3) % 128;
            const int shade = block < Blocks ? ((number >> block & 1) != 0 ? 235 : 16) : moving;
            pixels.push_back(static_cast<unsigned char>(shade));
        }
    return pixels;
}

std::string quoted(const fs::path& path) {
    return "'" + path.string() + "'";
}

class Command {
public:
    Command(std::string line, const char* mode)
        : m_line(std::move(line)), m_pipe(::popen(m_line.c_str(), mode)) {
        if (m_pipe == nullptr)
            fail();
    }
    ~Command() {
        if (m_pipe != nullptr)
            ::pclose(m_pipe);
    }
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    [[nodiscard]] std::FILE* pipe() const { return m_pipe; }
    void finish() {
        const int status = ::pclose(m_pipe);
        m_pipe = nullptr;
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
            fail();
    }
    [[noreturn]] void fail() const { throw std::runtime_error("failed: " + m_line); }

private:
    std::string m_line;
    std::FILE* m_pipe;
};

void makeFromFrames(const ClipRecipe& recipe, const fs::path& target) {
    std::signal(SIGPIPE, SIG_IGN);
    Command command("ffmpeg -v error -y -f rawvideo -pix_fmt gray -s 320x180 -r " + recipe.rate +
                        " -i - -pix_fmt yuv420p " + recipe.arguments + " " + quoted(target),
                    "w");
    for (int number = 0; number < recipe.frames; ++number) {
        const auto pixels = numberedFrame(number);
        if (std::fwrite(pixels.data(), 1, pixels.size(), command.pipe()) != pixels.size())
            command.fail();
    }
    command.finish();
}

void makeFromClip(const ClipRecipe& recipe, const fs::path& target) {
    std::string arguments = recipe.arguments;
    arguments.replace(arguments.find("{}"), 2, quoted(clip(recipe.from)));
    Command("ffmpeg -v error -y " + arguments + " " + quoted(target), "r").finish();
}

void keepPart(const ClipRecipe& recipe, const fs::path& path) {
    if (recipe.lastPercent - recipe.firstPercent == 100)
        return;
    std::ifstream in(path, std::ios::binary);
    const std::string whole{std::istreambuf_iterator<char>(in), {}};
    const auto at = [&](int percent) {
        return whole.size() * static_cast<unsigned>(percent) / 100;
    };
    std::ofstream(path, std::ios::binary)
        << whole.substr(at(recipe.firstPercent), at(recipe.lastPercent) - at(recipe.firstPercent));
}

const ClipRecipe& recipeOf(const std::string& name) {
    const auto found = std::ranges::find(clipRecipes(), name, &ClipRecipe::name);
    if (found == clipRecipes().end())
        throw std::runtime_error("no clip is named " + name);
    return *found;
}

/// A recipe that was changed makes a new file.
fs::path pathOf(const ClipRecipe& recipe) {
    std::string all = recipe.rate + recipe.arguments + std::to_string(recipe.frames) +
                      std::to_string(recipe.firstPercent) + '-' +
                      std::to_string(recipe.lastPercent);
    if (!recipe.from.empty())
        all += pathOf(recipeOf(recipe.from)).string();
    std::ostringstream name;
    name << std::hex << std::hash<std::string>()(all) << '-' << recipe.name;
    return fs::path(KAVELA_CLIP_FOLDER) / name.str();
}

/// Several test programs can make the same film at once: each under its own name at first.
fs::path unfinished(const fs::path& path) {
    return path.parent_path() / (std::to_string(::getpid()) + '-' + path.filename().string());
}

std::string h264(const std::string& more = {}) {
    return "-c:v libx264 -preset veryfast -crf 23 -bf 3 -g 250 -keyint_min 250 -sc_threshold 0 " +
           more;
}

} // namespace

const std::vector<ClipRecipe>& clipRecipes() {
    static const std::vector<ClipRecipe> recipes = {
        {"h264_30.mp4", "30000/1001", 120, h264(), {}},
        {"h264_50.mp4", "50", 200, h264(), {}},
        {"h264_60.mov", "60000/1001", 290, h264(), {}},
        {"h264_120.mp4", "120", 400, h264(), {}},
        {"h264_240.mp4", "240", 800, h264(), {}},
        {"short_groups.mp4", "50", 150, h264("-g 12 -keyint_min 12"), {}},
        {"open_h264.mkv", "50", 160, h264("-g 30 -keyint_min 30 -x264-params open-gop=1"), {}},
        {"intra.mov", "25", 100, "-c:v mjpeg -pix_fmt yuvj420p -q:v 5", {}},
        {"variable.mp4",
         "50",
         200,
         h264("-vf \"settb=1/90000,setpts='(N+0.35*mod(N*7\\,5)/5+30*gte(N\\,120))/(50*TB)'\" "
              "-vsync passthrough -enc_time_base 1/90000 -video_track_timescale 90000"),
         {}},
        {"variable.mkv", "", 0, "-i {} -c copy", "variable.mp4"},
        {"open_hevc.mp4",
         "60000/1001",
         240,
         "-c:v libx265 -preset ultrafast -pix_fmt yuv420p10le -x265-params "
         "keyint=48:min-keyint=48:open-gop=1:bframes=4:log-level=none",
         {}},
        {"rotated.mp4", "", 0, "-i {} -c copy -metadata:s:v rotate=90", "h264_30.mp4"},
        {"upright.mp4", "", 0, "-i {} -c:v libx264 -preset ultrafast", "rotated.mp4"},
        {"offset.mkv", "", 0, "-i {} -c copy -output_ts_offset 5", "h264_30.mp4"},
        {"stream.ts", "50", 200, h264("-g 100 -keyint_min 100 -output_ts_offset 7 -f mpegts"), {}},
        {"joined_late.ts", "50", 200, h264("-g 40 -keyint_min 40 -f mpegts"), {}, 10},
        {"edit_list.mp4", "", 0, "-ss 1.3 -i {} -c copy", "h264_50.mp4"},
        {"numbers.avi", "25", 100, "-c:v mpeg4 -q:v 4 -bf 0 -g 50", {}},
        {"numbers_b.avi", "25", 100, "-c:v mpeg4 -q:v 4 -bf 2 -g 50", {}},
        {"h264.avi", "50", 150, h264("-g 60"), {}},
        {"raw.h264", "50", 150, h264("-g 60"), {}},
        {"interlaced.ts", "25", 100, h264("-g 50 -flags +ildct+ilme -f mpegts"), {}},
        {"anamorphic.mp4", "", 0, "-i {} -c copy -aspect 32:9", "h264_30.mp4"},
        {"flattened.mp4", "", 0,
         "-i {} -c copy -movflags use_metadata_tags -metadata capture-fps=240.0", "h264_30.mp4"},
        {"cut_front.mp4", "", 0, "-i {} -c copy -movflags +faststart", "h264_50.mp4", 0, 60},
        {"cut.mkv", "", 0, "-i {} -c copy", "h264_50.mp4", 0, 60},
        {"cut_back.mp4", "", 0, "-i {} -c copy", "h264_50.mp4", 0, 60},
    };
    return recipes;
}

fs::path clip(const std::string& name) {
    const ClipRecipe& recipe = recipeOf(name);
    fs::path path = pathOf(recipe);
    if (fs::exists(path))
        return path;
    fs::create_directories(path.parent_path());
    const fs::path fresh = unfinished(path);
    if (recipe.from.empty())
        makeFromFrames(recipe, fresh);
    else
        makeFromClip(recipe, fresh);
    keepPart(recipe, fresh);
    fs::rename(fresh, path);
    return path;
}

std::vector<std::int64_t> probedStamps(const std::string& name) {
    const fs::path path = clip(name);
    const fs::path list = path.string() + ".stamps";
    if (!fs::exists(list)) {
        const fs::path fresh = unfinished(list);
        Command("ffprobe -v error -select_streams v:0 -show_entries "
                "frame=best_effort_timestamp -of csv=p=0 " +
                    quoted(path) + " > " + quoted(fresh),
                "r")
            .finish();
        fs::rename(fresh, list);
    }
    std::vector<std::int64_t> stamps;
    std::ifstream in(list);
    for (std::string line; std::getline(in, line);)
        if (!line.empty())
            stamps.push_back(std::stoll(line));
    return stamps;
}

int numberIn(const AVFrame& frame) {
    const auto* const layout = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const AVComponentDescriptor& luma = layout->comp[0];
    int number = 0;
    for (int block = 0; block < Blocks; ++block) {
        const int x = block % BlocksInARow * BlockSize + BlockSize / 2;
        const int y = block / BlocksInARow * BlockSize + BlockSize / 2;
        const auto* const at =
            frame.data[0] + std::ptrdiff_t{y} * frame.linesize[0] + std::ptrdiff_t{x} * luma.step;
        const int shade = luma.depth > 8 ? (at[0] | at[1] << 8) >> (luma.depth - 8) : at[0];
        number |= (shade > 128 ? 1 : 0) << block;
    }
    return number;
}

} // namespace kavela
