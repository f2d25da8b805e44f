#include "desktop/race_care_fixture.h"

namespace kavela::test {
namespace {

TEST_F(RaceCareTest, GreysWhatCountsForNothingAndSaysWhy) {
    RaceWindow* const window = show(write(smallRace()));
    ASSERT_TRUE(window);
    press(*window, Qt::Key_I);
    press(*window, Qt::Key_T);
    const auto isBold = [&](const char* name, int column) {
        return cell(*window, rowOf(*window, name), column, Qt::FontRole).value<QFont>().bold();
    };
    const auto tip = [&](const char* name, int column) {
        return cell(*window, rowOf(*window, name), column, Qt::ToolTipRole)
            .toString()
            .toStdString();
    };
    EXPECT_EQ(text(*window, "Bea", FirstTime), "2.00");
    EXPECT_FALSE(isBold("Bea", FirstTime));
    EXPECT_TRUE(isBold("Cyd", FirstTime));
    EXPECT_THAT(tip("Bea", FirstTime), HasSubstr("No time was taken here"));
    EXPECT_NE(cell(*window, rowOf(*window, "Bea"), FirstTime, Qt::BackgroundRole).value<QColor>(),
              QColor(0, 255, 0));

    press(*window, Qt::Key_A);
    const int total = FirstTime + 3;
    EXPECT_THAT(tip("Cyd", FirstTime + 2), HasSubstr("was not timed"));
    EXPECT_FALSE(isBold("Cyd", FirstTime + 2));
    EXPECT_TRUE(isBold("Ann", FirstTime + 2));
    EXPECT_THAT(tip("Cyd", total), HasSubstr("not timed to the end"));
    window->table().sortByColumn(total, Qt::AscendingOrder);
    EXPECT_EQ(nameIn(*window, 0), "Ann") << "28 s over two sections are no first place";
    press(*window, Qt::CTRL | Qt::Key_3);
    EXPECT_EQ(text(*window, "Cyd", total), "–");
}

TEST_F(RaceCareTest, KeepsSelectionAndPlaceThroughEveryChangeOfView) {
    RaceWindow* const window = show(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    desktop::FrozenTable& table = window->table();
    QItemSelectionModel& selection = *table.selectionModel();
    constexpr auto Adding = QItemSelectionModel::Select | QItemSelectionModel::Rows;
    selection.select(table.model()->index(30, 0), Adding);
    selection.select(table.model()->index(28, 0), Adding);
    selection.setCurrentIndex(table.model()->index(30, FirstTime + 2),
                              QItemSelectionModel::NoUpdate);
    const auto names = selected(*window);
    ASSERT_EQ(names.size(), 2U);
    const auto current = [&] { return table.currentIndex(); };
    const int place = table.verticalScrollBar()->value();
    ASSERT_GT(place, 0);
    desktop::ChartPanel& charts = window->view().charts();
    const QString compared = charts.currentChart().csv();
    for (const QKeySequence& keys :
         {QKeySequence(Qt::Key_T), QKeySequence(Qt::Key_V), QKeySequence(Qt::Key_A),
          QKeySequence(Qt::CTRL | Qt::Key_2), QKeySequence(Qt::Key_B), QKeySequence(Qt::Key_A),
          QKeySequence(Qt::Key_F5)}) {
        press(*window, keys);
        EXPECT_EQ(selected(*window), names) << keys.toString().toStdString();
        EXPECT_EQ(current().row(), 30) << keys.toString().toStdString();
        EXPECT_EQ(current().column(), FirstTime + 2);
        EXPECT_EQ(table.verticalScrollBar()->value(), place) << keys.toString().toStdString();
    }
    EXPECT_EQ(charts.currentChart().csv(), compared) << "the chart still compares them";
}

TEST_F(RaceCareTest, SelectsAgainWhatAFilterLeftOut) {
    RaceWindow* const window = show(write(smallRace()));
    ASSERT_TRUE(window);
    auto* const category = window->findChild<QComboBox*>("category");
    window->table().selectRow(rowOf(*window, "Dee"));
    category->setCurrentIndex(category->findData("K1W"));
    EXPECT_TRUE(selected(*window).empty());
    category->setCurrentIndex(category->findData("C1W"));
    EXPECT_EQ(selected(*window), std::vector<std::string>{"Dee"});
    category->setCurrentIndex(category->findData("K1W"));
    window->table().selectRow(rowOf(*window, "Cyd"));
    press(*window, Qt::Key_Escape);
    EXPECT_EQ(selected(*window), std::vector<std::string>{"Cyd"}) << "chosen since";
}

TEST_F(RaceCareTest, HoldsAgainstTheSameRunUnderEveryFilterAndSetting) {
    RaceWindow* const window = show(write(smallRace()));
    ASSERT_TRUE(window);
    window->table().selectRow(rowOf(*window, "Dee"));
    press(*window, Qt::SHIFT | Qt::Key_R);
    press(*window, Qt::CTRL | Qt::Key_2);
    ASSERT_EQ(text(*window, "Ann", FirstTime + 1), "-2.00");
    auto* const category = window->findChild<QComboBox*>("category");
    const auto* const count = window->findChild<QLabel*>("count");
    for (const char* chosen : {"K1W", "C1W", ""}) {
        category->setCurrentIndex(category->findData(chosen));
        const char* other = std::string(chosen) == "C1W" ? "Dee" : "Ann";
        EXPECT_EQ(text(*window, other, FirstTime + 1), *other == 'D' ? "0.00" : "-2.00") << chosen;
        EXPECT_THAT(count->text().toStdString(), HasSubstr("gaps to Dee")) << chosen;
    }
    press(*window, Qt::Key_A);
    EXPECT_EQ(text(*window, "Ann", FirstTime + 1), "-3.00") << "30 s against 33 s";
    category->setCurrentIndex(category->findData("K1W"));
    EXPECT_EQ(text(*window, "Ann", FirstTime + 1), "-3.00");
    press(*window, Qt::Key_A);
    EXPECT_EQ(text(*window, "Ann", FirstTime + 1), "-2.00");
}

TEST_F(RaceCareTest, RefersToTheIdealRunAsTheTableShowsIt) {
    RaceWindow* const window = show(write(smallRace()));
    ASSERT_TRUE(window);
    press(*window, Qt::Key_O);
    window->table().selectRow(0);
    press(*window, Qt::SHIFT | Qt::Key_R);
    press(*window, Qt::CTRL | Qt::Key_2);
    EXPECT_EQ(text(*window, "Ann", FirstTime + 1), "+1.00");
    press(*window, Qt::Key_A);
    EXPECT_EQ(text(*window, "Ann", FirstTime + 1), "+2.00") << "9 and 19 from the start";
    press(*window, Qt::Key_O);
    EXPECT_EQ(text(*window, "Ann", FirstTime + 1), "+2.00") << "also while it is not shown";
}

TEST_F(RaceCareTest, FollowsTheRunsOfAFileThatWasChanged) {
    splittakerdata031 race = smallRace();
    const fs::path file = write(race);
    RaceWindow* const window = show(file);
    ASSERT_TRUE(window);
    window->table().selectRow(rowOf(*window, "Dee"));
    press(*window, Qt::SHIFT | Qt::Key_R);
    press(*window, Qt::CTRL | Qt::Key_2);
    window->view().charts().setReference({CourseReferenceKind::Run, 3});
    athletedata031 first = race.athletes[2];
    first.names = {"Eve"};
    race.athletes.insert(race.athletes.begin(), first);
    write(race);
    press(*window, Qt::Key_F5);
    EXPECT_EQ(selected(*window), std::vector<std::string>{"Dee"});
    EXPECT_EQ(text(*window, "Ann", FirstTime + 1), "-2.00");
    EXPECT_EQ(window->view().charts().reference(), (CourseReference{CourseReferenceKind::Run, 4}));
    race.athletes.pop_back();
    write(race);
    press(*window, Qt::Key_F5);
    EXPECT_TRUE(selected(*window).empty());
    EXPECT_EQ(text(*window, "Ann", FirstTime + 1), "+1.00") << "she is gone: the best again";
}

TEST_F(RaceCareTest, ShowsAllRunsWhereTheFilteredPhaseIsGone) {
    splittakerdata031 race = smallRace();
    RaceWindow* const window = show(write(race));
    ASSERT_TRUE(window);
    auto* const phase = window->findChild<QComboBox*>("phase");
    phase->setCurrentIndex(phase->findData("Final"));
    ASSERT_EQ(window->model().rowCount(), 1);
    race.athletes.pop_back();
    write(race);
    press(*window, Qt::Key_F5);
    EXPECT_EQ(window->model().rowCount(), 3);
    window->view().document().setFilter({"nowhere", {}, {}});
    ASSERT_EQ(window->model().rowCount(), 0);
    press(*window, Qt::Key_Escape);
    EXPECT_EQ(window->model().rowCount(), 3) << "whatever the boxes show";
}

TEST_F(RaceCareTest, OffersTheRacesOfTheFolder) {
    splittakerdata031 other = smallRace();
    other.info.title = "Other Race";
    other.info.date = ReferenceDate{7e8};
    write(other, "other.kvx");
    (void)m_folder.add("broken.kvx", "{");
    RaceWindow* const window = show(write(smallRace()));
    ASSERT_TRUE(window);
    desktop::RunChooser chooser(m_workspace, window->document().path(), window);
    const auto* const files = chooser.findChild<QListWidget*>("files");
    ASSERT_EQ(files->count(), 2) << "not the race that is open";
    const auto* const runs = chooser.findChild<QListWidget*>("runs");
    ASSERT_TRUE(QTest::qWaitFor([&] { return runs->count() == 4; }));
    EXPECT_FALSE(files->item(0)->flags().testFlag(Qt::ItemIsEnabled)) << "broken.kvx";
    EXPECT_EQ(files->item(1)->text().toStdString(), "Other Race\n2023-03-08 · 4 runs · other.kvx");
    EXPECT_EQ(files->currentRow(), 1);
    EXPECT_EQ(chooser.run().name, "Ann");
    EXPECT_TRUE(m_recorder.alerts.empty());
}

TEST_F(RaceCareTest, SaysThatAFilterMatchesNobody) {
    RaceWindow* const window = show(write(smallRace()));
    ASSERT_TRUE(window);
    window->view().document().setFilter({{}, {}, "nobody at all"});
    for (int chart = 0; chart < 4; ++chart) {
        window->view().charts().setCurrentChart(chart);
        EXPECT_THAT(window->view().charts().currentChart().emptyMessage().toStdString(),
                    ::testing::StartsWith("The filter matches nobody."));
    }
}

TEST_F(RaceCareTest, ProposesTheRaceThatIsMostLikeTheOpenOne) {
    const auto race = [](const char* place, const char* category) {
        splittakerdata031 made = smallRace();
        made.info.place = place;
        for (athletedata031& run : made.athletes)
            run.cat = category;
        return made;
    };
    splittakerdata031 cross = race("Riverside", "K1W");
    cross.athletes.clear();
    write(cross, "a_cross.kvx");
    write(race("Riverside", "C1M"), "b_category.kvx");
    write(race("Lake", "K1W"), "c_place.kvx");
    write(race("riverside", "K1W"), "d_alike.kvx");
    write(race("Lake", "K1W"), "e_place.kvx");
    const auto open = write(race("Riverside", "K1W"));
    const desktop::RunChooser chooser(m_workspace, QString::fromStdString(open.string()), nullptr);
    const auto* const files = chooser.findChild<QListWidget*>("files");
    ASSERT_EQ(files->count(), 5);
    const auto isRead = [&] { return files->item(4)->text().contains("runs"); };
    ASSERT_TRUE(QTest::qWaitFor(isRead));
    EXPECT_EQ(files->currentRow(), 3) << files->currentItem()->text().toStdString();
}

TEST_F(RaceCareTest, MakesTheTableOrTheChartFillTheWindow) {
    RaceWindow* const window = show(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(window);
    desktop::RaceView& view = window->view();
    view.table().setFocus();
    press(*window, Qt::Key_F9);
    EXPECT_TRUE(view.table().isVisible());
    EXPECT_FALSE(view.side().isVisible() || view.charts().isVisible());
    EXPECT_GT(view.table().width(), 1200);
    press(*window, Qt::Key_F9);
    EXPECT_TRUE(view.side().isVisible() && view.charts().isVisible());
    view.table().selectRow(0); // an empty chart takes no keys
    press(*window, Qt::ALT | Qt::Key_4);
    press(*window, Qt::Key_F9);
    EXPECT_FALSE(view.table().isVisible() || view.side().isVisible());
    press(*window, QKeySequence::Find);
    EXPECT_TRUE(view.table().isVisible()) << "the filter belongs to the table";
}

/// Every letter that is typed into the filter makes another set of runs: a recording is many times
/// the rest of a run.
TEST_F(RaceCareTest, TheRunsThatAFilterKeepsShareTheirRecordings) {
    splittakerdata031 race = sample::holdRace(sample::springOpener());
    for (athletedata031& run : race.athletes) {
        run.bm.resize(3);
        run.hr.resize(3);
        run.gps.resize(3);
        run.watchmotion.resize(3);
    }
    const std::string name = race.athletes.back().names.front();
    desktop::RaceDocument document(m_workspace);
    document.show(std::move(race), QString::fromStdString((m_folder.path() / "a.kvx").string()));
    for (int letters = 1; letters < 4; ++letters) {
        document.setFilter({{}, {}, QString::fromStdString(name).left(letters)});
        const std::vector<analyzerdata>& kept = document.shownSet().alldata;
        ASSERT_FALSE(kept.empty());
        for (const analyzerdata& run : kept) {
            const analyzerdata& whole =
                document.wholeSet().alldata.at(static_cast<std::size_t>(run.athleteInt));
            ASSERT_EQ(run.bm.size(), 3U);
            EXPECT_EQ(run.bm.data(), whole.bm.data());
            EXPECT_EQ(run.heart.data(), whole.heart.data());
            EXPECT_EQ(run.gps.data(), whole.gps.data());
            EXPECT_EQ(run.watch.data(), whole.watch.data());
        }
    }
    EXPECT_LT(document.shownSet().alldata.size(), document.wholeSet().alldata.size());
}

} // namespace
} // namespace kavela::test
