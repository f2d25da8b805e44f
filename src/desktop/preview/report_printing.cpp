#include "desktop/preview/report_printing.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "report/paged_report.h"
#include "report/searchable_text.h"

#include <QDir>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryFile>

#include <algorithm>
#include <vector>

namespace kavela::desktop {

namespace {

std::vector<int> chosenPages(const report::PagedReport& report, const QPrinter& printer) {
    const bool isRange = printer.printRange() == QPrinter::PageRange;
    const QPageRanges ranges = printer.pageRanges();
    std::vector<int> pages;
    for (int page = 0; page < report.pageCount(); ++page)
        if (!isRange || ranges.isEmpty() || ranges.contains(page + 1))
            pages.push_back(page);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::ranges::reverse(pages);
    return pages;
}

/// From points of the report's page to dots on the printer's paper.
QTransform placement(const report::PagedReport& report, const QPrinter& printer) {
    const QSizeF page = report.layout().fullRect(QPageLayout::Point).size();
    const QSizeF paper = printer.pageLayout().fullRectPixels(printer.resolution()).size();
    const double scale = std::min(paper.width() / page.width(), paper.height() / page.height());
    QTransform transform;
    transform.translate((paper.width() - page.width() * scale) / 2,
                        (paper.height() - page.height() * scale) / 2);
    transform.scale(scale, scale);
    return transform;
}

} // namespace

void preparePrinter(QPrinter& printer, const report::PagedReport& report) {
    printer.setPageLayout(report.layout());
    printer.setFullPage(true);
    printer.setDocName(report.documentTitle());
    printer.setCreator(QStringLiteral("Kavela"));
    printer.setFromTo(1, std::max(1, report.pageCount()));
    printer.setPrintRange(QPrinter::AllPages);
}

bool printReport(const report::PagedReport& report, QPrinter& printer) {
    printer.setFullPage(true);
    printer.setPageOrientation(report.layout().orientation());
    const std::vector<int> pages = chosenPages(report, printer);
    if (pages.empty())
        return true;
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    painter.setTransform(placement(report, printer));
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0 && !printer.newPage())
            return false;
        report.paintPage(painter, pages[i]);
    }
    return painter.end() && printer.printerState() != QPrinter::Error;
}

void printIntoFile(const report::PagedReport& report, QPrinter& printer) {
    const std::string target = printer.outputFileName().toStdString();
    QTemporaryFile draft(QDir::temp().filePath(QStringLiteral("kavela-XXXXXX.pdf")));
    if (!draft.open())
        throw FileError(draft.fileTemplate().toStdString(), draft.errorString().toStdString());
    printer.setOutputFileName(draft.fileName());
    if (!printReport(report, printer))
        throw FileError(draft.fileName().toStdString(), "the pages could not be drawn");
    std::string pdf = draft.readAll().toStdString();
    report::makeTextSearchable(pdf);
    writeFileSafely(target, pdf);
}

} // namespace kavela::desktop
