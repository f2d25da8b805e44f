#include "desktop/share/share_window.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/shell/login_dialog.h"
#include "desktop/shell/workspace.h"
#include "fetch/faulty_server.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::LoginDialog;
using desktop::SharedRow;
using desktop::ShareWindow;
using share::Change;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Kind = share::ShareResult::Kind;

/// A store that has nothing, and keeps what it is given.
class ShareStore : public fetch::SecretStore {
public:
    void find(const fetch::Address&, const Found& found) override {
        QTimer::singleShot(0, this, [this, found] { found(kept); });
    }
    void keep(const fetch::Address&, const fetch::WebLogin& login, const Kept& done) override {
        kept = login;
        done(true);
    }
    void forget(const fetch::Address&) override { kept.reset(); }

    std::optional<fetch::WebLogin> kept;
};

/// A server that keeps the files of one folder in memory.
class KeepingServer : public FaultyServer {
public:
    void addFile(const QByteArray& name, const QByteArray& content) {
        files[name] = content;
        add("/dav/" + name,
            {[this, name](const Asked& question) { return answerFor(name, question); }});
    }
    void start() {
        add("/dav/", {[this](const Asked& question) {
                if (!mayAsk(question))
                    return answer("401 No", "WWW-Authenticate: Basic realm=\"x\"\r\n");
                QByteArray body = "<d:multistatus xmlns:d=\"DAV:\">" + entry("");
                for (const auto& [name, content] : files)
                    body += entry(name);
                return answer("207 Multi-Status", "DAV: 1\r\n", body + "</d:multistatus>");
            }});
    }

    std::map<QByteArray, QByteArray> files;
    bool wantsLogin = false;

private:
    [[nodiscard]] bool mayAsk(const Asked& question) const {
        const auto told = question.headers.find("authorization");
        return !wantsLogin || (told != question.headers.end() &&
                               told->second == "Basic " + QByteArray("coach:rapid").toBase64());
    }
    [[nodiscard]] QByteArray entry(const QByteArray& name) const {
        if (name.isEmpty())
            return "<d:response><d:href>/dav/</d:href></d:response>";
        return "<d:response><d:href>/dav/" + name + "</d:href><d:propstat><d:prop>" +
               "<d:getcontentlength>" + QByteArray::number(files.at(name).size()) +
               "</d:getcontentlength><d:getetag>" + tag(name) +
               "</d:getetag></d:prop><d:status>HTTP/1.1 200 OK</d:status></d:propstat>" +
               "</d:response>";
    }
    [[nodiscard]] QByteArray tag(const QByteArray& name) const {
        return "\"" + files.at(name).toHex() + "\"";
    }
    QByteArray answerFor(const QByteArray& name, const Asked& question) {
        if (!files.contains(name))
            return answer("404 No");
        if (question.verb == "PROPFIND")
            return answer("207 Multi-Status", {},
                          "<d:multistatus xmlns:d=\"DAV:\">" + entry(name) + "</d:multistatus>");
        if (question.verb == "DELETE") {
            files.erase(name);
            return answer("204 Gone");
        }
        return answer("200 OK", "ETag: " + tag(name) + "\r\n", files.at(name));
    }
};

class ShareWindowTest : public ::testing::Test {
protected:
    ShareWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            questions.push_back(question.title + ": " + question.text);
            return agrees;
        });
        server.start();
        fs::create_directories(shared());
        auto store = std::make_unique<ShareStore>();
        m_store = store.get();
        m_window = std::make_unique<ShareWindow>(m_workspace, std::move(store));
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        m_window->setRequest({.silenceMilliseconds = 5'000, .secondMilliseconds = 2},
                             m_folder.path() / "caches");
        m_window->setPlace({shared().string(), server.address("/dav/")});
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
    }

    [[nodiscard]] fs::path shared() const { return m_folder.path() / "shared"; }
    [[nodiscard]] bool isFree() const {
        return QTest::qWaitFor([this] { return !m_window->isBusy(); }, 20'000);
    }
    bool compare() {
        m_window->compare();
        return isFree();
    }
    bool start() {
        m_window->findChild<QPushButton*>("start")->click();
        return isFree();
    }

    KeepingServer server;
    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    ShareStore* m_store = nullptr;
    std::unique_ptr<ShareWindow> m_window;
    std::vector<std::string> questions;
    bool agrees = false;
};

TEST_F(ShareWindowTest, ShowsWhatDiffersAndBringsWhatIsTicked) {
    server.addFile("a.kvx", "race a");
    server.addFile("b.kvx", "race b");
    auto* const address = m_window->findChild<QLineEdit*>("address");
    address->setFocus();
    QTest::keyClick(address, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_window->rows().empty(); }, 20'000));
    ASSERT_TRUE(isFree());
    ASSERT_THAT(m_window->rows(), SizeIs(2));
    EXPECT_EQ(m_window->status(), "2 new there");
    EXPECT_TRUE(fs::is_empty(shared())) << "comparing changes nothing";
    m_window->tick(1, false);
    ASSERT_TRUE(start());
    EXPECT_EQ(m_window->status(), "1 shared");
    EXPECT_EQ(contentOf(shared() / "a.kvx"), "race a");
    EXPECT_FALSE(fs::exists(shared() / "b.kvx"));
    ASSERT_TRUE(compare());
    ASSERT_THAT(m_window->rows(), SizeIs(1));
    EXPECT_EQ(m_window->rows()[0].row.path, "b.kvx");
}

TEST_F(ShareWindowTest, DeletesOnlyWhatWasTickedAndAgreedTo) {
    server.addFile("a.kvx", "race a");
    ASSERT_TRUE(compare());
    ASSERT_TRUE(start());
    fs::remove(shared() / "a.kvx");
    ASSERT_TRUE(compare());
    ASSERT_THAT(m_window->rows(), SizeIs(1));
    EXPECT_FALSE(m_window->rows()[0].isTicked);
    m_window->tickAll(true);
    EXPECT_FALSE(m_window->rows()[0].isTicked) << "deletions are ticked one by one";
    m_window->tick(0, true);
    ASSERT_TRUE(start());
    EXPECT_THAT(server.files, SizeIs(1)) << "nobody agreed";
    agrees = true;
    ASSERT_TRUE(start());
    EXPECT_THAT(server.files, IsEmpty());
    ASSERT_THAT(questions, SizeIs(2));
    EXPECT_THAT(questions[1], HasSubstr("a.kvx (on the server)"));
}

TEST_F(ShareWindowTest, AsksForThePasswordAndWritesItNowhere) {
    server.wantsLogin = true;
    server.addFile("a.kvx", "race a");
    ASSERT_TRUE(compare());
    EXPECT_THAT(m_window->fault().toStdString(), HasSubstr("user name or the password"));
    auto* const dialog = m_window->findChild<LoginDialog*>();
    ASSERT_TRUE(dialog);
    dialog->findChild<QLineEdit*>("user")->setText("coach");
    dialog->findChild<QLineEdit*>("password")->setText("rapid");
    dialog->findChild<QCheckBox*>()->setChecked(true);
    dialog->accept();
    ASSERT_TRUE(isFree());
    EXPECT_THAT(m_window->rows(), SizeIs(1));
    EXPECT_EQ(m_store->kept->password, "rapid");
    for (const auto& entry : fs::recursive_directory_iterator(m_folder.path()))
        if (entry.is_regular_file()) {
            EXPECT_EQ(contentOf(entry.path()).find("rapid"), std::string::npos) << entry.path();
        }
}

TEST_F(ShareWindowTest, SaysWhatIsWrongWithThePlace) {
    const struct {
        ShareWindow::Typed place;
        const char* text;
    } cases[] = {{{"", "https://a.org/"}, "no folder to share"},
                 {{"/no/such/folder", "https://a.org/"}, "is no folder"},
                 {{shared().string(), ""}, "must begin with https"},
                 {{shared().string(), "http://a.org/"}, "Only https"}};
    for (const auto& one : cases) {
        m_window->setPlace(one.place);
        ASSERT_TRUE(compare());
        EXPECT_THAT(m_window->fault().toStdString(), HasSubstr(one.text));
    }
}

TEST_F(ShareWindowTest, RemembersWhereAFolderWasSharedTo) {
    ASSERT_TRUE(compare());
    const QString folder = QString::fromStdString(shared().string());
    m_window->setPlace({"/elsewhere", "https://other.example.org/"});
    ASSERT_TRUE(m_window->open(folder));
    EXPECT_EQ(m_window->place().address, server.address("/dav/"));
    EXPECT_THAT(m_window->paths(), ElementsAre(folder)) << "by which the session finds it again";
}

TEST_F(ShareWindowTest, CancelsAndClosesOnlyWhereItMay) {
    server.addFile("a.kvx", "race a");
    ASSERT_TRUE(compare());
    server.add("/dav/a.kvx", {silence()});
    m_window->start();
    EXPECT_TRUE(m_window->isSharing());
    EXPECT_FALSE(m_window->close());
    m_window->cancel();
    ASSERT_TRUE(isFree());
    EXPECT_EQ(m_window->rows()[0].result->kind, Kind::Cancelled);
    EXPECT_TRUE(m_window->rows()[0].isTicked) << "starting again goes on with it";
    EXPECT_TRUE(m_window->close());
}

} // namespace
} // namespace kavela::test
