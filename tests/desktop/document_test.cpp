#include "desktop/shell/document.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "common/text_file.h"
#include "desktop/desktop.h"
#include "desktop/saving.h"
#include "desktop/shell/autosave_place.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/home_window.h"
#include "desktop/slow_disk.h"
#include "desktop/team/team_window.h"
#include "desktop/tools.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QListWidget>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <sstream>

/// What every document does: it is written beside the window, kept, and undone in steps that
/// share.

namespace kavela::test {

namespace {

/// An entry that counts how many of it there are.
struct Entry {
    static inline int alive = 0;

    explicit Entry(int value = 0) : number(value) { ++alive; }
    Entry(const Entry& other) : number(other.number) { ++alive; }
    Entry(Entry&& other) noexcept : number(other.number) { ++alive; }
    Entry& operator=(const Entry&) = default;
    Entry& operator=(Entry&&) noexcept = default;
    ~Entry() { --alive; }

    friend bool operator==(const Entry& a, const Entry& b) { return a.number == b.number; }

    int number;
};

struct Counted {
    std::vector<Entry> entries;
};

} // namespace
} // namespace kavela::test

namespace kavela::desktop {

template <>
struct LargeParts<test::Counted> {
    static constexpr auto lists = std::tuple([](auto& value) -> auto& { return value.entries; });
    static constexpr auto wholes = std::tuple();
};

} // namespace kavela::desktop

namespace kavela::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace fs = std::filesystem;

QString qtText(const fs::path& path) {
    return QString::fromStdString(path.string());
}

/// A document of numbers, a line each.
class Numbers : public desktop::Document<Counted> {
public:
    using Document::Document;
    ~Numbers() override { keepPending(); }

    void startAt(const QString& path) { start({}, path, nullptr); }
    void add(int number) {
        edit("number", [&](Counted& value) { value.entries.emplace_back(number); });
    }
    [[nodiscard]] std::vector<int> numbers() const {
        std::vector<int> numbers;
        for (const Entry& entry : value().entries)
            numbers.push_back(entry.number);
        return numbers;
    }

protected:
    [[nodiscard]] Content contentNow() const override {
        return [numbers = numbers()] {
            std::string text;
            for (const int number : numbers)
                text += std::to_string(number) + '\n';
            return text;
        };
    }
    [[nodiscard]] bool recover(const std::string& content) override {
        Counted value;
        std::istringstream lines(content);
        for (int number = 0; lines >> number;)
            value.entries.emplace_back(number);
        startFrom(std::move(value));
        return true;
    }
    [[nodiscard]] QString summary() const override {
        return QString("%1 numbers").arg(numbers().size());
    }
};

class DocumentTest : public ::testing::Test {
protected:
    DocumentTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return true;
        });
    }
    ~DocumentTest() override { desktop::disk::waitForAll(); }

    [[nodiscard]] fs::path file(const char* name) const { return m_folder.path() / name; }
    [[nodiscard]] desktop::Autosave autosave() const {
        return desktop::Autosave(qtText(file("kept")));
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
};

TEST_F(DocumentTest, SavesBesideTheWindowWhatItWasWhenItWasAsked) {
    Numbers document(m_workspace, autosave());
    document.startAt(qtText(file("a.txt")));
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
    document.startAt(qtText(file("gone") / "a.txt"));
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
    document.startAt(qtText(file("a.txt")));
    document.add(1);
    {
        const SlowDisk slow;
        document.saveAsBeside(qtText(file("b.txt")), nullptr);
        document.add(2);
        document.saveBeside(nullptr);
    }
    QTRY_VERIFY(!document.isDirty());
    EXPECT_EQ(readTextFile(file("b.txt")), "1\n2\n");
    EXPECT_FALSE(fs::exists(file("a.txt")));
}

TEST_F(DocumentTest, WhatWaitsForAWriteThatFailsHearsOfItAndAsksNoSecondTime) {
    Numbers document(m_workspace, autosave());
    document.startAt(qtText(file("gone") / "a.txt"));
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
        document.saveAsBeside(qtText(file("b.txt")), nullptr, answer);
    }
    QTRY_COMPARE(answers.size(), 4UL);
    EXPECT_THAT(answers, ElementsAre(false, false, false, true));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(readTextFile(file("b.txt")), "1\n") << "another place is another try";
}

TEST_F(DocumentTest, LeavesAWayOutWhereItCannotBeSaved) {
    Numbers document(m_workspace, autosave());
    document.startAt(qtText(file("gone") / "a.txt"));
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
    document.setAskPath([this] { return qtText(file("elsewhere.txt")); });
    way = 1;
    EXPECT_TRUE(saved(document));
    EXPECT_EQ(readTextFile(file("elsewhere.txt")), "1\n");
    EXPECT_THAT(told, HasSubstr("a.txt: "));
    EXPECT_THAT(told, HasSubstr("kept apart, and offered"));
    EXPECT_EQ(ways, (QStringList{"Try again", "Save as…", "Later"}));

    document.startAt(qtText(file("gone") / "b.txt"));
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
    document.startAt(qtText(file("a.txt")));
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
    document.setAskPath([this] { return qtText(file("mine.txt")); });
    EXPECT_TRUE(saved(document));
    EXPECT_EQ(readTextFile(file("a.txt")), "of another program");
    EXPECT_EQ(readTextFile(file("mine.txt")), "1\n2\n");
}

/// What is not wanted today may be wanted tomorrow.
TEST_F(DocumentTest, BringsBackWhatWasPutOffOrGivenUp) {
    enum Way { Load, Later, Discard };
    Way way = Later;
    std::string title;
    m_workspace.setChoice([&](const Alert& question, const QStringList& choices) {
        EXPECT_EQ(choices, (QStringList{"Load", "Later", "Discard"}));
        title = question.title;
        return static_cast<int>(way);
    });
    const auto opened = [&](Way next) {
        way = next;
        title.clear();
        auto document = std::make_unique<Numbers>(m_workspace, autosave());
        document->startAt(qtText(file("a.txt")));
        return document;
    };
    {
        const auto document = opened(Load);
        document->add(7);
        document->add(8);
        document->keepWork();
    }
    EXPECT_THAT(opened(Later)->numbers(), IsEmpty());
    EXPECT_THAT(title, HasSubstr("a.txt, 2 numbers, 2 changes, today "));
    EXPECT_THAT(autosave().all(), IsEmpty()) << "the next start does not ask by itself";
    ASSERT_THAT(autosave().earlier(), SizeIs(1));
    EXPECT_THAT(opened(Load)->numbers(), IsEmpty());
    EXPECT_EQ(title, "") << "asked once in each start";
    m_workspace.setPutOff(qtText(file("a.txt")), false); // as the next start has it
    EXPECT_THAT(opened(Load)->numbers(), ElementsAre(7, 8)) << "asked again with its document";
    EXPECT_THAT(opened(Discard)->numbers(), IsEmpty()) << "it was never saved";
    (void)opened(Load);
    EXPECT_EQ(title, "") << "given up";
    const auto earlier = autosave().earlier();
    ASSERT_THAT(earlier, SizeIs(1));
    EXPECT_TRUE(earlier.front().isGivenUp);
    EXPECT_EQ(earlier.front().label.note, "2 numbers, 2 changes");
    {
        const auto document = opened(Load);
        EXPECT_TRUE(document->takeBack(earlier.front().content));
        EXPECT_THAT(document->numbers(), ElementsAre(7, 8)) << "into a window that is open";
        EXPECT_TRUE(document->isDirty());
        EXPECT_TRUE(saved(*document));
    }
    autosave().bringBack(earlier.front());
    EXPECT_THAT(opened(Load)->numbers(), ElementsAre(7, 8));
    EXPECT_NE(title, "");
}

TEST_F(DocumentTest, ListsAtHomeWhatWasPutOffAndBringsItBack) {
    const QString path = qtText(file("New team"));
    {
        desktop::TeamWindow window(m_workspace, autosave());
        window.setAttribute(Qt::WA_DeleteOnClose, false);
        window.startNew(path);
        window.document().edit("athlete", [](myTeamToSaveStruct& team) {
            team.realMyTeam.emplace_back().name = "Nova";
        });
        window.document().keepWork();
    }            // ends without a word
    int way = 1; // later
    m_workspace.setChoice([&](const Alert&, const QStringList&) { return way; });
    desktop::Desktop program(m_workspace, autosave());
    program.offerRecovery();
    ASSERT_THAT(program.windowsOf<desktop::TeamWindow>(), SizeIs(1));
    program.windowsOf<desktop::TeamWindow>().front()->close();
    program.showHome();
    QListWidget* list = nullptr;
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (qobject_cast<desktop::HomeWindow*>(window) && window->isVisible())
            list = window->findChild<QListWidget*>("keptWork");
    ASSERT_TRUE(list);
    QTRY_COMPARE(list->count(), 1);
    EXPECT_TRUE(list->isVisible());
    EXPECT_TRUE(list->item(0)->text().startsWith("New team"));
    way = 0; // load
    list->setCurrentRow(0);
    emit list->itemActivated(list->item(0));
    ASSERT_THAT(program.windowsOf<desktop::TeamWindow>(), SizeIs(1));
    const auto* const back = program.windowsOf<desktop::TeamWindow>().front();
    EXPECT_THAT(back->file()->isDirty(), true);
    QTRY_VERIFY(!list->isVisible());
}

TEST_F(DocumentTest, ProgramsBesideEachOtherKeepTheirWorkApart) {
    using Place = desktop::AutosavePlace;
    const QString folder = qtText(file("kept"));
    const QString path = qtText(file("a.txt"));
    const auto keep = [&](const Place& place, int number) {
        Numbers document(m_workspace, desktop::Autosave(place.folder()));
        document.startAt(path);
        document.add(number);
        document.keepWork();
    };
    const Place one(folder, Place::Program::One);
    auto beside = std::make_unique<Place>(folder, Place::Program::Beside);
    const Place third(folder, Place::Program::Beside);
    keep(one, 1);
    keep(*beside, 2);
    keep(third, 3);
    EXPECT_EQ(desktop::Autosave(one.folder()).find(path)->content, "1\n");
    EXPECT_EQ(desktop::Autosave(beside->folder()).find(path)->content, "2\n");
    EXPECT_EQ(desktop::Autosave(third.folder()).find(path)->content, "3\n");
    const QString left = beside->folder();
    beside.reset(); // it has ended, and its work was not saved
    EXPECT_NE(Place(folder, Place::Program::Beside).folder(), left);
    desktop::Autosave(folder).forget(path);
    desktop::disk::waitForAll();
    const Place next(folder, Place::Program::One);
    EXPECT_EQ(desktop::Autosave(next.folder()).find(path)->content, "2\n");
    EXPECT_EQ(desktop::Autosave(third.folder()).find(path)->content, "3\n") << "it runs on";
}

/// Who never pauses is not kept waiting for a pause.
TEST_F(DocumentTest, KeepsTheFirstOfManyEditsWithinASecondOfIt) {
    Numbers document(m_workspace, autosave());
    document.startAt(qtText(file("a.txt")));
    int number = 0;
    QTimer edits;
    QObject::connect(&edits, &QTimer::timeout, &edits, [&] { document.add(++number); });
    edits.start(200);
    const auto isKept = [&] { return autosave().find(document.path()).has_value(); };
    EXPECT_TRUE(QTest::qWaitFor(isKept, 3000)) << "after " << number << " edits";
    edits.stop();
}

TEST_F(DocumentTest, RefusesToWriteOverAFileOfAnotherWindow) {
    Numbers theirs(m_workspace, autosave());
    theirs.startAt(qtText(file("theirs.txt")));
    theirs.add(1);
    ASSERT_TRUE(saved(theirs));
    fs::create_symlink(file("theirs.txt"), file("link.txt"));
    Numbers mine(m_workspace, autosave());
    mine.startAt(qtText(file("mine.txt")));
    mine.add(2);
    for (const char* name : {"theirs.txt", "link.txt"})
        EXPECT_FALSE(savedAs(mine, qtText(file(name)))) << name;
    EXPECT_THAT(m_recorder.alerts, SizeIs(2));
    EXPECT_EQ(readTextFile(file("theirs.txt")), "1\n");
    EXPECT_TRUE(mine.isDirty());
}

TEST_F(DocumentTest, StepsOfUndoHoldOnlyWhatTheyChanged) {
    constexpr int Size = 200;
    constexpr int Edits = 50;
    Numbers document(m_workspace, autosave());
    document.startAt(qtText(file("a.txt")));
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

/// A document that never had a file is recovered in its tool, which its path cannot tell.
TEST_F(DocumentTest, IsRecoveredAsWhatItWasThoughItWasNeverSaved) {
    const QString path = qtText(file("New team"));
    {
        auto program = std::make_unique<desktop::Desktop>(m_workspace, autosave());
        desktop::TeamWindow window(m_workspace, autosave());
        window.setAttribute(Qt::WA_DeleteOnClose, false);
        window.startNew(path);
        window.document().edit("athlete", [](myTeamToSaveStruct& team) {
            team.realMyTeam.emplace_back().name = "Nova";
        });
        window.document().keepWork();
    } // ends without a word
    desktop::Desktop program(m_workspace, autosave());
    program.offerRecovery();
    ASSERT_THAT(program.windowsOf<desktop::TeamWindow>(), SizeIs(1));
    desktop::TeamWindow& window = *program.windowsOf<desktop::TeamWindow>().front();
    ASSERT_THAT(window.document().athletes(), SizeIs(1));
    EXPECT_EQ(window.document().athletes().front().name, "Nova");
    EXPECT_TRUE(window.document().isDirty());
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
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
