#include "report/pdf_file.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "common/text.h"
#include "report/searchable_text.h"
#include "report/typeface.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace kavela::report {

namespace {

constexpr int DotsPerInch = 1200; ///< the grain of places in the document
constexpr qreal PointsPerInch = 72;

const QString Creator = QStringLiteral("Kavela");

/// A text as the writer puts it among what a document says of itself.
std::string pdfText(const QString& text) {
    std::string written = "(\xfe\xff";
    for (const QChar letter : text)
        for (const auto byte : {letter.unicode() >> 8, letter.unicode() & 0xff}) {
            if (byte == '(' || byte == ')' || byte == '\\')
                written += '\\';
            written += static_cast<char>(byte);
        }
    return written + ')';
}

} // namespace

std::string pdfOf(const PagedReport& report) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(DotsPerInch);
        writer.setPageLayout(report.layout());
        writer.setTitle(report.documentTitle());
        writer.setCreator(Creator);
        QPainter painter;
        if (!painter.begin(&writer))
            throw std::runtime_error(say("The report could not be painted."));
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

bool isOwnPdf(const std::filesystem::path& path, const QString& title) {
    std::ifstream file(path, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    const auto says = [&](const char* what, const QString& text) {
        return content.find(what + pdfText(text)) != std::string::npos;
    };
    return content.starts_with("%PDF-") && says("/Title ", title) && says("/Creator ", Creator);
}

std::string pdfFor(const PagedReport& report, const std::filesystem::path& path) {
    if (!isAnyFontInstalled())
        throw FileError(path, say("no font is installed"));
    return pdfOf(report);
}

void writePdf(const PagedReport& report, const std::filesystem::path& path) {
    writeFileSafely(path, pdfFor(report, path));
}

} // namespace kavela::report
