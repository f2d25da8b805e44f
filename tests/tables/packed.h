#pragma once

#include <zip.h>

#include <map>
#include <stdexcept>
#include <string>

namespace kavela::test {

/// A packed document of parts by name; with a password each part is locked by it.
inline std::string packed(const std::map<std::string, std::string>& parts,
                          const char* password = nullptr) {
    zip_source_t* const source = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(source);
    zip_t* const archive = zip_open_from_source(source, ZIP_TRUNCATE, nullptr);
    if (!archive)
        throw std::runtime_error("no archive");
    for (const auto& [name, content] : parts) {
        const zip_int64_t index = zip_file_add(
            archive, name.c_str(), zip_source_buffer(archive, content.data(), content.size(), 0),
            ZIP_FL_ENC_UTF_8);
        if (password)
            zip_file_set_encryption(archive, static_cast<zip_uint64_t>(index), ZIP_EM_AES_256,
                                    password);
    }
    if (zip_close(archive) != 0)
        throw std::runtime_error("not packed");
    zip_stat_t facts;
    zip_source_stat(source, &facts);
    std::string bytes(facts.size, '\0');
    zip_source_open(source);
    zip_source_read(source, bytes.data(), bytes.size());
    zip_source_close(source);
    zip_source_free(source);
    return bytes;
}

} // namespace kavela::test
