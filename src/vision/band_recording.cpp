#include "vision/band_recording.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "common/text.h"

#include <zip.h>

#include <fstream>
#include <iterator>
#include <limits>
#include <utility>

namespace kavela {

/// What is read first: later releases may have changed everything else.
struct bandversionread {
    std::int64_t bandversion = 0;
};
BOOST_DESCRIBE_STRUCT(bandversionread, (), (bandversion))

namespace {

namespace fs = std::filesystem;

constexpr const char* SceneName = "scene.json";
constexpr std::int64_t BandChannelCount = 3;
constexpr std::size_t MostBandBytes = std::size_t{1} << 30;

std::string bandName(std::size_t number) {
    return "bands/" + std::to_string(number) + ".raw";
}

std::size_t bytesPerBand(const bandscene002& scene) {
    return static_cast<std::size_t>(BandChannelCount * scene.rows * scene.columns);
}

/// Throws DecodeError with the place of what does not fit together.
void checkBandScene(const bandscene002& scene) {
    constexpr std::int64_t MostSide = 2'000;
    const auto refuse = [](const std::string& place, const std::string& text) {
        throw DecodeError({place, text});
    };
    if (scene.bandversion != bandscene002().bandversion)
        refuse("bandversion", say("it was written by a newer release"));
    if (!timingPointFrom(scene.timedAt))
        refuse("timedAt", say("“bow” or “body” was expected"));
    if (scene.rows < 1 || scene.rows > MostSide || scene.columns < 1 || scene.columns > MostSide)
        refuse("rows", say("rows and columns from 1 to 2000 were expected"));
    for (std::size_t i = 0; i < scene.moments.size(); ++i) {
        const std::string place = "moments[" + std::to_string(i) + "].";
        const std::string& judged = scene.moments[i].judged;
        if (judged != "accepted" && judged != "moved" && judged != "refused" && judged != "missed")
            refuse(place + "judged",
                   say("\"accepted\", \"moved\", \"refused\" or \"missed\" expected"));
        if (scene.moments[i].seconds.size() > MostBandBytes / bytesPerBand(scene))
            refuse(place + "seconds", say("there are more bands than a recording holds"));
    }
}

/// A packed file in memory, from nothing or from bytes that outlive it.
class BandArchive {
public:
    BandArchive(const fs::path& path, const std::string* bytes) : m_path(path) {
        zip_error_t fault;
        zip_error_init(&fault);
        m_source = bytes ? zip_source_buffer_create(bytes->data(), bytes->size(), 0, &fault)
                         : zip_source_buffer_create(nullptr, 0, 0, &fault);
        if (m_source) {
            m_archive = zip_open_from_source(m_source, bytes ? ZIP_RDONLY : ZIP_TRUNCATE, &fault);
            if (m_archive)
                zip_source_keep(m_source);
            else
                zip_source_free(m_source);
        }
        const std::string reason = m_archive ? std::string() : zip_error_strerror(&fault);
        zip_error_fini(&fault);
        if (!m_archive)
            throw FileError(path, say("it is no recording of bands, or damaged: {}", reason));
    }
    BandArchive(const BandArchive&) = delete;
    BandArchive& operator=(const BandArchive&) = delete;
    ~BandArchive() {
        if (m_archive)
            zip_discard(m_archive);
        zip_source_free(m_source);
    }

    /// The bytes must outlive finished().
    void add(const std::string& name, const void* bytes, std::size_t count) {
        zip_source_t* const source = zip_source_buffer(m_archive, bytes, count, 0);
        if (!source || zip_file_add(m_archive, name.c_str(), source, ZIP_FL_ENC_UTF_8) < 0) {
            zip_source_free(source);
            fail();
        }
    }
    [[nodiscard]] std::string finished() {
        if (zip_close(m_archive) != 0)
            fail();
        m_archive = nullptr;
        zip_stat_t facts;
        zip_stat_init(&facts);
        if (zip_source_open(m_source) != 0 || zip_source_stat(m_source, &facts) != 0)
            throw FileError(m_path, say("the recording could not be put together"));
        std::string bytes(static_cast<std::size_t>(facts.size), '\0');
        const zip_int64_t got = zip_source_read(m_source, bytes.data(), bytes.size());
        zip_source_close(m_source);
        if (got != static_cast<zip_int64_t>(bytes.size()))
            throw FileError(m_path, say("the recording could not be put together"));
        return bytes;
    }
    /// A part of at most `most` bytes.
    [[nodiscard]] std::string part(const std::string& name, std::size_t most) {
        zip_stat_t facts;
        zip_stat_init(&facts);
        if (zip_stat(m_archive, name.c_str(), 0, &facts) != 0 ||
            (facts.valid & ZIP_STAT_SIZE) == 0 || facts.size > most)
            throw FileError(m_path, say("it is no recording of bands: {} is missing", name));
        std::string bytes(static_cast<std::size_t>(facts.size), '\0');
        zip_file_t* const file = zip_fopen(m_archive, name.c_str(), 0);
        const zip_int64_t got = file ? zip_fread(file, bytes.data(), bytes.size()) : -1;
        if (file)
            zip_fclose(file);
        if (got != static_cast<zip_int64_t>(bytes.size()))
            throw FileError(m_path, say("the recording is damaged: {} cannot be read", name));
        return bytes;
    }

private:
    [[noreturn]] void fail() {
        throw FileError(
            m_path, say("the recording could not be put together: {}", zip_strerror(m_archive)));
    }

    const fs::path& m_path;
    zip_source_t* m_source = nullptr;
    zip_t* m_archive = nullptr;
};

bandscene002 sceneFrom(const JsonDocument& document) {
    const auto version = decode<bandversionread>(document).bandversion;
    if (version != bandscene001().bandversion)
        return decode<bandscene002>(document);
    auto old = decode<bandscene001>(document);
    bandscene002 scene;
    scene.rows = old.rows;
    scene.columns = old.columns;
    scene.boatLength = old.boatLength;
    scene.boatHeight = old.boatHeight;
    scene.moments = std::move(old.moments);
    return scene;
}

std::string bytesOfFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw FileError(path, say("it cannot be opened"));
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

void writeBandRecording(const BandRecording& recording, const fs::path& path) {
    const bandscene002& scene = recording.scene;
    checkBandScene(scene);
    if (recording.bands.size() != scene.moments.size())
        throw EncodeError({"moments", say("each needs its bands")});
    for (std::size_t i = 0; i < recording.bands.size(); ++i)
        if (recording.bands[i].size() != scene.moments[i].seconds.size() * bytesPerBand(scene))
            throw EncodeError({"moments[" + std::to_string(i) + "].seconds",
                               say("their number is not that of the bands")});
    const std::string json = encode(scene);
    BandArchive archive(path, nullptr);
    archive.add(SceneName, json.data(), json.size());
    for (std::size_t i = 0; i < recording.bands.size(); ++i)
        archive.add(bandName(i), recording.bands[i].data(), recording.bands[i].size());
    writeFileSafely(path, archive.finished());
}

BandRecording readBandRecording(const fs::path& path) {
    const std::string bytes = bytesOfFile(path);
    BandArchive archive(path, &bytes);
    constexpr std::size_t MostSceneBytes = std::size_t{16} << 20;
    BandRecording recording;
    recording.scene = sceneFrom(JsonDocument::fromText(archive.part(SceneName, MostSceneBytes)));
    checkBandScene(recording.scene);
    std::size_t all = 0;
    for (std::size_t i = 0; i < recording.scene.moments.size(); ++i) {
        const std::size_t expected =
            recording.scene.moments[i].seconds.size() * bytesPerBand(recording.scene);
        all += expected;
        if (all > MostBandBytes)
            throw FileError(path, say("the recording is larger than any that is written"));
        const std::string samples = archive.part(bandName(i), expected);
        if (samples.size() != expected)
            throw DecodeError({"moments[" + std::to_string(i) + "].seconds",
                               say("their number is not that of the bands")});
        recording.bands.emplace_back(samples.begin(), samples.end());
    }
    return recording;
}

} // namespace kavela
