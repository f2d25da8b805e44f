#pragma once

#include "common/temp_folder.h"

#include <cstdio>
#include <string>
#include <vector>

namespace kavela::test {

/// The text of each page of a PDF document, as another program reads it.
inline std::vector<std::string> pagesOf(const std::filesystem::path& pdf) {
    const std::string call = "pdftotext -layout -enc UTF-8 '" + pdf.string() + "' - 2>&1";
    std::FILE* const pipe = ::popen(call.c_str(), "r");
    if (!pipe)
        throw std::runtime_error("pdftotext cannot be called");
    std::vector<std::string> pages(1);
    for (int byte = std::fgetc(pipe); byte != EOF; byte = std::fgetc(pipe)) {
        if (byte == '\f')
            pages.emplace_back();
        else
            pages.back() += static_cast<char>(byte);
    }
    if (::pclose(pipe) != 0)
        throw std::runtime_error("pdftotext failed: " + pages.back());
    pages.pop_back(); // a form feed ends the last page too
    return pages;
}

/// How often a text stands in another.
inline std::size_t countOf(const std::string& text, const std::string& sought) {
    std::size_t count = 0;
    for (std::size_t at = text.find(sought); at != std::string::npos;
         at = text.find(sought, at + sought.size()))
        ++count;
    return count;
}

} // namespace kavela::test
