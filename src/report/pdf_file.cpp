#include "report/pdf_file.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "report/searchable_text.h"
#include "report/typeface.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <stdexcept>

namespace kavela::report {

namespace {

constexpr int DotsPerInch = 1200; ///< the grain of places in the document
constexpr qreal PointsPerInch = 72;

} // namespace

std::string pdfOf(const PagedReport& report) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(DotsPerInch);
        writer.setPageLayout(report.layout());
        writer.setTitle(report.documentTitle());
        writer.setCreator(QStringLiteral("Kavela"));
        QPainter painter;
        if (!painter.begin(&writer))
            throw std::runtime_error("The report could not be painted.");
        painter.scale(DotsPerInch / PointsPerInch, DotsPerInch / PointsPerInch);
        for (int page = 0; page < report.pageCount(); ++page) {
            if (page > 0)
                writer.newPage();
            report.paintPage(painter, page);
        }
    }
    std::string pdf = buffer.data().toStdString();
    makeTextSearchable(pdf);
    return pdf;
}

void writePdf(const PagedReport& report, const std::filesystem::path& path) {
    if (!isAnyFontInstalled())
        throw FileError(path, "no font is installed");
    writeFileSafely(path, pdfOf(report));
}

} // namespace kavela::report
