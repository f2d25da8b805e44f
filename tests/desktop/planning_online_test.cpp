#include "desktop/planning/planning_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/shell/workspace.h"
#include "planning/messages.h"
#include "planning/planning_access.h"
#include "planning/planning_file.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <map>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Autosave;
using desktop::OnlineAddress;
using desktop::PlanningWindow;
using desktop::Workspace;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

/// A server on this computer that keeps what is put there, behind a password.
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
            answerTo(words.at(0), words.at(1), request.left(head), request.mid(head + 4, size));
        m_requests.erase(&socket);
        socket.write(answer);
        socket.disconnectFromHost();
    }

    QByteArray answerTo(const QByteArray& verb, const QByteArray& path, const QByteArray& header,
                        const QByteArray& body) {
        if (!header.contains("Basic " + QByteArray("coach:rapid").toBase64()))
            return "HTTP/1.1 401 No\r\nContent-Length: 0\r\n\r\n";
        if (verb == "PUT") {
            files[path] = body;
            return "HTTP/1.1 201 Made\r\nContent-Length: 0\r\n\r\n";
        }
        const auto file = files.find(path);
        if (file == files.end())
            return "HTTP/1.1 404 None\r\nContent-Length: 0\r\n\r\n";
        return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(file->second.size()) +
               "\r\n\r\n" + file->second;
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
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7.9e8}; }};
    PlanningWindow m_window{m_workspace,
                            Autosave(QString::fromStdString((m_folder.path() / "kept").string()))};
    FileServer m_server;
};

TEST_F(PlanningOnlineTest, PutsPlanningAndAccessAndFetchesThePlanning) {
    m_window.saveOnline(m_server.address(), "Team");
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_server.files.size() == 2; }));
    const QByteArray stored = m_server.files.at("/plans/Team.planning");
    EXPECT_EQ(stored.toStdString(), encode(m_window.document().value()));
    EXPECT_TRUE(m_server.files.contains("/plans/Team.planinf"));

    m_window.startNew(QString::fromStdString((m_folder.path() / "other.planning").string()));
    QSignalSpy loaded(&m_window, &PlanningWindow::onlineLoaded);
    m_window.loadOnline(m_server.address(), "Team");
    ASSERT_TRUE(loaded.wait());
    EXPECT_TRUE(loaded.front().front().toBool());
    EXPECT_EQ(stored.toStdString(), encode(m_window.document().value()));
    EXPECT_TRUE(m_window.document().isDirty());
}

TEST_F(PlanningOnlineTest, TellsAFailedSaveWithoutThePassword) {
    m_window.saveOnline(m_server.address("wrong"), "Team");
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
        QSignalSpy loaded(&m_window, &PlanningWindow::onlineLoaded);
        m_window.loadOnline(m_server.address(), entry);
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

} // namespace
} // namespace kavela::test
