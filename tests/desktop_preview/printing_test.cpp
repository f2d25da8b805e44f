#include "desktop/preview/report_printing.h"

#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "desktop_preview/sample_reports.h"
#include "report/pdf_text.h"

#include <gmock/gmock.h>

#include <QPrinter>

namespace kavela::test {

namespace {

using desktop::preparePrinter;
using desktop::printReport;
using testing::HasSubstr;
using testing::SizeIs;

class Printing : public testing::Test {
protected:
    Printing() {
        m_printer.setOutputFormat(QPrinter::PdfFormat);
        m_printer.setOutputFileName(QString::fromStdString(file().string()));
        preparePrinter(m_printer, *m_report);
    }

    [[nodiscard]] std::filesystem::path file() const { return m_folder.path() / "printed.pdf"; }

    TempFolder m_folder;
    std::unique_ptr<report::PagedReport> m_report =
        raceReport(sample::riversideCup(), report::ReportContent::Table);
    QPrinter m_printer{QPrinter::HighResolution};
};

} // namespace

TEST_F(Printing, PutsEveryPageOntoPaperAsItLies) {
    ASSERT_TRUE(printReport(*m_report, m_printer));
    const std::vector<std::string> pages = pagesOf(file());
    ASSERT_THAT(pages, SizeIs(static_cast<std::size_t>(m_report->pageCount())));
    EXPECT_THAT(pages.front(), HasSubstr("Valkenhof"));
    EXPECT_THAT(pages.back(), HasSubstr("best of its column"));
    EXPECT_EQ(m_printer.pageLayout().orientation(), QPageLayout::Landscape);
}

TEST_F(Printing, PrintsTheChosenPagesOnOtherPaper) {
    m_printer.setPageSize(QPageSize(QPageSize::A5));
    m_printer.setPrintRange(QPrinter::PageRange);
    m_printer.setFromTo(2, 2);
    ASSERT_TRUE(printReport(*m_report, m_printer));
    const std::vector<std::string> pages = pagesOf(file());
    ASSERT_THAT(pages, SizeIs(1));
    EXPECT_THAT(pages.front(), HasSubstr("Page 2 / " + std::to_string(m_report->pageCount())))
        << "to its corner";
}

TEST_F(Printing, MakesADocumentOfTheChosenPagesOnOtherPaper) {
    m_printer.setPageSize(QPageSize(QPageSize::A5));
    m_printer.setPrintRange(QPrinter::PageRange);
    m_printer.setFromTo(2, 2);
    const std::string pdf = desktop::printedPdf(*m_report, m_printer);
    EXPECT_FALSE(std::filesystem::exists(file())) << "what is to be written is not written here";
    writeFileSafely(file(), pdf);
    const std::vector<std::string> pages = pagesOf(file());
    ASSERT_THAT(pages, SizeIs(1));
    EXPECT_THAT(pages.front(), HasSubstr("Page 2 / " + std::to_string(m_report->pageCount())));
}

TEST_F(Printing, PrintsNothingOfAReportWithoutPages) {
    const NotingReport empty(0);
    preparePrinter(m_printer, empty);
    EXPECT_TRUE(printReport(empty, m_printer));
    EXPECT_FALSE(std::filesystem::exists(file()));
}

} // namespace kavela::test
