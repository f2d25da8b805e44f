#include "desktop/steps/first_steps.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/steps/steps_box.h"
#include "desktop/taking/taking_window.h"
#include "desktop/update/offer_dialog.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QUndoCommand>
#include <QUndoStack>

#include <memory>

namespace kavela::test {
namespace {

using desktop::FirstSteps;
using Step = FirstSteps::Step;

class FirstStepsTest : public ::testing::Test {
protected:
    FirstStepsTest() { m_workspace.setAlerts(&m_recorder); }

    [[nodiscard]] std::unique_ptr<desktop::Desktop> start() {
        auto program = std::make_unique<desktop::Desktop>(
            m_workspace,
            desktop::Autosave(QString::fromStdString((m_folder.path() / "kept").string())));
        program->showHome();
        return program;
    }

    static desktop::StepsBox* boxOf(const desktop::Desktop& program) {
        QWidget* const home = program.front();
        return home ? home->window()->findChild<desktop::StepsBox*>() : nullptr;
    }

    /// How many lines are ticked.
    static qsizetype ticked(const QWidget& box) {
        qsizetype count = 0;
        for (const QLabel* const label : box.findChildren<QLabel*>())
            count += label->text().startsWith("✓") ? 1 : 0;
        return count;
    }

    static QString example(const char* name) { return QString(KAVELA_EXAMPLES) + '/' + name; }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
};

TEST_F(FirstStepsTest, AreTickedWhenTheyAreDoneAndStayTickedAtTheNextStart) {
    {
        const auto program = start();
        const desktop::StepsBox* const box = boxOf(*program);
        ASSERT_TRUE(box);
        EXPECT_TRUE(box->isVisible());
        EXPECT_EQ(ticked(*box), 0);
        program->open(example("races/riverside_cup.kvx"));
        EXPECT_EQ(ticked(*box), 1);
        program->open(example("races/spring_opener.kvx"));
        EXPECT_EQ(ticked(*box), 1);
        desktop::TakingWindow* const taking =
            program->openTaking(example("races/spring_opener.kvx"));
        ASSERT_TRUE(taking);
        EXPECT_EQ(ticked(*box), 1) << "nothing was taken yet";
        taking->file()->undoStack().push(new QUndoCommand("Take a split"));
        EXPECT_EQ(ticked(*box), 2);
        taking->file()->undoStack().undo();
        EXPECT_EQ(ticked(*box), 2);
    }
    const auto program = start();
    ASSERT_TRUE(boxOf(*program)) << "recent files are of the steps themselves";
    EXPECT_EQ(ticked(*boxOf(*program)), 2);
}

TEST_F(FirstStepsTest, GoForGoodWhenTheyAreDismissed) {
    {
        const auto program = start();
        desktop::StepsBox* const box = boxOf(*program);
        ASSERT_TRUE(box);
        QTest::mouseClick(box->findChild<QPushButton*>("dismissSteps"), Qt::LeftButton);
        EXPECT_FALSE(box->isVisible());
    }
    EXPECT_FALSE(boxOf(*start()));
}

TEST_F(FirstStepsTest, AreNotShownOnceAllWereDoneNorToWhoKnowsTheProgram) {
    {
        FirstSteps steps(m_workspace);
        for (const Step step : {Step::Race, Step::Why, Step::Losses, Step::Film, Step::Report})
            steps.note(step);
        EXPECT_TRUE(steps.isOffered()) << "the last tick is seen";
    }
    EXPECT_FALSE(FirstSteps(m_workspace).isOffered());

    desktop::Workspace used(Preferences(m_folder.path() / "used.ini"), m_recorder.log(),
                            [] { return ReferenceDate{8e8}; });
    used.addRecentFile("/races/cup.kvx");
    EXPECT_FALSE(FirstSteps(used).isOffered());
    used.forgetRecentFile("/races/cup.kvx");
    EXPECT_FALSE(FirstSteps(used).isOffered()) << "nor later";
}

} // namespace
} // namespace kavela::test
