#pragma once

#include <string>

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

/// What a printer that is set to write a PDF document would write. Throws std::runtime_error.
[[nodiscard]] std::string printedPdf(const report::PagedReport& report, const QPrinter& printer);

} // namespace kavela::desktop
