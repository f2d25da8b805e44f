#include "desktop/document_fixture.h"

/// What every document does: it is written beside the window, and undone in steps that share.
namespace kavela::test {
namespace {

TEST_F(DocumentTest, SavesBesideTheWindowWhatItWasWhenItWasAsked) {
    Numbers document(m_workspace, autosave());
    document.startAt(pathText(file("a.txt")));
    document.add(1);
    std::vector<bool> answers;
    {
        const SlowDisk slow;
        document.saveBeside(nullptr, [&](bool isSaved) { answers.push_back(isSaved); });
        EXPECT_TRUE(document.isSaving());
        EXPECT_THAT(answers, IsEmpty()) << "the window goes on";
        document.add(2);
    }
    QTRY_COMPARE(answers.size(), 1UL);
    EXPECT_THAT(answers, ElementsAre(true));
    EXPECT_EQ(readTextFile(file("a.txt")), "1\n");
    EXPECT_TRUE(document.isDirty()) << "the second number is in no file";
    {
        const SlowDisk slow; // pressed twice: the second press writes what came between
        document.saveBeside(nullptr);
        document.add(3);
        document.saveBeside(nullptr);
    }
    QTRY_VERIFY(!document.isDirty());
    EXPECT_EQ(readTextFile(file("a.txt")), "1\n2\n3\n");
    document.undoStack().undo();
    EXPECT_TRUE(document.isDirty());
}

TEST_F(DocumentTest, StaysUnsavedWhereWritingFails) {
    Numbers document(m_workspace, autosave());
    document.startAt(pathText(file("gone") / "a.txt"));
    document.add(1);
    bool isSaved = true;
    document.saveBeside(nullptr, [&](bool answer) { isSaved = answer; });
    QTRY_VERIFY(!isSaved);
    EXPECT_TRUE(document.isDirty());
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    fs::create_directory(file("gone"));
    EXPECT_TRUE(saved(document));
    EXPECT_FALSE(document.isDirty());
}

TEST_F(DocumentTest, SavesAgainUnderTheNameThatIsStillBeingWritten) {
    Numbers document(m_workspace, autosave());
    document.startAt(pathText(file("a.txt")));
    document.add(1);
    {
        const SlowDisk slow;
        document.saveAsBeside(pathText(file("b.txt")), nullptr);
        document.add(2);
        document.saveBeside(nullptr);
    }
    QTRY_VERIFY(!document.isDirty());
    EXPECT_EQ(readTextFile(file("b.txt")), "1\n2\n");
    EXPECT_FALSE(fs::exists(file("a.txt")));
}

TEST_F(DocumentTest, WhatWaitsForAWriteThatFailsHearsOfItAndAsksNoSecondTime) {
    Numbers document(m_workspace, autosave());
    document.startAt(pathText(file("gone") / "a.txt"));
    document.add(1);
    int asked = 0;
    m_workspace.setChoice([&](const Alert&, const QStringList&) {
        ++asked;
        return 2; // later
    });
    std::vector<bool> answers;
    const auto answer = [&](bool isSaved) { answers.push_back(isSaved); };
    {
        const SlowDisk slow;
        document.saveBeside(nullptr, answer);
        document.saveBeside(nullptr, answer);
        document.whenWritten(answer);
        document.saveAsBeside(pathText(file("b.txt")), nullptr, answer);
    }
    QTRY_COMPARE(answers.size(), 4UL);
    EXPECT_THAT(answers, ElementsAre(false, false, false, true));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(readTextFile(file("b.txt")), "1\n") << "another place is another try";
}

TEST_F(DocumentTest, LeavesAWayOutWhereItCannotBeSaved) {
    Numbers document(m_workspace, autosave());
    document.startAt(pathText(file("gone") / "a.txt"));
    document.add(1);
    QStringList ways;
    std::string told;
    int way = 0;
    m_workspace.setChoice([&](const Alert& question, const QStringList& choices) {
        ways = choices;
        told = question.text;
        if (way == 0)
            fs::create_directory(file("gone"));
        return way;
    });
    document.setAskPath([this] { return pathText(file("elsewhere.txt")); });
    way = 1;
    EXPECT_TRUE(saved(document));
    EXPECT_EQ(readTextFile(file("elsewhere.txt")), "1\n");
    EXPECT_THAT(told, HasSubstr("a.txt: "));
    EXPECT_THAT(told, HasSubstr("kept apart, and offered"));
    EXPECT_THAT(told, HasSubstr('\n' + file("gone").string() + '\n'));
    EXPECT_EQ(ways, (QStringList{"Try again", "Save as…", "Later"}));

    document.startAt(pathText(file("gone") / "b.txt"));
    document.add(2);
    way = 2;
    EXPECT_FALSE(saved(document));
    EXPECT_TRUE(document.isDirty());
    EXPECT_TRUE(autosave().find(document.path()));
    way = 0;
    bool isSaved = false;
    document.saveBeside(nullptr, [&](bool answer) { isSaved = answer; });
    QTRY_VERIFY(isSaved);
    EXPECT_EQ(readTextFile(file("gone") / "b.txt"), "2\n");
}

TEST_F(DocumentTest, ShowsWhatAnotherProgramWroteBeforeItIsReplaced) {
    Numbers document(m_workspace, autosave());
    document.startAt(pathText(file("a.txt")));
    document.add(1);
    ASSERT_TRUE(saved(document));
    document.add(2);
    std::ofstream(file("a.txt")) << "of another program";
    QStringList opened;
    QObject::connect(&m_workspace, &desktop::Workspace::openRequested,
                     [&](const QString& path) { opened.append(path); });
    int way = 1;
    m_workspace.setChoice([&](const Alert&, const QStringList& choices) {
        EXPECT_EQ(choices, (QStringList{"Replace it", "Look at the other", "Save as…"}));
        return way;
    });
    EXPECT_FALSE(saved(document));
    ASSERT_THAT(opened, SizeIs(1));
    EXPECT_NE(opened[0], document.path());
    EXPECT_EQ(readTextFile(opened[0].toStdString()), "of another program");
    EXPECT_TRUE(document.isDirty());
    way = 2;
    document.setAskPath([this] { return pathText(file("mine.txt")); });
    EXPECT_TRUE(saved(document));
    EXPECT_EQ(readTextFile(file("a.txt")), "of another program");
    EXPECT_EQ(readTextFile(file("mine.txt")), "1\n2\n");
}

TEST_F(DocumentTest, RefusesToWriteOverAFileOfAnotherWindow) {
    Numbers theirs(m_workspace, autosave());
    theirs.startAt(pathText(file("theirs.txt")));
    theirs.add(1);
    ASSERT_TRUE(saved(theirs));
    fs::create_symlink(file("theirs.txt"), file("link.txt"));
    Numbers mine(m_workspace, autosave());
    mine.startAt(pathText(file("mine.txt")));
    mine.add(2);
    for (const char* name : {"theirs.txt", "link.txt"})
        EXPECT_FALSE(savedAs(mine, pathText(file(name)))) << name;
    EXPECT_THAT(m_recorder.alerts, SizeIs(2));
    EXPECT_EQ(readTextFile(file("theirs.txt")), "1\n");
    EXPECT_TRUE(mine.isDirty());
}

TEST_F(DocumentTest, StepsOfUndoHoldOnlyWhatTheyChanged) {
    constexpr int Size = 200;
    constexpr int Edits = 50;
    Numbers document(m_workspace, autosave());
    document.startAt(pathText(file("a.txt")));
    document.edit("many", [](Counted& value) {
        for (int i = 0; i < Size; ++i)
            value.entries.emplace_back(i);
    });
    for (int i = 0; i < Edits; ++i)
        document.edit("one", [&](Counted& value) { value.entries[7].number = Size + i; });
    EXPECT_LE(Entry::alive, 2 * Size + Edits + 1) << "the value, its parts, and one for each step";
    for (int i = 0; i < Edits; ++i)
        document.undoStack().undo();
    EXPECT_EQ(document.numbers().at(7), 7);
    EXPECT_THAT(document.numbers(), SizeIs(Size));
    document.undoStack().redo();
    EXPECT_EQ(document.numbers().at(7), Size);
}

/// One line in the table is all that a tool needs to be found everywhere.
TEST_F(DocumentTest, EveryToolOfTheTableMakesAWindowOfItsKind) {
    for (const desktop::ToolKind& tool : desktop::toolKinds()) {
        const std::unique_ptr<desktop::ToolWindow> window(tool.make(m_workspace, autosave()));
        EXPECT_EQ(window->kind(), tool.kind);
        EXPECT_EQ(desktop::toolFor(tool.opens), &tool);
    }
}

} // namespace
} // namespace kavela::test
