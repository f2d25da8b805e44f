#pragma once

class QPrinter;

namespace kavela::report {
class PagedReport;
}

namespace kavela::desktop {

/// Sets a printer up as a report wants it: its paper, whole pages, fine dots.
void preparePrinter(QPrinter& printer, const report::PagedReport& report);

/// Prints the pages that the printer is set to, on its paper: a report made for another size is
/// fitted into that, in the middle. Lies as the report lies. False when the printer refuses.
[[nodiscard]] bool printReport(const report::PagedReport& report, QPrinter& printer);

/// The same for a printer that is set to write a PDF document: the file is there whole or not at
/// all. Throws FileError.
void printIntoFile(const report::PagedReport& report, QPrinter& printer);

} // namespace kavela::desktop
