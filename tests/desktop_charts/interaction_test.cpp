#include "desktop/charts/chart_colours.h"
#include "desktop/charts/chart_csv.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/sensor_chart.h"
#include "desktop/charts/series_chart.h"

#include "desktop_charts/chart_races.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>

#include <cmath>

namespace kavela::test {

using namespace kavela::desktop;
using testing::HasSubstr;

namespace {

using View = std::pair<double, double>;

/// A chart of either kind that shows the same: two series over 0 to 100.
class Subject {
public:
    virtual ~Subject() = default;
    virtual QWidget& window() = 0;
    virtual QWidget& target() = 0; ///< that the mouse points at
    virtual InteractiveChart& chart() = 0;
    virtual PlotInteraction& interaction() = 0;
    virtual View view() = 0;
    virtual double pixelOf(double x) = 0;
    virtual std::optional<double> cursor() = 0;
};

class DrawnByLibrary : public Subject {
public:
    DrawnByLibrary() {
        ChartContent content;
        content.title = "Two lines";
        content.series = {{"Alpha", {}, ChartSeries::Form::Line, 0},
                          {"Beta", {}, ChartSeries::Form::Line, 1}};
        for (int x = 0; x <= 100; ++x) {
            content.series[0].points.emplace_back(x, x);
            content.series[1].points.emplace_back(x, 100 - x);
        }
        m_chart.show(content);
        QObject::connect(&m_chart, &SeriesChart::hoveredAt, [this](double x) { m_cursor = x; });
        QObject::connect(&m_chart, &SeriesChart::hoverEnded, [this] { m_cursor.reset(); });
    }
    QWidget& window() override { return m_chart; }
    QWidget& target() override { return m_chart.plot(); }
    InteractiveChart& chart() override { return m_chart; }
    PlotInteraction& interaction() override { return m_chart.interaction(); }
    View view() override {
        const QCPRange range = m_chart.plot().xAxis->range();
        return {range.lower, range.upper};
    }
    double pixelOf(double x) override { return m_chart.plot().toPixel(x, 0).x(); }
    std::optional<double> cursor() override { return m_cursor; }

private:
    SeriesChart m_chart;
    std::optional<double> m_cursor;
};

class OfSamples : public Subject {
public:
    OfSamples() {
        auto times = std::make_shared<std::vector<double>>();
        auto rising = std::make_shared<std::vector<double>>();
        auto falling = std::make_shared<std::vector<double>>();
        for (int x = 0; x <= 100; ++x) {
            times->push_back(x);
            rising->push_back(x);
            falling->push_back(100 - x);
        }
        m_chart.setTitle("Two lines");
        m_chart.setSeries({{"Alpha", "", times, rising, 0}, {"Beta", "", times, falling, 1}});
    }
    QWidget& window() override { return m_chart; }
    QWidget& target() override { return m_chart; }
    InteractiveChart& chart() override { return m_chart; }
    PlotInteraction& interaction() override { return m_chart.interaction(); }
    View view() override { return m_chart.view(); }
    double pixelOf(double x) override { return m_chart.pixelAt(x); }
    std::optional<double> cursor() override { return m_chart.cursor(); }

private:
    SensorChart m_chart;
};

class Interaction : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (std::string(GetParam()) == "samples")
            m_subject = std::make_unique<OfSamples>();
        else
            m_subject = std::make_unique<DrawnByLibrary>();
        showNow(m_subject->window());
        m_whole = view();
        target().setFocus();
    }

    QWidget& target() { return m_subject->target(); }
    InteractiveChart& chart() { return m_subject->chart(); }
    View view() {
        QCoreApplication::processEvents();
        return m_subject->view();
    }
    double width() { return view().second - view().first; }

    /// In the middle of the height.
    QPointF at(double x) { return {m_subject->pixelOf(x), chart().plotArea().center().y()}; }
    /// The moment that stands at a pixel.
    double momentAt(const QPointF& pixel) {
        const double zero = m_subject->pixelOf(0);
        return (pixel.x() - zero) / (m_subject->pixelOf(1) - zero);
    }

    /// Whether the chart used it.
    bool turnWheel(const QPointF& place, const QPoint& turned, Qt::KeyboardModifiers keys = {}) {
        QWheelEvent event(place, target().mapToGlobal(place), {}, turned, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        event.ignore();
        QCoreApplication::sendEvent(&target(), &event);
        return event.isAccepted();
    }

    void mouse(QEvent::Type type, const QPointF& place, Qt::MouseButton button,
               Qt::KeyboardModifiers keys = {}) {
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, place, target().mapToGlobal(place), isMove ? Qt::NoButton : button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, keys);
        QCoreApplication::sendEvent(&target(), &event);
    }

    void dragTo(const QPointF& from, const QPointF& to, Qt::MouseButton button,
                Qt::KeyboardModifiers keys = {}) {
        mouse(QEvent::MouseButtonPress, from, button, keys);
        mouse(QEvent::MouseMove, (from + to) / 2, button, keys);
        mouse(QEvent::MouseMove, to, button, keys);
    }

    void drag(const QPointF& from, const QPointF& to, Qt::MouseButton button,
              Qt::KeyboardModifiers keys = {}) {
        dragTo(from, to, button, keys);
        mouse(QEvent::MouseButtonRelease, to, button, keys);
    }

    /// Whether the chart used it.
    bool press(int key, Qt::KeyboardModifiers keys = {}) {
        QKeyEvent event(QEvent::KeyPress, key, keys);
        QCoreApplication::sendEvent(&target(), &event);
        return event.isAccepted();
    }

    QMenu* openMenu() {
        const QPoint place = at(50).toPoint();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, target().mapToGlobal(place));
        QCoreApplication::sendEvent(&target(), &event);
        return target().findChild<QMenu*>();
    }

    static QAction* entry(const QMenu& menu, const QString& text) {
        for (QAction* action : menu.actions())
            if (action->text().section('\t', 0, 0) == text)
                return action;
        return nullptr;
    }

    std::unique_ptr<Subject> m_subject;
    View m_whole;
};

/// How much of a picture has nearly that colour.
int pixelsOf(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += std::abs(pixel.red() - colour.red()) +
                                 std::abs(pixel.green() - colour.green()) +
                                 std::abs(pixel.blue() - colour.blue()) <
                             60
                         ? 1
                         : 0;
        }
    return count;
}

} // namespace

TEST_P(Interaction, WheelKeepsWhatIsUnderTheCursor) {
    for (const double x : {30.0, 55.0, 80.0}) {
        const QPointF place = at(x);
        const double before = width();
        ASSERT_TRUE(turnWheel(place, {0, 240}));
        EXPECT_LT(width(), before);
        EXPECT_NEAR(m_subject->pixelOf(x), place.x(), 0.5) << x;
        m_subject->chart().fit();
        QCoreApplication::processEvents(); // who turns the wheel again sees all of it drawn
    }
    turnWheel(at(60), {0, 600});
    const double narrow = width();
    const QPointF place = at(60);
    turnWheel(place, {0, -120});
    EXPECT_GT(width(), narrow);
    EXPECT_NEAR(m_subject->pixelOf(60), place.x(), 0.5) << "also on the way out";
}

TEST_P(Interaction, WheelLeavesThePageItsOwnAndPansWhenTilted) {
    EXPECT_FALSE(turnWheel(at(50), {0, 120}, Qt::ControlModifier)) << "the page around scrolls";
    EXPECT_EQ(view(), m_whole);
    turnWheel(at(50), {0, 480});
    const View zoomed = view();
    EXPECT_TRUE(turnWheel(at(50), {-120, 10}));
    EXPECT_GT(view().first, zoomed.first);
    EXPECT_NEAR(width(), zoomed.second - zoomed.first, 1e-9);
    EXPECT_TRUE(turnWheel(at(50), {0, 120}, Qt::ShiftModifier));
    EXPECT_NEAR(view().first, zoomed.first, 1e-9) << "and back again";
}

TEST_P(Interaction, DragsPan) {
    struct Way {
        const char* name;
        Qt::MouseButton button;
        Qt::KeyboardModifiers keys;
        bool isOnAxis;
    };
    for (const Way& way : {Way{"middle", Qt::MiddleButton, {}, false},
                           Way{"with Ctrl", Qt::LeftButton, Qt::ControlModifier, false},
                           Way{"on the axis", Qt::LeftButton, {}, true}}) {
        SCOPED_TRACE(way.name);
        m_subject->chart().fit();
        turnWheel(at(50), {0, 360});
        const double before = width();
        QPointF from = at(50);
        if (way.isOnAxis)
            from.setY(chart().plotArea().bottom() + 6);
        const QPointF to = from + QPointF(60, 0);
        const double held = momentAt(from);
        drag(from, to, way.button, way.keys);
        EXPECT_NEAR(width(), before, 1e-9);
        EXPECT_NEAR(momentAt(to), held, before / 200) << "what was taken hold of goes along";
        drag(from, from + QPointF(100000, 0), way.button, way.keys);
        EXPECT_NEAR(view().first, m_whole.first, 1e-9) << "nobody gets lost outside";
    }
}

TEST_P(Interaction, ALeftDragShowsItsRangeUnlessItIsTakenBack) {
    drag(at(20), at(40), Qt::LeftButton);
    EXPECT_NEAR(view().first, 20, 0.3);
    EXPECT_NEAR(view().second, 40, 0.3);
    m_subject->chart().fit();
    dragTo(at(20), at(40), Qt::LeftButton);
    EXPECT_TRUE(press(Qt::Key_Escape));
    mouse(QEvent::MouseButtonRelease, at(40), Qt::LeftButton);
    EXPECT_EQ(view(), m_whole);
    dragTo(at(20), at(40), Qt::LeftButton);
    drag(at(40), at(20), Qt::LeftButton);
    EXPECT_EQ(view(), m_whole) << "dragged back to where it began";
}

TEST_P(Interaction, DoubleClickKeyAndMenuShowEverythingAgain) {
    const auto zoomIn = [&] {
        turnWheel(at(50), {0, 360});
        ASSERT_NE(view(), m_whole);
    };
    zoomIn();
    QTest::mouseDClick(&target(), Qt::LeftButton, {}, at(50).toPoint());
    EXPECT_EQ(view(), m_whole);
    zoomIn();
    EXPECT_TRUE(press(Qt::Key_0));
    EXPECT_EQ(view(), m_whole);
    zoomIn();
    QMenu* const menu = openMenu();
    ASSERT_TRUE(menu);
    entry(*menu, "Show everything")->trigger();
    menu->close();
    EXPECT_EQ(view(), m_whole);
}

TEST_P(Interaction, KeysZoomAtTheCursorAndMoveIt) {
    mouse(QEvent::MouseMove, at(70), Qt::NoButton);
    ASSERT_TRUE(m_subject->cursor());
    const double cursor = *m_subject->cursor();
    EXPECT_NEAR(cursor, 70, 0.6);
    const double place = m_subject->pixelOf(cursor);
    EXPECT_TRUE(press(Qt::Key_Plus));
    EXPECT_LT(width(), 70);
    EXPECT_NEAR(m_subject->pixelOf(cursor), place, 0.5);

    EXPECT_TRUE(press(Qt::Key_Right));
    const double step = *m_subject->cursor() - cursor;
    EXPECT_GT(step, 0);
    EXPECT_TRUE(press(Qt::Key_Left, Qt::ShiftModifier));
    EXPECT_NEAR(*m_subject->cursor(), cursor - 9 * step, step / 10);
    const View before = view();
    for (int i = 0; i < 100 && *m_subject->cursor() > before.first - 5; ++i)
        press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_LT(view().first, before.first) << "the view follows the cursor over its edge";
    EXPECT_GE(*m_subject->cursor(), view().first - 1e-9);

    const View here = view();
    EXPECT_TRUE(press(Qt::Key_Right, Qt::ControlModifier));
    EXPECT_GT(view().first, here.first);
    EXPECT_TRUE(press(Qt::Key_Minus));
    EXPECT_GT(width(), here.second - here.first);
}

TEST_P(Interaction, KeysGoOnToTheWindowWhereTheChartHasNoUseForThem) {
    mouse(QEvent::MouseMove, at(70), Qt::NoButton);
    EXPECT_FALSE(press(Qt::Key_Escape)) << "the cursor of the mouse keeps no dialog open";
    press(Qt::Key_Right);
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_FALSE(m_subject->cursor());
    EXPECT_FALSE(press(Qt::Key_Space)) << "no name is chosen: the film plays";
    EXPECT_FALSE(press(Qt::Key_Left, Qt::AltModifier));
    EXPECT_FALSE(press(Qt::Key_0, Qt::ControlModifier));
    EXPECT_FALSE(press(Qt::Key_M));
}

TEST_P(Interaction, KeysChooseANameHideItsSeriesAndShowItAlone) {
    EXPECT_TRUE(press(Qt::Key_Down));
    EXPECT_TRUE(press(Qt::Key_Space));
    EXPECT_TRUE(chart().hidesSeries());
    EXPECT_EQ(chart().csv().section('\n', 0, 0).count(';'), 1) << "one series is left";
    EXPECT_TRUE(press(Qt::Key_Space));
    EXPECT_FALSE(chart().hidesSeries());
    EXPECT_TRUE(press(Qt::Key_Return));
    EXPECT_EQ(chart().csv().section('\n', 0, 0).count(';'), 1);
    QMenu* const menu = openMenu();
    ASSERT_TRUE(menu);
    entry(*menu, "Show all series")->trigger();
    menu->close();
    EXPECT_EQ(chart().csv().section('\n', 0, 0).count(';'), 2);
}

TEST_P(Interaction, SavesAndCopiesWhatIsSeen) {
    drag(at(19.5), at(40.5), Qt::LeftButton);
    chart().toggleSeries(1);
    QCoreApplication::processEvents();
    const QTemporaryDir folder;
    const auto saved = [&](const QString& name) {
        // The dialog that asks is answered as a user would.
        QTimer::singleShot(0, &target(), [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            EXPECT_EQ(dialog->defaultSuffix(), QFileInfo(name).suffix());
            dialog->selectFile(folder.filePath(name));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        QSignalSpy told(&m_subject->interaction(), &PlotInteraction::saved);
        m_subject->interaction().askAndSave(QFileInfo(name).suffix());
        EXPECT_EQ(told.size(), 1);
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    };
    const QString table = saved("chart.csv");
    EXPECT_EQ(table.count('\n'), 22) << "the titles, and 20 to 40";
    EXPECT_THAT(table.toStdString(), HasSubstr("\n30;30\n"));

    const std::string drawing = saved("chart.svg").toStdString();
    EXPECT_THAT(drawing, HasSubstr(">Two lines<")) << "text stays text";
    const QPalette colours = m_subject->window().palette();
    EXPECT_THAT(drawing, HasSubstr(seriesStyle(0, colours).colour.name().toStdString()));

    const QImage picture = QImage::fromData(saved("chart.png"), "PNG");
    EXPECT_GE(picture.width(), 1900) << "twice as dense as the screen";
    EXPECT_GT(pixelsOf(picture, seriesStyle(0, colours).colour), 100);
    EXPECT_LT(pixelsOf(picture, seriesStyle(1, colours).colour), 20) << "it is hidden";

    QMenu* const menu = openMenu();
    ASSERT_TRUE(menu);
    entry(*menu, "Copy the values")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), tabSeparated(table));
    entry(*menu, "Copy the picture")->trigger();
    menu->close();
    EXPECT_FALSE(QApplication::clipboard()->image().isNull());
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasFormat("image/svg+xml"));
}

INSTANTIATE_TEST_SUITE_P(OfEveryChart, Interaction, testing::Values("library", "samples"),
                         [](const auto& kind) { return std::string(kind.param); });

TEST(ChartCsv, IsPastedWithTabs) {
    EXPECT_EQ(tabSeparated("Place;\"a;b\"\n1;\"say \"\"no\"\"\"\n2;\"two\nlines\"\n"),
              "Place\ta;b\n1\tsay \"no\"\n2\ttwo lines\n");
}

} // namespace kavela::test
