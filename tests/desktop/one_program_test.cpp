#include "common/environment_variable.h"
#include "desktop/one_program.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/path_text.h"
#include "desktop/start_options.h"
#include "desktop/taking/taking_window.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QSysInfo>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <csignal>
#include <memory>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

/// A further start of the program, and the one that runs.
namespace kavela::test {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;
using desktop::Desktop;
using desktop::meetingPlace;
using desktop::OneProgram;
using desktop::ToolWindow;
using Start = OneProgram::Start;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::chrono::milliseconds Long = 20s;

class OneProgramTest : public ::testing::Test {
protected:
    /// A further start, as of another process, while this one answers.
    Start startWith(const QStringList& files, const QByteArray& activation = {}) {
        std::atomic<Start> start = Start::Unknown;
        const std::unique_ptr<QThread> other(QThread::create([&] {
            start = OneProgram(m_place, Long).start({files, activation});
        }));
        QEventLoop loop;
        QObject::connect(other.get(), &QThread::finished, &loop, &QEventLoop::quit);
        other->start();
        loop.exec();
        other->wait();
        return start;
    }

    void serve(OneProgram& one) {
        one.serve([this](const OneProgram::Call& call) { m_calls.append(call); });
    }
    [[nodiscard]] bool getsCalls(int number) {
        return QTest::qWaitFor([&] { return m_calls.size() >= number; });
    }

    TempFolder m_folder;
    QString m_place = pathText(m_folder.path() / "one");
    QList<OneProgram::Call> m_calls;
};

TEST_F(OneProgramTest, HandsFilesOverInTheirOrderWhateverTheyAreCalled) {
    OneProgram one(m_place, Long);
    ASSERT_EQ(one.start({}), Start::First);
    const QStringList odd{"/a b/\n.kvx", "/ä €\U0001F6F6.kvx", "/--new", "/\"'\\%F;",
                          "/" + QString(100'000, 'x')};
    EXPECT_EQ(startWith({"/early.kvx"}), Start::HandedOver) << "before it serves";
    serve(one);
    EXPECT_EQ(startWith(odd, "token"), Start::HandedOver);
    EXPECT_EQ(startWith({}), Start::HandedOver);
    ASSERT_TRUE(getsCalls(3));
    EXPECT_EQ(m_calls[0].files, QStringList{"/early.kvx"});
    EXPECT_EQ(m_calls[1].files, odd);
    EXPECT_EQ(m_calls[1].activation, "token");
    EXPECT_TRUE(m_calls[2].files.isEmpty());
}

TEST_F(OneProgramTest, IsOneOfManyThatStartAtTheSameMoment) {
    constexpr int Starts = 6;
    std::atomic<int> firsts = 0;
    std::atomic<int> handedOver = 0;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < Starts; ++i)
        threads.emplace_back(QThread::create([&] {
            OneProgram one(m_place, Long);
            const Start start = one.start({{"/cup.kvx"}, {}});
            handedOver += start == Start::HandedOver;
            if (start != Start::First)
                return;
            ++firsts;
            QEventLoop loop;
            int calls = 0;
            one.serve([&](const OneProgram::Call&) {
                if (++calls == Starts - 1)
                    loop.quit();
            });
            QTimer::singleShot(Long, &loop, &QEventLoop::quit);
            loop.exec();
        }));
    for (const auto& thread : threads)
        thread->start();
    for (const auto& thread : threads)
        thread->wait();
    EXPECT_EQ(firsts, 1);
    EXPECT_EQ(handedOver, Starts - 1);
}

/// As of a program that crashed: the socket is there, and nobody behind it.
TEST_F(OneProgramTest, PassesOverTheSocketAndTheLockOfACrash) {
    const pid_t child = ::fork();
    if (child == 0) {
        QLocalServer left;
        ::_exit(left.listen(m_place) ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    (void)m_folder.add("one.lock", std::to_string(child) + "\ntest_desktop\n" +
                                       QSysInfo::machineHostName().toStdString() + "\n");
    ASSERT_TRUE(QFile::exists(m_place));
    OneProgram one(m_place, Long);
    ASSERT_EQ(one.start({}), Start::First);
    EXPECT_EQ(startWith({"/cup.kvx"}), Start::HandedOver);
}

/// In one thread: it cannot answer while the other one waits for it.
TEST_F(OneProgramTest, StartsBesideOneThatHangsWhichThenLeavesTheCallAlone) {
    OneProgram one(m_place, Long);
    ASSERT_EQ(one.start({}), Start::First);
    serve(one);
    EXPECT_EQ(OneProgram(m_place, 50ms).start({{"/given up.kvx"}, {}}), Start::Beside);
    EXPECT_EQ(OneProgram(m_place).startBeside(), Start::Beside);
    EXPECT_EQ(startWith({"/later.kvx"}), Start::HandedOver);
    ASSERT_TRUE(getsCalls(1));
    ASSERT_THAT(m_calls, SizeIs(1));
    EXPECT_EQ(m_calls.front().files, QStringList{"/later.kvx"});
}

TEST_F(OneProgramTest, StartsItselfOnceTheOneThatEndsHasEnded) {
    auto ending = std::make_unique<OneProgram>(m_place, Long);
    ASSERT_EQ(ending->start({}), Start::First);
    ending->stop();
    EXPECT_EQ(OneProgram(m_place, 50ms).start({}), Start::Beside) << "it still writes";
    std::atomic<Start> start = Start::Unknown;
    const std::unique_ptr<QThread> other(QThread::create([&] {
        start = OneProgram(m_place, Long).start({{"/cup.kvx"}, {}});
    }));
    other->start();
    ending.reset();
    other->wait();
    EXPECT_EQ(start, Start::First);
}

TEST_F(OneProgramTest, StartsWithoutAFolderForItsSocketAndAsANewOneWhereNoneRuns) {
    EXPECT_EQ(OneProgram(QString()).start({}), Start::Unknown);
    EXPECT_EQ(OneProgram(pathText(m_folder.path() / "gone" / "one")).start({}), Start::Unknown);
    OneProgram one(m_place, Long);
    EXPECT_EQ(one.startBeside(), Start::First);
    EXPECT_EQ(startWith({}), Start::HandedOver);
}

TEST_F(OneProgramTest, KeepsACallUntilTheBoxInFrontHasClosed) {
    OneProgram one(m_place, Long);
    ASSERT_EQ(one.start({}), Start::First);
    serve(one);
    QDialog box;
    box.setModal(true);
    box.show();
    EXPECT_EQ(startWith({"/cup.kvx"}), Start::HandedOver);
    EXPECT_EQ(startWith({"/team.kvteam"}), Start::HandedOver);
    EXPECT_THAT(m_calls, IsEmpty());
    box.close();
    ASSERT_TRUE(getsCalls(2));
    EXPECT_EQ(m_calls[0].files, QStringList{"/cup.kvx"});
    EXPECT_EQ(m_calls[1].files, QStringList{"/team.kvteam"});
}

TEST_F(OneProgramTest, AnswersNothingThatIsNoCall) {
    OneProgram one(m_place, Long);
    ASSERT_EQ(one.start({}), Start::First);
    serve(one);
    QLocalSocket stranger;
    stranger.connectToServer(m_place);
    ASSERT_TRUE(stranger.waitForConnected());
    stranger.write(QByteArray("\0\0\0\4junk", 8));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return stranger.state() == QLocalSocket::UnconnectedState; }));
    EXPECT_EQ(stranger.bytesAvailable(), 0);
    EXPECT_THAT(m_calls, IsEmpty());
}

TEST(MeetingPlace, BelongsToTheFoldersOfPreferencesAndKeptWork) {
    const TempFolder folder;
    const QByteArray path = pathText(folder.path()).toUtf8();
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", path);
    const QString before = meetingPlace();
    EXPECT_TRUE(before.startsWith(pathText(folder.path())));
    EXPECT_EQ(before, meetingPlace());
    const EnvironmentVariable config("XDG_CONFIG_HOME", path + "/config");
    const QString otherPreferences = meetingPlace();
    const EnvironmentVariable data("XDG_DATA_HOME", path + "/data");
    EXPECT_NE(otherPreferences, before);
    EXPECT_NE(meetingPlace(), before);
    EXPECT_NE(meetingPlace(), otherPreferences);
}

TEST(StartOptions, NameANewProgram) {
    EXPECT_TRUE(desktop::startOptions({"--new", "a.kvx"}).isNew);
    EXPECT_TRUE(desktop::startOptions({"--new"}).fault.isEmpty());
    EXPECT_EQ(desktop::startOptions({"--new", "a.kvx"}).files, QStringList{"a.kvx"});
    EXPECT_FALSE(desktop::startOptions({"--", "--new"}).isNew);
}

/// The windows that a call brings to the front.
class ComeForwardTest : public ::testing::Test {
protected:
    ComeForwardTest() { m_workspace.setAlerts(&m_recorder); }

    QString copied(const char* example) const {
        const fs::path from = fs::path(KAVELA_EXAMPLES) / example;
        fs::copy_file(from, m_folder.path() / from.filename());
        return pathText(m_folder.path() / from.filename());
    }
    [[nodiscard]] static bool isInFront(const QWidget* window) {
        return QTest::qWaitFor([&] { return QApplication::activeWindow() == window; });
    }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    Desktop m_program{m_workspace, desktop::Autosave(pathText(m_folder.path() / "kept"))};
};

TEST_F(ComeForwardTest, ShowsTheWindowOfAFileAlsoOneThatWasMadeAnIcon) {
    const QString team = copied("team/kavela_team.kvteam");
    m_program.comeForward({team});
    ASSERT_THAT(m_program.windows(), SizeIs(1));
    ToolWindow* const first = m_program.windows().front();
    EXPECT_TRUE(isInFront(first));
    m_program.comeForward({copied("tests/form_tests.kvtest")});
    ASSERT_THAT(m_program.windows(), SizeIs(2));
    EXPECT_TRUE(isInFront(m_program.windows().back()));
    first->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    m_program.comeForward({team});
    EXPECT_THAT(m_program.windows(), SizeIs(2));
    EXPECT_FALSE(first->isMinimized());
    EXPECT_TRUE(first->isMaximized());
    EXPECT_TRUE(isInFront(first));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

/// A race that is being timed is not shown from its file beside the changes that it does not hold.
TEST_F(ComeForwardTest, ShowsTheEditorThatHasARace) {
    const QString race = copied("races/spring_opener.kvx");
    ASSERT_TRUE(m_program.openTaking(race));
    m_program.comeForward({race});
    ASSERT_THAT(m_program.windows(), SizeIs(1));
    EXPECT_EQ(m_program.windows().front()->kind(), "taking");
}

TEST_F(ComeForwardTest, ShowsWhereTheCoachWasLastOrHome) {
    m_program.comeForward({});
    EXPECT_THAT(m_program.windows(), IsEmpty());
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; })) << "home";
    m_program.open(copied("team/kavela_team.kvteam"));
    m_program.open(copied("tests/form_tests.kvtest"));
    ToolWindow* const team = m_program.windows().front();
    team->activateWindow();
    ASSERT_TRUE(isInFront(team));
    QWidget other; // of another program
    other.show();
    other.activateWindow();
    ASSERT_TRUE(isInFront(&other));
    m_program.comeForward({});
    EXPECT_TRUE(isInFront(team));
    other.activateWindow();
    ASSERT_TRUE(isInFront(&other));
    team->close();
    m_program.comeForward({});
    EXPECT_TRUE(isInFront(m_program.windows().front())) << "the one that is left";
}

/// Real processes, in folders of their own.
class ProcessesTest : public ::testing::Test {
protected:
    ProcessesTest() {
        fs::create_directory(m_folder.path() / "runtime");
        fs::permissions(m_folder.path() / "runtime", fs::perms::owner_all);
        m_environment.insert("QT_QPA_PLATFORM", "offscreen");
        for (const char* const name :
             {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            m_environment.insert(name, pathText(m_folder.path()));
        m_environment.insert("XDG_RUNTIME_DIR", pathText(m_folder.path() / "runtime"));
    }

    /// Ends the processes that a test leaves.
    ~ProcessesTest() override {
        for (const auto& process : m_processes) {
            process->kill();
            process->waitForFinished();
        }
    }

    QProcess& start(const QStringList& arguments, const QString& folder = KAVELA_EXAMPLES) {
        auto& process = *m_processes.emplace_back(std::make_unique<QProcess>());
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(folder);
        process.start(KAVELA_DESKTOP_PROGRAM, arguments);
        EXPECT_TRUE(process.waitForStarted());
        return process;
    }

    /// Whether a program remembers that it has a file open.
    [[nodiscard]] bool hasOpened(const char* file) const {
        return QTest::qWaitFor(
            [&] {
                QFile preferences(pathText(m_folder.path() / "Kavela" / "Kavela.conf"));
                if (!preferences.open(QIODevice::ReadOnly))
                    return false;
                for (const QByteArray& line : preferences.readAll().split('\n'))
                    if (line.startsWith("openWindows=") && line.contains(file))
                        return true;
                return false;
            },
            20'000);
    }

    TempFolder m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    std::vector<std::unique_ptr<QProcess>> m_processes;
};

TEST_F(ProcessesTest, OpenTheFilesOfASecondCallInTheFirst) {
    QProcess& first = start({"team/kavela_team.kvteam"});
    ASSERT_TRUE(hasOpened("kavela_team.kvteam"));
    QProcess& second = start({"form_tests.kvtest"}, QString(KAVELA_EXAMPLES) + "/tests");
    ASSERT_TRUE(second.waitForFinished());
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(second.exitCode(), 0) << second.readAllStandardError().toStdString();
    EXPECT_TRUE(hasOpened("form_tests.kvtest"));
    EXPECT_EQ(first.state(), QProcess::Running);

    QProcess& another = start({"--new", "selection/spring_selection.kvsr"});
    EXPECT_TRUE(hasOpened("spring_selection.kvsr"));
    EXPECT_EQ(another.state(), QProcess::Running);
}

TEST_F(ProcessesTest, StartBesideOneThatHangsAndSaySo) {
    QProcess& first = start({"team/kavela_team.kvteam"});
    ASSERT_TRUE(hasOpened("kavela_team.kvteam"));
    ASSERT_EQ(::kill(static_cast<pid_t>(first.processId()), SIGSTOP), 0);
    QProcess& second = start({"tests/form_tests.kvtest"});
    QByteArray errors;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            errors += second.readAllStandardError();
            return errors.contains("does not answer");
        },
        20'000))
        << errors.toStdString();
    EXPECT_TRUE(hasOpened("form_tests.kvtest"));
    EXPECT_EQ(second.state(), QProcess::Running);
}

} // namespace
} // namespace kavela::test
