#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/imports/csv_mapping_dialog.h"
#include "desktop/imports/import_files.h"
#include "desktop/shell/tables/column_table.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace kavela::test {
namespace {

using desktop::ColumnTable;
using desktop::CsvMappingDialog;
using desktop::ImportedFile;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// Two minutes and three seconds of a phone that lies still, 100 lines a second.
std::string longList(const char* separator = ",") {
    std::string text = fmt::format("time{0}ax{0}ay{0}az{0}heart\n", separator);
    for (int i = 0; i <= 12300; ++i)
        text += fmt::format("{1}.{2:02}{0}0{0}0{0}9.8{0}\n", separator, i / 100, i % 100);
    return text;
}

class ImportsTest : public testing::Test {
protected:
    std::string add(const char* name, const std::string& content) {
        return m_folder.add(name, content).string();
    }
    static QPushButton* importButton(const QDialog& dialog) {
        for (auto* button : dialog.findChildren<QPushButton*>())
            if (button->text() == "Import")
                return button;
        return nullptr;
    }
    static QString resultOf(const QDialog& dialog) {
        return dialog.findChild<QLabel*>("result")->text();
    }
    static QComboBox* choiceOver(const QDialog& dialog, int column) {
        const auto* table = dialog.findChild<ColumnTable*>("preview");
        return qobject_cast<QComboBox*>(table->indexWidget(table->cellAt(0, column)));
    }
    /// Waits until the list was read.
    static void waitForResult(const QDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return resultOf(dialog) != "Reading…"; }));
    }
    /// Does something in the dialog that is about to open.
    static void inDialog(std::function<void(CsvMappingDialog&)> act) {
        QTimer::singleShot(0, [act = std::move(act)] {
            auto* dialog = qobject_cast<CsvMappingDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            waitForResult(*dialog);
            act(*dialog);
        });
    }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::CsvMappings m_known;
};

TEST_F(ImportsTest, TheDialogTellsWhatTheListGives) {
    CsvMappingDialog dialog(SensorCsv(add("run.csv", longList())));
    EXPECT_FALSE(importButton(dialog)->isEnabled());
    waitForResult(dialog);
    EXPECT_EQ(resultOf(dialog), "This gives 12,301 samples, 100 per second, 2 min 3 s.");
    EXPECT_TRUE(importButton(dialog)->isEnabled());
    const auto* table = dialog.findChild<ColumnTable*>("preview");
    EXPECT_EQ(table->model()->rowCount(), 21);
    EXPECT_EQ(table->cellAt(3, 0).data().toString(), "0.02");
    EXPECT_EQ(choiceOver(dialog, 3)->currentText(), "Acc. z with gravity");
    EXPECT_EQ(dialog.findChild<QComboBox*>("acceleration")->currentText(), "m/s²");
    EXPECT_THAT(dialog.findChild<QLabel*>("details")->text().toStdString(),
                HasSubstr("low-pass of 0.3 Hz"));
    EXPECT_THAT(dialog.takeImport().session.boatmotion, SizeIs(12301));
}

TEST_F(ImportsTest, ChangesAreReadAtOnce) {
    CsvMappingDialog dialog(SensorCsv(add("run.csv", longList())));
    choiceOver(dialog, 2)->setCurrentIndex(0);
    EXPECT_EQ(resultOf(dialog), "Of the acceleration with gravity all of x, y and z are needed.");
    QTest::qWait(50); // the reading that was given up tells nothing any more
    EXPECT_FALSE(importButton(dialog)->isEnabled());
    choiceOver(dialog, 2)->setCurrentIndex(static_cast<int>(CsvQuantity::TotalY));
    dialog.findChild<QComboBox*>("time")->setCurrentIndex(static_cast<int>(CsvTime::Milliseconds));
    waitForResult(dialog);
    EXPECT_EQ(resultOf(dialog), "This gives 12,301 samples, 100,000 per second, 0.1 s.");
}

TEST_F(ImportsTest, AnotherSeparatorGuessesAnew) {
    CsvMappingDialog dialog(SensorCsv(add("run.csv", longList(";"))));
    auto* separator = dialog.findChild<QComboBox*>("separator");
    EXPECT_EQ(separator->currentText(), "Semicolon");
    separator->setCurrentIndex(2);
    EXPECT_EQ(resultOf(dialog), "No column is the time.");
    separator->setCurrentIndex(1);
    waitForResult(dialog);
    EXPECT_THAT(resultOf(dialog).toStdString(), HasSubstr("12,301 samples"));
}

TEST_F(ImportsTest, AListWithoutDatesBeginsWhenTheCoachSays) {
    CsvMappingDialog dialog(SensorCsv(add("run.csv", longList())));
    waitForResult(dialog);
    auto* start = dialog.findChild<QDateTimeEdit*>("start");
    EXPECT_TRUE(start->isEnabled());
    EXPECT_NEAR(static_cast<double>(start->dateTime().secsTo(QDateTime::currentDateTime())), 123, 5)
        << "the file was written at its end";
    start->setDateTime(QDateTime::fromString("2026-05-07T10:02:00Z", Qt::ISODate).toLocalTime());
    waitForResult(dialog);
    EXPECT_EQ(dialog.takeImport().session.info.date.seconds, 799840920);
}

TEST_F(ImportsTest, AListIsImportedAsSoonAsItIsReadAgain) {
    const QStringList paths{QString::fromStdString(add("run.csv", longList()))};
    inDialog([](CsvMappingDialog& dialog) {
        dialog.findChild<QDateTimeEdit*>("start")->setDateTime(
            QDateTime::fromString("2026-05-07T10:02:00Z", Qt::ISODate).toLocalTime());
        importButton(dialog)->click();
        EXPECT_TRUE(dialog.isVisible()) << "the list has another date than what was read";
    });
    const std::vector<ImportedFile> files =
        desktop::importFiles(paths, m_recorder, nullptr, m_known);
    ASSERT_THAT(files, SizeIs(1));
    EXPECT_EQ(std::get<bmrawdata_v5>(files[0].content).info.date.seconds, 799840920);
}

TEST_F(ImportsTest, FilesBecomeTracksAndRecordings) {
    const std::string gpx = "<gpx><trkpt lat=\"47\" lon=\"8\"><time>2026-05-07T10:02:00Z</time>"
                            "</trkpt><trkpt lat=\"47\" lon=\"8\"/></gpx>";
    const QStringList paths{QString::fromStdString(add("a.gpx", gpx)),
                            QString::fromStdString(add("b.csv", longList()))};
    inDialog([](CsvMappingDialog& dialog) { dialog.accept(); });
    const std::vector<ImportedFile> files =
        desktop::importFiles(paths, m_recorder, nullptr, m_known);
    ASSERT_THAT(files, SizeIs(2));
    EXPECT_THAT(std::get<ImportedTrack>(files[0].content).gps, SizeIs(1));
    EXPECT_THAT(std::get<bmrawdata_v5>(files[1].content).boatmotion, SizeIs(12301));
    EXPECT_THAT(m_recorder.alerts, ElementsAre(HasSubstr("1 points without a date")));
}

TEST_F(ImportsTest, AListIsReadAsTheLastOneWithItsTitles) {
    const QStringList first{QString::fromStdString(add("a.csv", longList()))};
    inDialog([](CsvMappingDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QPushButton*>("guessAgain")->isVisible());
        choiceOver(dialog, 4)->setCurrentIndex(static_cast<int>(CsvQuantity::None));
        dialog.findChild<QComboBox*>("acceleration")->setCurrentIndex(0);
        waitForResult(dialog);
        dialog.accept();
    });
    ASSERT_THAT(desktop::importFiles(first, m_recorder, nullptr, m_known), SizeIs(1));
    const auto isAsBefore = [](CsvMappingDialog& dialog) {
        EXPECT_EQ(choiceOver(dialog, 4)->currentText(), "–");
        EXPECT_EQ(dialog.findChild<QComboBox*>("acceleration")->currentText(), "g");
        auto* const again = dialog.findChild<QPushButton*>("guessAgain");
        EXPECT_TRUE(again->isVisible());
        again->click();
        EXPECT_EQ(choiceOver(dialog, 4)->currentText(), "Heart rate");
        dialog.reject();
    };
    const QStringList again{QString::fromStdString(add("b.csv", longList()))};
    inDialog(isAsBefore);
    EXPECT_THAT(desktop::importFiles(again, m_recorder, nullptr, m_known), IsEmpty());
    EXPECT_THAT(m_known, SizeIs(1)) << "what was given up is not remembered";

    std::string others = longList();
    others.replace(others.find("heart"), 5, "puls");
    const QStringList other{QString::fromStdString(add("c.csv", others))};
    inDialog([](CsvMappingDialog& dialog) {
        EXPECT_EQ(choiceOver(dialog, 4)->currentText(), "Heart rate") << "other titles";
        dialog.accept();
    });
    ASSERT_THAT(desktop::importFiles(other, m_recorder, nullptr, m_known), SizeIs(1));
    EXPECT_THAT(m_known, SizeIs(2));
    m_known[0] = "44 0 9 9 9\t" + m_known[0].substr(m_known[0].find('\t') + 1);
    inDialog([](CsvMappingDialog& dialog) {
        EXPECT_EQ(choiceOver(dialog, 4)->currentText(), "Heart rate") << "damaged: guessed";
        dialog.reject();
    });
    EXPECT_THAT(desktop::importFiles(other, m_recorder, nullptr, m_known), IsEmpty());
}

TEST_F(ImportsTest, CancelledAndDamagedFilesAreLeftOut) {
    const QStringList paths{
        QString::fromStdString(add("a.csv", longList())),
        QString::fromStdString(add("b.fit", std::string("\x0e\x20xxxxxx.FIT", 12))),
        QString::fromStdString(add("c.csv", "words\n")),
        QString::fromStdString((m_folder.path() / "none.gpx").string())};
    inDialog([](CsvMappingDialog& dialog) { dialog.reject(); });
    EXPECT_THAT(desktop::importFiles(paths, m_recorder, nullptr, m_known), IsEmpty());
    EXPECT_THAT(m_recorder.alerts, ElementsAre(HasSubstr("byte "), HasSubstr("no list of samples"),
                                               HasSubstr("no such file")));
}

} // namespace
} // namespace kavela::test
