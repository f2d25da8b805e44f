#include "desktop/course/course_editor.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/race_fixture.h"
#include "desktop/shell/key_overlay.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/taking_window.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QBuffer>
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

namespace kavela::test {
namespace {

using desktop::CourseEditor;
using desktop::CourseTool;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Four gates, of which the second is upstream, and two splits.
infodata031 fourGates() {
    infodata031 info;
    info.gates = 4;
    info.upGates = {2};
    info.totalsplits = 2;
    info.splitTitles = {"Weir", "Finish"};
    return info;
}

Blob pictureOf(int width, int height, const char* format) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return Blob{std::vector<unsigned char>(bytes.begin(), bytes.end())};
}

class CourseEditorTest : public ::testing::Test {
protected:
    CourseEditorTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return m_answer;
        });
    }

    CourseEditor& edit(const infodata031& info) {
        m_editor = std::make_unique<CourseEditor>(info, m_workspace, nullptr);
        m_editor->show();
        QApplication::setActiveWindow(m_editor.get());
        m_editor->canvas().setFocus();
        QApplication::processEvents();
        return *m_editor;
    }

    desktop::CourseCanvas& canvas() { return m_editor->canvas(); }
    const coursedesign001& design() { return canvas().draft().design; }
    QPoint at(double x, double y) { return canvas().placeOf({x, y}).toPoint(); }

    void drag(const std::vector<coursepoint001>& way) {
        QTest::mousePress(&canvas(), Qt::LeftButton, {}, at(way.front().x, way.front().y));
        for (const coursepoint001& point : way)
            QTest::mouseMove(&canvas(), at(point.x, point.y));
        QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, at(way.back().x, way.back().y));
    }
    void click(double x, double y) { QTest::mouseClick(&canvas(), Qt::LeftButton, {}, at(x, y)); }
    void press(Qt::Key key) { QTest::keyClick(&canvas(), key); }
    QString hint() { return m_editor->findChild<QLabel*>("courseHint")->text(); }

    std::vector<std::int64_t> numbers() {
        std::vector<std::int64_t> numbers;
        for (const coursegate001& gate : design().gates)
            numbers.push_back(gate.number);
        return numbers;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    bool m_answer = true;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    std::unique_ptr<CourseEditor> m_editor;
};

TEST_F(CourseEditorTest, ShowsItsKeysLikeEveryWindow) {
    const CourseEditor& editor = edit(fourGates());
    press(Qt::Key_Question);
    QStringList told;
    for (const auto* const overlay : editor.findChildren<desktop::KeyOverlay*>())
        for (const QLabel* const label : overlay->findChildren<QLabel*>())
            if (label->isVisible())
                told << label->text();
    for (const char* const key : {"Tab", "PgDown", "Ins", "Ctrl+Z", "?"})
        EXPECT_TRUE(told.contains(key)) << key;
}

TEST_F(CourseEditorTest, GatesCountUpFillGapsAndEndWithTheRace) {
    edit(fourGates());
    EXPECT_EQ(canvas().tool(), CourseTool::Gate) << "a new drawing begins with gates";
    for (const double x : {0.2, 0.4, 0.6})
        click(x, 0.3);
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 3));
    canvas().select(CoursePart{CoursePart::Kind::Gate, 1});
    press(Qt::Key_Delete);
    EXPECT_THAT(numbers(), ElementsAre(1, 3));
    click(0.7, 0.3);
    click(0.8, 0.3);
    EXPECT_THAT(numbers(), ElementsAre(1, 3, 2, 4));
    click(0.9, 0.3);
    EXPECT_THAT(numbers(), SizeIs(4));
    EXPECT_THAT(hint().toStdString(), HasSubstr("All 4 gates"));
    drag({{0.2, 0.3}, {0.2, 0.4}}); // no gate is left to be dragged either
    EXPECT_THAT(numbers(), SizeIs(4));
}

TEST_F(CourseEditorTest, DraggingWhileAGateIsPutTurnsItAndPullingAPoleTurnsItAgain) {
    edit(fourGates());
    drag({{0.3, 0.3}, {0.4, 0.3}, {0.5, 0.3}});
    ASSERT_THAT(design().gates, SizeIs(1));
    const coursegate001 put = design().gates[0];
    EXPECT_NEAR(put.left.y, put.right.y, 0.01) << "its poles lie as the hand went";
    EXPECT_GT(put.right.x, put.left.x);
    const double width = put.right.x - put.left.x;
    m_editor->setTool(CourseTool::Hold);
    drag({put.right, {put.left.x, 0.4}, {put.left.x, 0.5}});
    const coursegate001 turned = design().gates[0];
    EXPECT_NEAR(turned.right.y - turned.left.y, width, 0.01);
    EXPECT_EQ(m_editor->steps().count(), 2) << "a drag is one step";
    m_editor->steps().undo();
    EXPECT_EQ(design().gates[0].right, put.right);
    m_editor->steps().undo();
    EXPECT_THAT(design().gates, IsEmpty());
}

TEST_F(CourseEditorTest, ADrawingIsMadeMovedAndTakenBackByKeysAlone) {
    edit(fourGates());
    press(Qt::Key_Insert);
    press(Qt::Key_Insert);
    m_editor->setTool(CourseTool::Bank);
    press(Qt::Key_Insert);
    ASSERT_THAT(design().banks, SizeIs(1));
    canvas().select({});
    press(Qt::Key_Tab);
    EXPECT_EQ(canvas().selected(), (CoursePart{CoursePart::Kind::Gate, 0}));
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(canvas().selected(), (CoursePart{CoursePart::Kind::Bank, 0}));
    const auto before = design().banks[0];
    const int steps = m_editor->steps().count();
    press(Qt::Key_PageDown);
    for (int i = 0; i < 5; ++i)
        press(Qt::Key_Down);
    EXPECT_GT(design().banks[0][0].y, before[0].y) << "its first point alone";
    EXPECT_EQ(design().banks[0][1], before[1]);
    EXPECT_EQ(m_editor->steps().count(), steps + 1) << "a key that is held down is one step";
    m_editor->steps().undo();
    EXPECT_EQ(design().banks[0], before);
    press(Qt::Key_Escape);
    EXPECT_FALSE(canvas().selected());
    EXPECT_TRUE(m_editor->isVisible()) << "the first Esc only lets go";
}

TEST_F(CourseEditorTest, DirectionsStayWithTheRaceAndNamesWithTheDrawing) {
    CourseEditor& editor = edit(fourGates());
    click(0.2, 0.3);
    auto* const upstream = editor.findChild<QCheckBox*>("partUpstream");
    EXPECT_FALSE(upstream->isChecked());
    upstream->click();
    click(0.4, 0.3);
    EXPECT_TRUE(upstream->isChecked()) << "gate 2 was upstream before anything was drawn";
    editor.setAskText([] { return QStringLiteral("Big eddy"); });
    editor.setTool(CourseTool::Text);
    click(0.5, 0.5);
    editor.accept();
    EXPECT_EQ(editor.result(), QDialog::Accepted);
    EXPECT_THAT(editor.info().upGates, ElementsAre(1, 2));
    const auto stored = courseIn(editor.info().coursedesign);
    ASSERT_TRUE(stored);
    EXPECT_THAT(stored->design.gates, SizeIs(2));
    ASSERT_THAT(stored->design.texts, SizeIs(1));
    EXPECT_EQ(stored->design.texts[0].text, "Big eddy");
}

TEST_F(CourseEditorTest, AForeignPictureStaysByteForByteUntilItIsDrawnUpon) {
    infodata031 info = fourGates();
    info.coursedesign = pictureOf(400, 100, "JPG");
    edit(info).accept();
    EXPECT_EQ(m_editor->info().coursedesign, info.coursedesign);
    CourseEditor& editor = edit(info);
    EXPECT_EQ(design().background, info.coursedesign);
    EXPECT_EQ(canvas().draft().heightOfWidth, 0.25);
    click(0.5, 0.1);
    editor.accept();
    const auto stored = courseIn(editor.info().coursedesign);
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->design.background, info.coursedesign) << "below the drawing, as it was";
    EXPECT_NEAR(stored->heightOfWidth, 0.25, 0.01);
}

TEST_F(CourseEditorTest, TellsWhatIsWrongWithAPhotoAndKeepsTheDrawing) {
    CourseEditor& editor = edit(fourGates());
    click(0.2, 0.3);
    editor.usePhoto(QString::fromStdString(m_folder.add("plan.pdf", "%PDF-1.4").string()));
    ASSERT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_recorder.alerts[0], HasSubstr("plan.pdf: This is no picture"));
    editor.usePhoto(QString::fromStdString(
        m_folder.add("huge.jpg", std::string(report::MostPhotoBytes + 1'000'000, 'x')).string()));
    ASSERT_THAT(m_recorder.alerts, SizeIs(2));
    EXPECT_THAT(m_recorder.alerts[1], HasSubstr("huge.jpg: It has 41 MB."));
    const Blob photo = pictureOf(3000, 2000, "PNG");
    editor.usePhoto(QString::fromStdString(
        m_folder.add("photo.png", std::string(photo.bytes.begin(), photo.bytes.end())).string()));
    EXPECT_NEAR(canvas().draft().heightOfWidth, 2.0 / 3, 0.01);
    EXPECT_THAT(numbers(), ElementsAre(1));
    editor.findChild<QPushButton*>("white")->click();
    EXPECT_TRUE(design().background.bytes.empty());
}

TEST_F(CourseEditorTest, AsksBeforeADrawingIsLost) {
    CourseEditor& editor = edit(fourGates());
    click(0.2, 0.3);
    m_answer = false;
    editor.reject();
    EXPECT_TRUE(editor.isVisible());
    EXPECT_THAT(m_questions, SizeIs(1));
    editor.steps().undo();
    editor.reject();
    EXPECT_FALSE(editor.isVisible());
    EXPECT_THAT(m_questions, SizeIs(1)) << "nothing is lost any more";
    EXPECT_TRUE(editor.info().coursedesign.bytes.empty());
}

TEST_F(CourseEditorTest, ZoomsAtThePointerAndMovesWhatIsSeen) {
    edit(fourGates());
    click(0.8, 0.4);
    m_editor->setTool(CourseTool::Hold);
    const QPoint gate = at(0.8, 0.4);
    const auto turnWheel = [this](const QPoint& place, int notches) {
        QWheelEvent wheel(place, canvas().mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&canvas(), &wheel);
    };
    turnWheel(gate, 6);
    EXPECT_GT(canvas().zoom().factor(), 3);
    EXPECT_LE((at(0.8, 0.4) - gate).manhattanLength(), 2) << "it stays below the pointer";
    canvas().select(CoursePart{CoursePart::Kind::Gate, 0});
    const double before = design().gates[0].left.x;
    press(Qt::Key_Right);
    const double one = design().gates[0].left.x - before;
    QTest::keyClick(&canvas(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_NEAR(design().gates[0].left.x - before, 11 * one, 1e-9);
    EXPECT_NEAR(at(0.8 + one, 0.4).x(), gate.x() + 1, 1) << "one pixel as it is shown";

    const int steps = m_editor->steps().count();
    const auto pan = [this](Qt::MouseButton button) {
        const QPoint from = canvas().rect().center();
        const QPoint shown = at(0.8, 0.4);
        QTest::mousePress(&canvas(), button, {}, from);
        QTest::mouseMove(&canvas(), from + QPoint(-30, 20));
        QTest::mouseRelease(&canvas(), button, {}, from + QPoint(-30, 20));
        return at(0.8, 0.4) - shown;
    };
    EXPECT_LE((pan(Qt::MiddleButton) - QPoint(-30, 20)).manhattanLength(), 2);
    QTest::keyPress(&canvas(), Qt::Key_Space);
    EXPECT_LE((pan(Qt::LeftButton) - QPoint(-30, 20)).manhattanLength(), 2);
    QTest::keyRelease(&canvas(), Qt::Key_Space);
    EXPECT_EQ(m_editor->steps().count(), steps) << "who looks round changes nothing";

    turnWheel(canvas().rect().topLeft(), 3);
    canvas().select({});
    press(Qt::Key_0);
    EXPECT_TRUE(canvas().zoom().showsAll());
    EXPECT_LE((at(0.8, 0.4) - gate).manhattanLength(), 1) << "as at first";
    press(Qt::Key_Minus);
    EXPECT_TRUE(canvas().zoom().showsAll()) << "smaller than it fits is of no use";
    turnWheel(at(0.05, 0.05), 10);
    press(Qt::Key_Tab);
    EXPECT_TRUE(canvas().rect().contains(at(0.8, 0.4))) << "what the keys select comes into sight";
}

/// Through the analyzer, as most races are open there.
TEST_F(RaceWindowTest, ItsCourseIsDrawnIntoSplitTakingAsOneStep) {
    RaceWindow* const race = open(copyOf(Examples / "races" / "spring_opener.kvx"));
    ASSERT_TRUE(race);
    QTimer waiting; // for the editor, which is in the way of everything else
    QObject::connect(&waiting, &QTimer::timeout, &waiting, [&waiting] {
        auto* const editor = qobject_cast<CourseEditor*>(QApplication::activeModalWidget());
        if (!editor)
            return;
        waiting.stop();
        QTest::mouseClick(&editor->canvas(), Qt::LeftButton, {},
                          editor->canvas().placeOf({0.5, 0.3}).toPoint());
        editor->accept();
    });
    waiting.start(10);
    trigger(*race, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G));
    ASSERT_THAT(m_desktop.windowsOf<desktop::TakingWindow>(), SizeIs(1));
    desktop::TakingDocument& document =
        m_desktop.windowsOf<desktop::TakingWindow>().front()->document();
    const auto stored = courseIn(document.info().coursedesign);
    ASSERT_TRUE(stored);
    EXPECT_THAT(stored->design.gates, SizeIs(1));
    EXPECT_EQ(document.undoStack().count(), 1);
    document.undoStack().undo();
    EXPECT_TRUE(document.info().coursedesign.bytes.empty());
}

TEST_F(RaceWindowTest, ADrawingIsUnsavedWorkWhileItIsDrawnAndOneStepInTheEnd) {
    RaceWindow* const race = open(copyOf(Examples / "races" / "spring_opener.kvx"));
    ASSERT_TRUE(race);
    std::vector<std::size_t> gates; // as the document had them after each stroke of the hand
    bool isAccepted = true;
    QTimer waiting;
    QObject::connect(&waiting, &QTimer::timeout, &waiting, [&] {
        auto* const editor = qobject_cast<CourseEditor*>(QApplication::activeModalWidget());
        if (!editor)
            return;
        waiting.stop();
        desktop::TakingDocument& document =
            m_desktop.windowsOf<desktop::TakingWindow>().front()->document();
        for (const double x : {0.3, 0.6}) {
            QSignalSpy drawn(editor, &CourseEditor::drawn);
            QTest::mouseClick(&editor->canvas(), Qt::LeftButton, {},
                              editor->canvas().placeOf({x, 0.3}).toPoint());
            EXPECT_TRUE(drawn.wait(4 * CourseEditor::KeepPause));
            EXPECT_TRUE(document.isDirty());
            const auto course = courseIn(document.info().coursedesign);
            gates.push_back(course ? course->design.gates.size() : 0);
        }
        isAccepted ? editor->accept() : editor->reject();
    });
    waiting.start(10);
    trigger(*race, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G));
    ASSERT_THAT(m_desktop.windowsOf<desktop::TakingWindow>(), SizeIs(1));
    desktop::TakingWindow& taking = *m_desktop.windowsOf<desktop::TakingWindow>().front();
    desktop::TakingDocument& document = taking.document();
    EXPECT_THAT(gates, ElementsAre(1, 2));
    EXPECT_EQ(document.undoStack().count(), 1);
    document.undoStack().undo();

    isAccepted = false;
    m_workspace.setAnswer([](const Alert&) { return true; });
    waiting.start(10);
    for (QAction* const action : taking.findChildren<QAction*>())
        if (action->shortcuts().contains(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G)))
            action->trigger();
    EXPECT_THAT(gates, ElementsAre(1, 2, 1, 2));
    EXPECT_FALSE(document.isDirty()) << "given up as asked";
    EXPECT_TRUE(document.info().coursedesign.bytes.empty());
}

} // namespace
} // namespace kavela::test
