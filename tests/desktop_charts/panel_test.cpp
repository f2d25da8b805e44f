#include "desktop/charts/chart_panel.h"

#include "common/error.h"
#include "desktop/charts/chart.h"
#include "desktop/charts/chart_plot.h"

#include "desktop_charts/chart_races.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QFile>
#include <QSignalSpy>
#include <QTabBar>
#include <QTemporaryDir>

namespace kavela::test {

using namespace kavela::desktop;
using Kind = CourseReferenceKind;

namespace {

class Panel : public testing::Test {
protected:
    void SetUp() override {
        m_panel.setRace(chartRaceSet());
        m_panel.setSelection({0, 2});
        showNow(m_panel);
    }

    QComboBox& chooser() { return *m_panel.findChild<QComboBox*>(); }

    QStringList offered() {
        QStringList texts;
        for (int i = 0; i < chooser().count(); ++i)
            texts << chooser().itemText(i);
        return texts;
    }

    void choose(const QString& text) {
        chooser().setFocus();
        chooser().setCurrentIndex(chooser().findText(text));
        emit chooser().activated(chooser().currentIndex());
    }

    [[nodiscard]] QByteArray saved(const QString& name) {
        const QString path = m_folder.filePath(name);
        m_panel.saveChart(path);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    ChartPanel m_panel;
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Panel, SavesEveryChartAsPictureDrawingAndTable) {
    for (int chart = 0; chart < 4; ++chart) {
        m_panel.setCurrentChart(chart);
        const std::string name = m_panel.currentChart().name().toStdString();
        const QImage picture = QImage::fromData(saved("chart.png"));
        EXPECT_GE(picture.width(), 1900) << name << ": twice as dense as the screen";
        const QByteArray drawing = saved("chart.svg");
        EXPECT_TRUE(drawing.startsWith("<?xml") && drawing.contains("</svg>")) << name;
        EXPECT_TRUE(drawing.contains(">" + m_panel.currentChart().plot().title().toUtf8() + "<"))
            << name << ": text stays text";
        EXPECT_EQ(saved("table.CSV"), m_panel.currentChart().csv().toUtf8()) << name;
    }
}

TEST_F(Panel, RefusesWhatItCannotSave) {
    QSignalSpy savedSpy(&m_panel, &ChartPanel::chartSaved);
    EXPECT_THROW(m_panel.saveChart(m_folder.filePath("chart.bmp")), FileError);
    EXPECT_THROW(m_panel.saveChart(m_folder.filePath("no folder/chart.png")), FileError);
    EXPECT_TRUE(savedSpy.isEmpty());
}

TEST_F(Panel, OffersTheSelectedRunsAsReferences) {
    EXPECT_EQ(offered(), QStringList({"Best run", "Median", "Ideal run", "Ann", "Cyd"}));
    QSignalSpy changed(&m_panel, &ChartPanel::referenceChanged);
    choose("Cyd");
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(m_panel.reference(), (CourseReference{Kind::Run, 2}));
    EXPECT_EQ(m_panel.currentChart().plot().title(), "Gap to Cyd");

    m_panel.setSelection({1});
    EXPECT_EQ(offered(), QStringList({"Best run", "Median", "Ideal run", "Cyd", "Bea"}))
        << "the chosen one stays";
    m_panel.setForeignReferences({{Kind::Times, 0, "Eve, Spring Cup", {9, 18, 27}}});
    choose("Eve, Spring Cup");
    EXPECT_EQ(m_panel.currentChart().plot().title(), "Gap to Eve, Spring Cup");
}

TEST_F(Panel, AReferenceRunIsFollowedThroughAFilter) {
    m_panel.setReference({Kind::Run, 2});
    RaceSet filtered =
        filteredRaceSet(chartRaceSet(), [](const analyzerdata& run) { return run.name != "Ann"; });
    QSignalSpy changed(&m_panel, &ChartPanel::referenceChanged);
    m_panel.setRace(filtered);
    EXPECT_EQ(m_panel.reference(), (CourseReference{Kind::Run, 1})) << "the same run, one up";
    EXPECT_EQ(changed.size(), 1);

    filtered = filteredRaceSet(filtered, [](const analyzerdata& run) { return run.name == "Bea"; });
    m_panel.setRace(filtered);
    EXPECT_EQ(m_panel.reference(), (CourseReference{Kind::Times, 0, "Cyd", {12, 21, 30}}))
        << "not shown, and still the one that the others are held against";
    EXPECT_EQ(changed.size(), 2);
    m_panel.setPenaltiesIncluded(true);
    EXPECT_EQ(m_panel.reference().times, (std::vector<double>{12, 71, 32}));
    m_panel.setRace(chartRaceSet());
    EXPECT_EQ(m_panel.reference(), (CourseReference{Kind::Run, 2})) << "back again";
}

TEST_F(Panel, LeadsToEveryChart) {
    for (int chart = 3; chart >= 0; --chart) {
        m_panel.goToChart(chart);
        QCoreApplication::processEvents();
        EXPECT_EQ(m_panel.findChild<QTabBar*>()->currentIndex(), chart);
        EXPECT_TRUE(m_panel.currentChart().isVisible());
        EXPECT_EQ(chooser().isVisible(), m_panel.currentChart().usesReference());
    }
}

TEST_F(Panel, AHiddenChartIsUpToDateWhenItComesToTheFront) {
    m_panel.setCurrentChart(3);
    m_panel.setSelection({0, 1, 2, 3});
    m_panel.setCurrentChart(0);
    EXPECT_EQ(m_panel.currentChart().plot().graphCount(), 4);
    m_panel.setRace(RaceSet{});
    EXPECT_EQ(m_panel.currentChart().emptyMessage(), "Open a race to see its charts.");
}

TEST_F(Panel, PassesOnWhichRunWasActivated) {
    QSignalSpy activated(&m_panel, &ChartPanel::runActivated);
    for (Chart* chart : m_panel.charts())
        emit chart->runActivated(2);
    EXPECT_EQ(activated.size(), 4);
}

} // namespace kavela::test
