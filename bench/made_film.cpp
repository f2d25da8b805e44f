#include "made_film.h"

#include "child_process.h"

#include <string>

namespace kavela::bench {

void makeFilm(const std::filesystem::path& path, int seconds, int noise) {
    const std::string picture =
        "testsrc2=size=1920x1080:rate=50,noise=alls=" + std::to_string(noise) + ":allf=t";
    static_cast<void>(outputOf({KAVELA_FFMPEG, "-v", "error", "-y", "-f", "lavfi", "-i", picture,
                                "-t", std::to_string(seconds), "-c:v", "libx264", "-preset",
                                "superfast", "-b:v", "20M", "-pix_fmt", "yuv420p", path.string()}));
}

} // namespace kavela::bench
