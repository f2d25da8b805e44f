#include "desktop/preview/report_printing.h"

#include "report/paged_report.h"
#include "report/searchable_text.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include <algorithm>
#include <stdexcept>
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

/// From points of the report's page to dots on the paper.
QTransform placement(const report::PagedReport& report, const QPageLayout& layout, int resolution) {
    const QSizeF page = report.layout().fullRect(QPageLayout::Point).size();
    const QSizeF paper = layout.fullRectPixels(resolution).size();
    const double scale = std::min(paper.width() / page.width(), paper.height() / page.height());
    QTransform transform;
    transform.translate((paper.width() - page.width() * scale) / 2,
                        (paper.height() - page.height() * scale) / 2);
    transform.scale(scale, scale);
    return transform;
}

/// False where the paper takes no painting or no further page.
bool isPainted(const report::PagedReport& report, const std::vector<int>& pages,
               const QTransform& placement, QPagedPaintDevice& paper) {
    QPainter painter;
    if (!painter.begin(&paper))
        return false;
    painter.setTransform(placement);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0 && !paper.newPage())
            return false;
        report.paintPage(painter, pages[i]);
    }
    return painter.end();
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
    return isPainted(report, pages, placement(report, printer.pageLayout(), printer.resolution()),
                     printer) &&
           printer.printerState() != QPrinter::Error;
}

/// The printer itself would write into a file, on the thread that the window waits for.
std::string printedPdf(const report::PagedReport& report, const QPrinter& printer) {
    QPageLayout layout = printer.pageLayout();
    layout.setOrientation(report.layout().orientation());
    layout.setMode(QPageLayout::FullPageMode);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(printer.resolution());
        writer.setPageLayout(layout);
        writer.setTitle(printer.docName());
        writer.setCreator(printer.creator());
        const QTransform place = placement(report, layout, printer.resolution());
        if (!isPainted(report, chosenPages(report, printer), place, writer))
            throw std::runtime_error("the pages could not be drawn");
    }
    std::string pdf = buffer.data().toStdString();
    report::makeTextSearchable(pdf);
    return pdf;
}

} // namespace kavela::desktop
