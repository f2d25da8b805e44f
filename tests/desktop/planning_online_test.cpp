#include "desktop/planning/planning_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/planning/online/online_planning.h"
#include "desktop/saving.h"
#include "desktop/shell/workspace.h"
#include "planning/messages.h"
#include "planning/planning_access.h"
#include "planning/planning_file.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCryptographicHash>
#include <QInputDialog>
#include <QSignalSpy>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

#include <functional>
#include <map>
#include <utility>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Autosave;
using desktop::OnlineAddress;
using desktop::OnlinePlanning;
using desktop::PlanningWindow;
using desktop::Workspace;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

/// A server on this computer that keeps what is put there, behind a password. One with marks heeds
/// the conditions of a put, as servers with entity tags do; one without knows neither.
class FileServer : public QTcpServer {
public:
    FileServer() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* const socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { take(*socket); });
        });
    }

    [[nodiscard]] OnlineAddress address(const QString& password = "rapid") const {
        return {QUrl(QString("http://127.0.0.1:%1/plans").arg(serverPort())), "coach", password};
    }

    std::map<QByteArray, QByteArray> files;
    bool hasMarks = true;
    std::function<void()> beforePut; ///< somebody else is faster
    QList<QByteArray> verbs;

private:
    void take(QTcpSocket& socket) {
        QByteArray& request = m_requests[&socket];
        request += socket.readAll();
        const auto head = request.indexOf("\r\n\r\n");
        if (head < 0)
            return;
        const QByteArray header = request.left(head).toLower();
        const auto length = header.indexOf("content-length:");
        const qsizetype size =
            length < 0 ? 0 : header.mid(length + 15).split('\r').first().trimmed().toLongLong();
        if (request.size() < head + 4 + size)
            return;
        const QList<QByteArray> words = request.left(request.indexOf("\r\n")).split(' ');
        const QByteArray answer =
            answerTo(words.at(0), QByteArray::fromPercentEncoding(words.at(1)), request.left(head),
                     request.mid(head + 4, size));
        m_requests.erase(&socket);
        socket.write(answer);
        socket.disconnectFromHost();
    }

    QByteArray answerTo(const QByteArray& verb, const QByteArray& path, const QByteArray& header,
                        const QByteArray& body) {
        if (!header.contains("Basic " + QByteArray("coach:rapid").toBase64()))
            return "HTTP/1.1 401 No\r\nContent-Length: 0\r\n\r\n";
        verbs.append(verb);
        if (verb == "PUT")
            return answerToPut(path, header, body);
        const auto file = files.find(path);
        if (file == files.end())
            return "HTTP/1.1 404 None\r\nContent-Length: 0\r\n\r\n";
        return "HTTP/1.1 200 OK\r\n" + markLine(path) +
               "Content-Length: " + QByteArray::number(file->second.size()) + "\r\n\r\n" +
               (verb == "HEAD" ? QByteArray() : file->second);
    }

    QByteArray answerToPut(const QByteArray& path, const QByteArray& header,
                           const QByteArray& body) {
        if (const auto faster = std::exchange(beforePut, {}))
            faster();
        const bool isThere = files.contains(path);
        const bool isOther =
            header.contains("If-Match: ") && !header.contains("If-Match: " + mark(path));
        if (hasMarks && (isOther || (isThere && header.contains("If-None-Match: *"))))
            return "HTTP/1.1 412 Other\r\nContent-Length: 0\r\n\r\n";
        files[path] = body;
        return "HTTP/1.1 201 Made\r\n" + markLine(path) + "Content-Length: 0\r\n\r\n";
    }

    QByteArray mark(const QByteArray& path) {
        return '"' + QCryptographicHash::hash(files[path], QCryptographicHash::Md5).toHex() + '"';
    }
    QByteArray markLine(const QByteArray& path) {
        return hasMarks ? "ETag: " + mark(path) + "\r\n" : QByteArray();
    }

    std::map<QTcpSocket*, QByteArray> m_requests;
};

class PlanningOnlineTest : public ::testing::Test {
protected:
    PlanningOnlineTest() {
        m_workspace.setAlerts(&m_recorder);
        m_window.setAttribute(Qt::WA_DeleteOnClose, false);
        m_window.startNew(QString::fromStdString((m_folder.path() / "own.planning").string()));
        athletesplanning_v6 athlete;
        athlete.name = "Jana Nováková";
        m_window.addAthlete(athlete);
        m_workspace.setChoice([this](const Alert& question, const QStringList&) {
            m_questions.push_back(question.text);
            return m_choice;
        });
        m_workspace.setAnswer([](const Alert&) { return false; });
    }

    /// Saves and waits for the end of it; whether the planning was put there.
    bool save(const char* entry = "Team") {
        QSignalSpy saved(&m_window.online(), &OnlinePlanning::saved);
        m_window.online().save(m_server.address(), entry);
        return (saved.count() > 0 || saved.wait()) && saved.front().front().toBool();
    }

    void rename(const char* name) {
        m_window.document().editAthlete(
            0, "name", [name](athletesplanning_v6& athlete) { athlete.name = name; });
    }

    QByteArray& stored() { return m_server.files["/plans/Team.planning"]; }
    std::string shown() { return encode(m_window.document().value()); }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7.9e8}; }};
    PlanningWindow m_window{m_workspace,
                            Autosave(QString::fromStdString((m_folder.path() / "kept").string()))};
    FileServer m_server;
    std::vector<std::string> m_questions;
    int m_choice = -1; ///< of the ways when somebody else's work lies there
};

TEST_F(PlanningOnlineTest, PutsPlanningAndAccessAndFetchesThePlanning) {
    m_window.online().save(m_server.address(), "Team");
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_server.files.size() == 2; }));
    const QByteArray stored = m_server.files.at("/plans/Team.planning");
    EXPECT_EQ(stored.toStdString(), encode(m_window.document().value()));
    EXPECT_TRUE(m_server.files.contains("/plans/Team.planinf"));

    m_window.startNew(QString::fromStdString((m_folder.path() / "other.planning").string()));
    QSignalSpy loaded(&m_window.online(), &OnlinePlanning::loaded);
    m_window.online().load(m_server.address(), "Team");
    ASSERT_TRUE(loaded.wait());
    EXPECT_TRUE(loaded.front().front().toBool());
    EXPECT_EQ(stored.toStdString(), encode(m_window.document().value()));
    EXPECT_TRUE(m_window.document().isDirty());
}

TEST_F(PlanningOnlineTest, TellsAFailedSaveWithoutThePassword) {
    m_window.online().save(m_server.address("wrong"), "Team");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_recorder.lines.empty(); }));
    EXPECT_THAT(m_server.files, IsEmpty());
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    for (const std::string& line : m_recorder.lines)
        EXPECT_THAT(line, Not(HasSubstr("wrong")));
}

TEST_F(PlanningOnlineTest, KeepsWhatIsShownWhenTheServerHasNoPlanning) {
    const std::string before = encode(m_window.document().value());
    m_server.files["/plans/Team.planning"] = "{}";
    for (const char* entry : {"Team", "Club"}) {
        QSignalSpy loaded(&m_window.online(), &OnlinePlanning::loaded);
        m_window.online().load(m_server.address(), entry);
        ASSERT_TRUE(loaded.wait());
        EXPECT_FALSE(loaded.front().front().toBool()) << entry;
    }
    EXPECT_EQ(encode(m_window.document().value()), before);
}

TEST_F(PlanningOnlineTest, SendsNoPasswordOverAnOpenLine) {
    OnlineAddress address{QUrl("http://plans.example.org/"), "coach", "rapid"};
    EXPECT_FALSE(address.fault().isEmpty());
    address.folder = QUrl("https://plans.example.org/");
    EXPECT_TRUE(address.fault().isEmpty());
}

TEST_F(PlanningOnlineTest, AsksBeforeItReplacesAColleaguesWork) {
    for (const bool hasMarks : {true, false}) {
        SCOPED_TRACE(hasMarks ? "a server with entity tags" : "a plain server");
        m_server.hasMarks = hasMarks;
        m_server.files.clear();
        m_questions.clear();
        ASSERT_TRUE(save());
        rename(hasMarks ? "Ann" : "Ben");
        EXPECT_TRUE(save()) << "nobody touched it meanwhile";
        EXPECT_THAT(m_questions, IsEmpty());
        planningdatac_v6 colleagues = m_window.document().value();
        colleagues.coach = hasMarks ? "a colleague" : "another one";
        stored() = QByteArray::fromStdString(encode(colleagues));
        rename("Cyd");
        EXPECT_FALSE(save());
        EXPECT_THAT(m_questions, ElementsAre(HasSubstr("was changed on the server")));
        EXPECT_EQ(stored().toStdString(), encode(colleagues)) << "untouched";
    }
    m_choice = 2;
    EXPECT_TRUE(save());
    EXPECT_EQ(stored().toStdString(), shown()) << "replaced once the coach agreed";
    EXPECT_EQ(m_questions.size(), 2U);
}

TEST_F(PlanningOnlineTest, SomebodyFasterIsNotReplacedUnseen) {
    m_server.beforePut = [this] { stored() = "{\"theirs\":1}"; };
    EXPECT_FALSE(save()) << "there was no file when it was looked for";
    EXPECT_THAT(m_questions, ElementsAre(HasSubstr("this one does not come from")));
    m_choice = 2;
    m_server.beforePut = [this] {
        m_choice = -1;
        stored() = "{\"theirs\":2}";
    };
    EXPECT_FALSE(save()) << "what was agreed to is not what lies there now";
    EXPECT_EQ(m_questions.size(), 3U);
    EXPECT_EQ(stored(), "{\"theirs\":2}");
}

TEST_F(PlanningOnlineTest, ShowsTheOtherWorkOrSavesBesideIt) {
    planningdatac_v6 other;
    other.coach = "somebody else";
    const QByteArray theirs = QByteArray::fromStdString(encode(other));
    stored() = theirs;
    QSignalSpy copy(&m_window.online(), &OnlinePlanning::copyRequested);
    m_choice = 0;
    EXPECT_FALSE(save());
    ASSERT_EQ(copy.count(), 1);
    EXPECT_EQ(copy.front().front().toByteArray(), theirs);
    m_choice = 1;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&answer] {
        auto* const dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        answer.stop();
        dialog->setTextValue("Team of Jana");
        dialog->accept();
    });
    answer.start(1);
    EXPECT_TRUE(save());
    EXPECT_EQ(stored(), theirs);
    EXPECT_EQ(m_server.files["/plans/Team of Jana.planning"].toStdString(), shown());
    EXPECT_THAT(m_workspace.preferences().array("planningOnline"), Contains("Team of Jana"));
}

TEST_F(PlanningOnlineTest, GoesOnTomorrowFromTheStateOfToday) {
    const QString path = QString::fromStdString((m_folder.path() / "own.planning").string());
    ASSERT_TRUE(savedAs(m_window.document(), path));
    ASSERT_TRUE(save());
    m_window.startNew(QString::fromStdString((m_folder.path() / "other.planning").string()));
    EXPECT_FALSE(save()) << "another planning does not come from it";
    EXPECT_EQ(m_questions.size(), 1U);
    ASSERT_TRUE(m_window.open(path));
    rename("Ann");
    EXPECT_TRUE(save());
    EXPECT_EQ(m_questions.size(), 1U);
}

TEST_F(PlanningOnlineTest, LeavesTheAccessRecordOfTheServerWhereItHasNone) {
    m_server.files["/plans/Team.planinf"] = "the people";
    m_server.hasMarks = false;
    EXPECT_TRUE(save());
    EXPECT_EQ(m_server.files["/plans/Team.planinf"], "the people");
}

TEST_F(PlanningOnlineTest, UnsavedWorkDoesNotGiveWayWithoutAQuestion) {
    ASSERT_TRUE(save());
    rename("Unsaved");
    int asked = 0;
    m_workspace.setAnswer([&](const Alert&) { return ++asked == 0; });
    QSignalSpy loaded(&m_window.online(), &OnlinePlanning::loaded);
    m_window.online().load(m_server.address(), "Team");
    ASSERT_TRUE(loaded.wait());
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(shown(), stored().toStdString()) << "given up, as answered";
    rename("Ann");
    EXPECT_TRUE(save()) << "what was opened from there is known";
    EXPECT_THAT(m_questions, IsEmpty());
}

/// A server with a certificate that nobody vouches for.
class UntrustedServer : public QTcpServer {
public:
    UntrustedServer() { listen(QHostAddress::LocalHost); }

    bool wasAsked = false;

protected:
    void incomingConnection(qintptr handle) override {
        auto* const socket = new QSslSocket(this);
        socket->setSocketDescriptor(handle);
        const QString folder = KAVELA_TEST_DATA "/certificates/";
        socket->setLocalCertificate(folder + "untrusted.pem");
        socket->setPrivateKey(folder + "untrusted.key", QSsl::Ec);
        connect(socket, &QSslSocket::readyRead, this, [this] { wasAsked = true; });
        socket->startServerEncryption();
    }
};

TEST_F(PlanningOnlineTest, NamesTheIssuerOfACertificateThatIsNotTrusted) {
    UntrustedServer server;
    const OnlineAddress address{
        QUrl(QString("https://127.0.0.1:%1/plans").arg(server.serverPort())), "coach", "rapid"};
    m_window.online().save(address, "Team");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_recorder.lines.empty(); }));
    EXPECT_THAT(m_recorder.lines.back(), HasSubstr("not trusted"));
    EXPECT_THAT(m_recorder.lines.back(), HasSubstr("“Kayak Club Test Authority”"));
    EXPECT_FALSE(server.wasAsked) << "the password stays here";
}

} // namespace
} // namespace kavela::test
