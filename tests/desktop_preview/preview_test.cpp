#include "desktop/preview/report_preview.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/preview/page_view.h"
#include "desktop_preview/sample_reports.h"
#include "report/pdf_text.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPrinter>
#include <QTest>

namespace kavela::test {

namespace {

using desktop::ReportPreview;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class Preview : public testing::Test {
protected:
    Preview()
        : m_preview(
              {{"Race report", pathOf("race.pdf"),
                [] { return raceReport(sample::springOpener(), report::ReportContent::Race); }},
               {"Table as shown", pathOf("table.pdf"),
                [] { return raceReport(sample::springOpener(), report::ReportContent::Table); }}},
              {m_recorder.log(), [this](const Alert& alert, QWidget* over) {
                   EXPECT_EQ(over, &m_preview);
                   m_recorder.show(alert);
               }}) {
        m_preview.setChooseFile([this](QWidget*, const QString& suggested) {
            m_suggested.push_back(suggested.toStdString());
            return m_answer.value_or(suggested);
        });
        m_preview.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_preview));
        QApplication::setActiveWindow(&m_preview);
    }

    [[nodiscard]] QString pathOf(const char* name) const {
        return QString::fromStdString((m_folder.path() / name).string());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&m_preview.view(), key, modifiers);
    }
    [[nodiscard]] std::string label(const char* name) const {
        return m_preview.findChild<QLabel*>(name)->text().toStdString();
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_suggested;
    std::optional<QString> m_answer;
    ReportPreview m_preview;
};

} // namespace

TEST_F(Preview, ShowsWhichPageOfHowManyAndEachOfTheReports) {
    const int pages = m_preview.view().pageCount();
    ASSERT_GT(pages, 2);
    EXPECT_EQ(label("page"), "Page 1 of " + std::to_string(pages));
    press(Qt::Key_PageDown);
    EXPECT_EQ(label("page"), "Page 2 of " + std::to_string(pages));
    m_preview.findChild<QComboBox*>("report")->setCurrentIndex(1);
    EXPECT_LT(m_preview.view().pageCount(), pages);
    press(Qt::Key_0, Qt::ControlModifier);
    const double fitted = m_preview.view().zoom();
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(m_preview.view().zoom(), fitted);
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(m_preview.view().zoom(), fitted);
}

TEST_F(Preview, SavesWhatIsShownByKeysAlone) {
    press(Qt::Key_S, Qt::ControlModifier);
    m_preview.showReport(1);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(m_suggested,
                ElementsAre(pathOf("race.pdf").toStdString(), pathOf("table.pdf").toStdString()));
    EXPECT_THAT(pagesOf(m_folder.path() / "race.pdf").front(), HasSubstr("Mateo Arribalza"));
    EXPECT_THAT(pagesOf(m_folder.path() / "table.pdf"),
                SizeIs(static_cast<std::size_t>(m_preview.view().pageCount())));
    EXPECT_EQ(label("saved"), "Saved as table.pdf");
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(Preview, SuggestsTheFolderThatWasSavedToLast) {
    std::filesystem::create_directory(m_folder.path() / "reports");
    m_answer = pathOf("reports/mine.pdf");
    press(Qt::Key_S, Qt::ControlModifier);
    m_answer = QString(); // called off
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(m_suggested.back(), pathOf("reports/race.pdf").toStdString());
    EXPECT_THAT(m_folder.names(), ElementsAre("reports"));
}

TEST_F(Preview, TellsOfAFileThatCannotBeWrittenAndLeavesNothing) {
    m_answer = pathOf("none/race.pdf");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(m_recorder.lines, ElementsAre("Failed to create file"));
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_folder.names(), IsEmpty());
    EXPECT_EQ(label("saved"), "");
}

TEST_F(Preview, PrintsWithThePrinterOfTheReportsPaper) {
    m_preview.setChoosePrinter([&](QPrinter& printer, QWidget*) {
        EXPECT_EQ(printer.pageLayout().pageSize().id(), QPageSize::A4);
        EXPECT_EQ(printer.toPage(), m_preview.view().pageCount());
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pathOf("printed.pdf"));
        return true;
    });
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_THAT(pagesOf(m_folder.path() / "printed.pdf"),
                SizeIs(static_cast<std::size_t>(m_preview.view().pageCount())));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());

    m_preview.setChoosePrinter([&](QPrinter& printer, QWidget*) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pathOf("none/printed.pdf"));
        return true;
    });
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_THAT(m_recorder.lines, ElementsAre("Failed to create file"));
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_folder.names(), ElementsAre("printed.pdf"));
}

TEST_F(Preview, ClosesByEscape) {
    press(Qt::Key_Escape);
    EXPECT_FALSE(m_preview.isVisible());
}

TEST(EmptyPreview, OffersNothingToSaveOrPrint) {
    const auto fail = [](auto&&...) { FAIL() << "nothing was to be asked or told"; };
    ReportPreview preview({{"Nothing", "a.pdf", [] { return std::make_unique<NotingReport>(0); }}},
                          {fail, fail});
    preview.setChooseFile([](QWidget*, const QString&) {
        ADD_FAILURE() << "no file is due";
        return QString();
    });
    preview.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&preview));
    QApplication::setActiveWindow(&preview);
    QTest::keyClick(&preview.view(), Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(&preview.view(), Qt::Key_P, Qt::ControlModifier);
    (void)preview.grab();
    EXPECT_FALSE(preview.findChild<QComboBox*>("report")->isVisible());
}

} // namespace kavela::test
