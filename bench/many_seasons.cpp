#include "many_seasons.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "sample_content.h"

#include <chrono>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace kavela::bench {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t RunsPerFile = 60;
constexpr unsigned Variants = 50;      ///< races that differ in their runs
constexpr std::size_t Places = 40;     ///< and these in where and when
constexpr double FirstDay = 600000001; // of as many digits as all days that follow
constexpr double SecondsPerDay = 86400;

/// Those that are there already stay; another name makes all anew when their content changes.
const std::string Edition = "-sprints";

/// Texts of the places and dates of which each file has others; of one length each, so that they
/// can be written over one another.
const std::string AnyPlace = "Course 00";
const std::string AnyDate = "600000001";

std::string raceText(unsigned variant) {
    splittakerdata031 document = race(RunsPerFile, variant);
    document.info.place = AnyPlace;
    document.info.date.seconds = FirstDay;
    for (std::size_t run = 0; run < document.athletes.size(); ++run)
        document.athletes[run].sectioninfo.sprinttime =
            8 + static_cast<double>((run * 37 + variant * 11) % 400) / 100;
    return encode(document);
}

void overwrite(std::string& text, const std::string& any, const std::string& with) {
    const std::size_t at = text.find(any);
    if (at == std::string::npos || any.size() != with.size())
        throw std::logic_error("the races of the benchmark are written in another way now");
    text.replace(at, with.size(), with);
}

std::string contentOf(std::string text, std::size_t file) {
    const std::size_t place = file % Places;
    overwrite(text, AnyPlace, "Course " + std::to_string(place / 10) + std::to_string(place % 10));
    const double date = FirstDay + static_cast<double>(file) * SecondsPerDay / 2;
    overwrite(text, AnyDate, std::to_string(static_cast<std::int64_t>(date)));
    return text;
}

/// A file that just changed is read again at the next scan, too.
void settle(const fs::path& path, std::chrono::milliseconds later = {}) {
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(1) + later);
}

/// A call that is ended meanwhile leaves no half file.
void write(const fs::path& path, const std::string& text) {
    const fs::path part = fs::path(path) += ".part";
    if (!(std::ofstream(part, std::ios::binary) << text).flush())
        throw FileError(part, "the benchmark could not write its file");
    settle(part);
    fs::rename(part, path);
}

} // namespace

ManySeasons::ManySeasons(std::size_t files)
    : m_folder(fs::path(KAVELA_BENCH_SEASONS) / (std::to_string(files) + Edition)), m_files(files) {
    fs::create_directories(m_folder);
    for (unsigned variant = 0; variant < Variants; ++variant) {
        std::string text;
        for (std::size_t file = variant; file < files; file += Variants) {
            if (fs::exists(pathOf(file)))
                continue;
            if (text.empty())
                text = raceText(variant);
            write(pathOf(file), contentOf(text, file));
        }
    }
}

fs::path ManySeasons::pathOf(std::size_t file) const {
    return m_folder / (std::to_string(file) + ".kvx");
}

void ManySeasons::touch(std::size_t files) {
    for (std::size_t i = 0; i < files; ++i)
        settle(pathOf(i * (m_files / files)), std::chrono::milliseconds(++m_touches));
}

} // namespace kavela::bench
