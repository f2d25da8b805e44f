#include "desktop/notes_fixture.h"
#include "desktop/saving.h"

#include <QDialog>
#include <QTest>
#include <QTimer>

namespace kavela::test {
namespace {

/// What reaches the document's own file by another way than saving, and what does not reach it.
class OwnFileTest : public NotesTest {
protected:
    OwnFileTest() {
        m_workspace.setAnswer([this](const Alert& question) {
            m_asked.push_back(question.text);
            return true;
        });
    }

    QString file() const { return QString::fromStdString((folder() / "films.kvx").string()); }

    void rename(const char* crew) {
        m_window->document().editRun(0, "name", [&](athletedata031& run) { run.names = {crew}; });
    }

    /// Takes over a list of the folder, and agrees to what it has.
    void importList(const std::string& content) {
        const fs::path list = m_folder.add("list.csv", content);
        m_window->setChooseFiles([&](const QString&, const QString&) {
            return QStringList{QString::fromStdString(list.string())};
        });
        QTimer::singleShot(0, m_window.get(), [] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                QTest::keyClick(dialog, Qt::Key_Return);
        });
        m_window->exchange().importResults();
    }

    std::vector<std::string> m_asked;
};

TEST_F(OwnFileTest, HoldsTheWorkOnceItWasExportedOntoItself) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    rename("Nova");
    fs::last_write_time(folder() / "films.kvx",
                        fs::file_time_type::clock::now() - std::chrono::hours(1));
    ASSERT_TRUE(isWritten([this](auto told) {
        m_window->document().exportTo(file(), {false, false}, nullptr, std::move(told));
    }));
    EXPECT_FALSE(m_window->document().isDirty());
    EXPECT_THAT(m_asked, SizeIs(1)) << "whether to write over the file";
    rename("Zora");
    ASSERT_TRUE(saved(m_window->document()));
    EXPECT_THAT(m_asked, SizeIs(1)) << "no other program changed it";
}

TEST_F(OwnFileTest, ImportsThatTookNothingAreNoEdit) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), false));
    importList("pos;bib;name;nat;time;pen\nno result at all\n");
    EXPECT_THAT(m_recorder.alerts, ElementsAre(::testing::HasSubstr("Line 2")));
    m_recorder.alerts.clear();
    EXPECT_FALSE(m_window->document().isDirty());
    splittakerdata031 empty = timedRace();
    empty.athletes.clear();
    const fs::path other = m_folder.path() / "empty.kvx";
    ASSERT_TRUE(saveSplitFile(empty, other, m_recorder.log()));
    m_window->document().importSplitFiles({QString::fromStdString(other.string())}, nullptr);
    EXPECT_FALSE(m_window->document().isDirty());
    ASSERT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_recorder.alerts[0], ::testing::HasSubstr("empty.kvx"));
    importList("pos;bib;name;nat;time;pen\n1;4;Nova;CZE;82.75;2\n");
    EXPECT_TRUE(m_window->document().isDirty()) << "Enter agrees to what the dialog shows";
}

} // namespace
} // namespace kavela::test
