#pragma once

#include "report/paged_report.h"

#include <QString>

#include <filesystem>
#include <string>

namespace kavela::report {

/// A report as the bytes of a PDF document: vectors, embedded fonts, text that can be searched.
[[nodiscard]] std::string pdfOf(const PagedReport& report);

/// The same for a file that is to be written. Throws FileError on a computer without any font,
/// where all letters would be boxes.
[[nodiscard]] std::string pdfFor(const PagedReport& report, const std::filesystem::path& path);

/// Whether a file is a document of this program with a title, as writePdf() makes it.
[[nodiscard]] bool isOwnPdf(const std::filesystem::path& path, const QString& title);

/// Writes a report as a PDF document, safely: the file is there whole or not at all. Throws
/// FileError, also where pdfFor() does.
void writePdf(const PagedReport& report, const std::filesystem::path& path);

} // namespace kavela::report
