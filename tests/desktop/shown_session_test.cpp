#include "desktop/session_fixture.h"

#include "boatmotion/session_files.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/charts/series_chart.h"
#include "desktop/odd_recordings.h"
#include "desktop/saving.h"
#include "desktop/sessions/balance_view.h"
#include "desktop/sessions/gauge.h"
#include "desktop/sessions/grid_model.h"
#include "desktop/sessions/session_edits.h"
#include "desktop/sessions/session_exports.h"
#include "desktop/sessions/session_texts.h"
#include "desktop/sessions/test_session_window.h"
#include "desktop/shell/tables/column_table.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QTableView>
#include <QToolButton>

#include <algorithm>
#include <set>

/// What sessions of every kind look like, odd ones too.
namespace kavela::test {
namespace {

using desktop::SessionTables;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using ShownSessionTest = SessionFixture;

TEST_F(ShownSessionTest, AnOddClockIsToldOrShownAndNothingIsHalfLoaded) {
    const auto window = openDrill();
    const std::string drill = sessionOf(*window);
    for (const auto& [clock, recording] : oddRecordings()) {
        SCOPED_TRACE(clock);
        m_recorder.alerts.clear();
        const std::string before = sessionOf(*window);
        const QString path = window->document().path();
        if (!opens(*window, add("odd.kvb", encode(recording)))) {
            ASSERT_THAT(m_recorder.alerts, SizeIs(1));
            EXPECT_THAT(m_recorder.alerts[0], HasSubstr("odd.kvb: "));
            EXPECT_EQ(sessionOf(*window), before);
            EXPECT_EQ(window->document().path(), path);
            continue;
        }
        EXPECT_THAT(m_recorder.alerts, IsEmpty());
        EXPECT_LE(window->replay().from(), window->replay().to());
        showEverything(*window);
        markAt(*window, {1, 2});
        EXPECT_TRUE(savedAs(*window, this->path("odd.bms")));
        EXPECT_TRUE(savesRecording(*window, this->path("odd_again.kvb")));
    }
}

TEST_F(ShownSessionTest, OddProcessedSessionsAreShown) {
    const auto window = openDrill();
    const smartAlldata_v4 drill = window->document().value().session;
    std::vector<std::pair<const char*, smartAlldata_v4>> odd(5, {"", drill});
    odd[0].first = "backwards";
    std::ranges::reverse(odd[0].second.strokesData);
    odd[1].first = "at one moment";
    for (auto& entry : odd[1].second.strokesData)
        entry.timestamp = 7;
    odd[2].first = "one stroke";
    odd[2].second.strokesData.resize(1);
    odd[3].first = "positions that stand still, doubled";
    for (auto& fix : odd[3].second.gps)
        fix = drill.gps.front();
    odd[4].first = "segments that jump";
    for (std::size_t i = 0; i < drill.strokesData.size(); ++i)
        odd[4].second.strokesData[i].segment = i % 2 == 0 ? -4 : 1LL << 60;
    for (const auto& [what, session] : odd) {
        SCOPED_TRACE(what);
        ASSERT_TRUE(opens(*window, add("odd.bms", encode(session))));
        EXPECT_EQ(sessionOf(*window), encode(session)) << "as it was read";
        showEverything(*window);
        window->view().select(MomentRange{window->replay().from(), window->replay().to()});
        (void)window->grab();
        window->edits().removeSelection(); // too little is left, or something is
        markAt(*window, {0, 3});
        while (window->document().undoStack().canUndo())
            press(*window, Qt::CTRL | Qt::Key_Z);
        EXPECT_EQ(sessionOf(*window), encode(session));
    }
}

/// Whatever the cursor stands on, gauge and chart read one value.
TEST_F(ShownSessionTest, GaugesTellWhatTheChartsTell) {
    using desktop::SessionMeasure;
    const auto window = openDrill();
    const auto gauge = [&](const char* name) {
        return window->findChild<desktop::Gauge*>(name)->text();
    };
    const auto compare = [&](const char* when) {
        SCOPED_TRACE(when);
        const double from = window->replay().from();
        for (double second = 0; second <= window->replay().to() - from; second += 0.25) {
            window->replay().setMoment(from + second);
            const auto chart = [&](SessionMeasure measure, int decimals, const char* unit) {
                const auto& series = window->view().charts().chart(measure).series();
                const double at = window->replay().moment() - from;
                const auto value = series.empty() ? std::nullopt : valueAt(series[0], at);
                const QString text = desktop::valueText(value, decimals);
                return value ? text + ' ' + unit : text;
            };
            EXPECT_EQ(gauge("strokeRateGauge"), chart(SessionMeasure::StrokeRate, 0, "1/min"));
            EXPECT_EQ(gauge("forceGauge"), chart(SessionMeasure::Force, 0, "N"));
            EXPECT_EQ(gauge("speedGauge"), chart(SessionMeasure::Speed, 2, "m/s"));
        }
    };
    compare("as it was read");
    const auto strokes = window->view().figures().strokes;
    const double begin = window->replay().from();
    window->view().select(MomentRange{begin + 16, begin + 22});
    window->edits().removeSelection();
    compare("with a stretch taken out");
    window->replay().setMoment(begin + 19);
    for (const char* const name : {"strokeRateGauge", "forceGauge", "speedGauge"})
        EXPECT_EQ(gauge(name), "–") << name << ", in the stretch";
    press(*window, Qt::CTRL | Qt::Key_Z);

    QTableView& table = *window->view().tables().view(SessionTables::StrokePage);
    table.setFocus();
    table.selectRow(10);
    press(table, Qt::Key_Delete);
    compare("without a stroke");
    window->replay().setMoment(strokes[10].time + 0.1);
    EXPECT_EQ(gauge("forceGauge"), "–") << "neither that of the stroke before nor of the next";
    window->replay().setMoment(strokes[9].time + 0.1);
    EXPECT_NE(gauge("forceGauge"), "–");
}

TEST_F(ShownSessionTest, WithoutPositionsTheRoomIsForTheChartsThatTellSomething) {
    const auto window = makeWindow();
    bmrawdata_v5 session = sample::upstreamDrill();
    session.gps.clear();
    session.heart.clear();
    ASSERT_TRUE(opens(*window, add("drill.kvb", encode(session))));
    window->resize(1280, 800);
    QApplication::processEvents();
    std::vector<desktop::SessionMeasure> shown;
    for (const auto measure : window->view().charts().measures())
        if (window->view().charts().chart(measure).isVisible())
            shown.push_back(measure);
    EXPECT_THAT(shown, ElementsAre(desktop::SessionMeasure::StrokeRate));
    const auto* const empty = window->findChild<QLabel*>("emptyCharts");
    EXPECT_TRUE(empty->isVisible());
    EXPECT_THAT(empty->text().toStdString(), HasSubstr("Force, Impulse, Phases: not known"));
    EXPECT_THAT(empty->text().toStdString(), HasSubstr("Heart rate: none was recorded"));

    // What has to be known about the figures is read whole.
    const auto* const remarks = window->findChild<QLabel*>("remarks");
    ASSERT_TRUE(remarks->isVisible());
    EXPECT_GE(remarks->height(), remarks->heightForWidth(remarks->width()));
    for (const QChar sign : remarks->text())
        EXPECT_TRUE(sign.unicode() < 0x2400 || sign.unicode() >= 0x2500)
            << "no sign for which a font has to be found";
    ASSERT_TRUE(opens(*window, add("whole.kvb", encode(sample::upstreamDrill()))));
    EXPECT_FALSE(empty->isVisible());
}

/// Without positions front and back may be swapped: no side is shown as if it were known.
TEST_F(ShownSessionTest, SidesAreUnknownUntilTheCoachNamesTheMount) {
    const auto window = makeWindow();
    bmrawdata_v5 session = sample::upstreamDrill();
    session.gps.clear();
    ASSERT_TRUE(opens(*window, add("drill.kvb", encode(session))));
    const auto hands = [&] {
        std::set<std::string> texts;
        const auto& rows = window->view().tables().gridOf(SessionTables::StrokePage)->rows;
        for (const SessionGrid::Row& row : rows)
            texts.insert(desktop::cellText(row.cells[2], 0).toStdString());
        return texts;
    };
    const auto rate = [&] {
        return window->findChild<desktop::Gauge*>("strokeRateGauge")
            ->accessibleName()
            .toStdString();
    };
    const auto* const balance = window->findChild<desktop::BalanceView*>();
    window->view().goToStroke(1);
    EXPECT_THAT(hands(), ElementsAre("–"));
    EXPECT_THAT(rate(), ::testing::EndsWith(", side unknown"));
    EXPECT_THAT(balance->accessibleDescription().toStdString(), HasSubstr("Side unknown"));
    window->view().tables().setCurrentIndex(SessionTables::BalancePage);
    (void)window->grab();

    auto* const name = window->findChild<QToolButton*>("nameMount");
    ASSERT_TRUE(name->isVisible());
    name->menu()->actions().at(1)->trigger();
    ASSERT_TRUE(rests(*window));
    EXPECT_THAT(hands(), ElementsAre("left", "right"));
    EXPECT_THAT(rate(),
                ::testing::AnyOf(::testing::EndsWith("left"), ::testing::EndsWith("right")));
    EXPECT_EQ(balance->accessibleDescription(), "");
    EXPECT_FALSE(name->isVisible());
    const std::string named = sessionOf(*window);
    press(*window, Qt::Key_F5);
    ASSERT_TRUE(rests(*window));
    EXPECT_EQ(sessionOf(*window), named) << "the mount stays named";
    press(*window, Qt::CTRL | Qt::Key_Z);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(hands(), ElementsAre("–"));
}

TEST_F(ShownSessionTest, TestSessionsOfEveryShapeAreShown) {
    varoTestAlldata ragged;
    ragged.test = {
        {1, {{{5}, "", {}, 0}, {{5}, "stroke", {1, 2, 3}, 1}, {{4}, "", {1e308}, -3}}, {}},
        {2, {}, {{{1e300}, 5, 150}, {{-1e300}, 6, 0}}},
        {2, {}, {}}};
    varoTestAlldata one;
    one.test = {{7, {{{5}, "All kinds", {1}, 0}}, {}}};
    desktop::TestSessionWindow window(m_workspace, desktop::Autosave(path("autosave")));
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    for (const auto* const session : {&ragged, &one}) {
        ASSERT_TRUE(window.open(add("test.json", encode(*session))));
        for (int place = 0; place < std::ssize(session->test); ++place) {
            window.chooseAttempt(place);
            auto& kinds = *window.findChild<QComboBox*>("kinds");
            for (int kind = 0; kind < kinds.count(); ++kind) {
                kinds.setCurrentIndex(kind);
                (void)window.grab();
                auto* const table = window.findChild<QTableView*>();
                for (int row = 0; row < window.table().rowCount(); ++row)
                    table->selectRow(row);
                if (!window.chart().content().series.empty())
                    emit window.chart().pointActivated(0, 0);
            }
        }
    }
    ASSERT_TRUE(window.open(add("none.json", encode(varoTestAlldata()))));
    EXPECT_EQ(window.table().rowCount(), 0) << "nothing of the session before is left";
    EXPECT_THAT(window.chart().content().series, IsEmpty());
    (void)window.grab();
    EXPECT_TRUE(window.close());
}

} // namespace
} // namespace kavela::test
