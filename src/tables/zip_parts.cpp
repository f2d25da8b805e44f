#include "tables/zip_parts.h"

#include "common/text.h"
#include "tables/table_error.h"

#include <zip.h>

#include <array>
#include <memory>

namespace kavela {

namespace {

constexpr std::size_t MostUnpacked = 128U << 20;

constexpr const char* NeedsPassword =
    "The spreadsheet is protected by a password. Save it without one and open it again.";

} // namespace

ZipParts::ZipParts(std::string_view bytes) {
    zip_error_t fault;
    zip_error_init(&fault);
    zip_source_t* const source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &fault);
    if (source) {
        m_archive = zip_open_from_source(source, ZIP_RDONLY, &fault);
        if (!m_archive)
            zip_source_free(source);
    }
    const std::string reason = m_archive ? std::string() : zip_error_strerror(&fault);
    zip_error_fini(&fault);
    if (!m_archive)
        throw TableError(say("The spreadsheet is damaged: {}.", reason));
}

ZipParts::~ZipParts() {
    zip_discard(m_archive);
}

std::optional<std::string> ZipParts::content(const std::string& name) {
    const zip_int64_t index = zip_name_locate(m_archive, name.c_str(), 0);
    if (index < 0)
        return std::nullopt;
    const auto place = static_cast<zip_uint64_t>(index);
    zip_stat_t facts;
    zip_stat_init(&facts);
    const bool isLocked = zip_stat_index(m_archive, place, 0, &facts) == 0 &&
                          (facts.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 &&
                          facts.encryption_method != ZIP_EM_NONE;
    if (isLocked)
        throw TableError(std::string(translated(NeedsPassword)));
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> file(
        zip_fopen_index(m_archive, place, 0), zip_fclose);
    if (!file)
        throw TableError(say("The spreadsheet is damaged: its part {} cannot be read.", name));
    std::string content;
    std::array<char, 1 << 16> chunk; // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
    for (;;) {
        const zip_int64_t got = zip_fread(file.get(), chunk.data(), chunk.size());
        if (got < 0)
            throw TableError(
                say("The spreadsheet is damaged: its part {} cannot be unpacked.", name));
        if (got == 0)
            return content;
        m_unpacked += static_cast<std::size_t>(got);
        if (m_unpacked > MostUnpacked)
            throw TableError(say("The spreadsheet is too large: unpacked it is over 128 MB."));
        content.append(chunk.data(), static_cast<std::size_t>(got));
    }
}

} // namespace kavela
