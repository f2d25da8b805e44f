#include "desktop/document_fixture.h"

/// What every document does with work that was not saved: it is kept, and brought back.
namespace kavela::test {
namespace {

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
        document->startAt(pathText(file("a.txt")));
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
    m_workspace.setPutOff(pathText(file("a.txt")), false); // as the next start has it
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
    const QString path = pathText(file("New team"));
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
    EXPECT_THAT(program.windowsOf<desktop::TeamWindow>(), IsEmpty()) << "there is nothing in it";
    EXPECT_TRUE(program.isHomeShown());
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
    const QString folder = pathText(file("kept"));
    const QString path = pathText(file("a.txt"));
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
    document.startAt(pathText(file("a.txt")));
    int number = 0;
    QTimer edits;
    QObject::connect(&edits, &QTimer::timeout, &edits, [&] { document.add(++number); });
    edits.start(200);
    const auto isKept = [&] { return autosave().find(document.path()).has_value(); };
    EXPECT_TRUE(QTest::qWaitFor(isKept, 3000)) << "after " << number << " edits";
    edits.stop();
}

/// A document that never had a file is recovered in its tool, which its path cannot tell.
TEST_F(DocumentTest, IsRecoveredAsWhatItWasThoughItWasNeverSaved) {
    const QString path = pathText(file("New team"));
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

} // namespace
} // namespace kavela::test
