#include "desktop/fetch/fetch_window.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/fetch/site_list.h"
#include "desktop/shell/login_dialog.h"
#include "desktop/shell/workspace.h"
#include "fetch/faulty_server.h"
#include "fetch/test_films.h"

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
using desktop::FetchRow;
using desktop::FetchWindow;
using desktop::LoginDialog;
using fetch::FilmResult;
using fetch::WebLogin;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using FilmState = fetch::PlannedFilm::State;

/// A password store that this test alone sees.
class OwnStore : public fetch::SecretStore {
public:
    void find(const fetch::Address&, const Found& found) override {
        ++finds;
        QTimer::singleShot(0, this, [this, found] { found(kept); });
    }
    void keep(const fetch::Address&, const WebLogin& login, const Kept& done) override {
        kept = login;
        done(true);
    }
    void forget(const fetch::Address&) override { kept.reset(); }

    std::optional<WebLogin> kept;
    int finds = 0;
};

class FetchWindowTest : public ::testing::Test {
protected:
    FetchWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert&) {
            ++m_questions;
            return m_mayClose;
        });
        list = m_folder.add("list.csv", "bib;name;phase\n14;Ann Lee;Heats\n15;Eva Roe;Heats\n");
        auto store = std::make_unique<OwnStore>();
        m_store = store.get();
        m_window = std::make_unique<FetchWindow>(m_workspace, std::move(store));
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        m_window->setPace({.silenceMilliseconds = 5'000, .secondMilliseconds = 2});
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
    }

    void setSource(const std::string& path) {
        m_window->setSource(
            {server.address(path), list.string(), films().string(), "{name} {phase}", {}});
    }
    [[nodiscard]] fs::path films() const { return m_folder.path() / "films"; }
    [[nodiscard]] bool isFree() const {
        return QTest::qWaitFor([this] { return !m_window->isBusy(); }, 20'000);
    }
    bool showPlan() {
        m_window->showPlan();
        return isFree();
    }
    bool fetchTicked() {
        m_window->fetchTicked();
        return isFree();
    }
    [[nodiscard]] LoginDialog* dialog() const { return m_window->findChild<LoginDialog*>(); }

    const QByteArray body = testFilm(1);
    FaultyServer server;
    fs::path list;
    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    OwnStore* m_store = nullptr;
    std::unique_ptr<FetchWindow> m_window;
    int m_questions = 0;
    bool m_mayClose = false;
};

} // namespace

TEST_F(FetchWindowTest, ShowsWhatWouldBeFetchedAndThenFetchesIt) {
    server.add("/014.mp4", {served(body, "\"a\"")});
    setSource("/{bib:3}.mp4");
    auto* const address = m_window->findChild<QLineEdit*>("address");
    address->setFocus();
    QTest::keyClick(address, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_window->rows().size() == 2; }, 20'000));
    EXPECT_THAT(server.asked, IsEmpty());
    EXPECT_FALSE(fs::exists(films()));
    ASSERT_TRUE(fetchTicked());
    EXPECT_EQ(m_window->rows()[0].result->kind, FilmResult::Kind::Fetched);
    EXPECT_FALSE(m_window->rows()[0].isTicked);
    EXPECT_EQ(m_window->rows()[1].result->kind, FilmResult::Kind::NotThere);
    EXPECT_TRUE(m_window->rows()[1].isTicked) << "fetching again asks for it again";
    EXPECT_EQ(m_window->status(), "1 fetched, 1 not there yet");
    EXPECT_TRUE(contentOf(films() / "Ann Lee Heats.mp4") == body.toStdString());
    ASSERT_TRUE(showPlan());
    EXPECT_EQ(m_window->rows()[0].film.state, FilmState::AlreadyThere);
}

TEST_F(FetchWindowTest, TakesFilmsOfAnotherServerWhereItIsTicked) {
    const std::string other = "localhost:" + std::to_string(server.serverPort());
    server.add("/list.html",
               {always(answer(
                   "200 OK", {},
                   "<a href=15.mp4><a href=" +
                       QByteArray::fromStdString(server.address("/14.mp4", "localhost")) + ">"))});
    setSource("/list.html");
    ASSERT_TRUE(showPlan());
    ASSERT_THAT(m_window->rows(), SizeIs(2));
    EXPECT_EQ(m_window->rows()[0].film.state, FilmState::OtherSite);
    EXPECT_FALSE(m_window->rows()[0].isTicked);
    m_window->tickAll(true);
    EXPECT_FALSE(m_window->rows()[0].isTicked);
    ASSERT_EQ(m_window->sites().count(), 1);
    m_window->sites().item(0)->setCheckState(Qt::Checked);
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return m_window->rows().size() == 2 && m_window->rows()[0].isTicked; }));
    EXPECT_THAT(m_window->source().hosts, ElementsAre(other));
}

TEST_F(FetchWindowTest, KeepsWhatTheCoachTickedAsLongAsTheFilmIsTheSame) {
    setSource("/{bib:3}.mp4");
    ASSERT_TRUE(showPlan());
    m_window->tickAll(false);
    EXPECT_FALSE(m_window->hasTicked());
    ASSERT_TRUE(showPlan());
    EXPECT_FALSE(m_window->hasTicked());
    EXPECT_FALSE(m_window->findChild<QPushButton*>("fetch")->isEnabled());
}

TEST_F(FetchWindowTest, AsksForThePasswordAndWritesItNowhere) {
    server.add("/014.mp4", {[this](const Asked& asked) {
                   return asked.headers.contains("authorization")
                              ? answer("200 OK", {}, body)
                              : answer("401 No", "WWW-Authenticate: Basic realm=\"x\"\r\n");
               }});
    setSource("/{bib:3}.mp4");
    ASSERT_TRUE(showPlan());
    ASSERT_TRUE(fetchTicked());
    LoginDialog* const asked = dialog();
    ASSERT_TRUE(asked);
    asked->findChild<QLineEdit*>("user")->setText("coach");
    asked->findChild<QLineEdit*>("password")->setText("very-secret-word");
    asked->findChild<QCheckBox*>()->setChecked(true);
    asked->accept();
    ASSERT_TRUE(fetchTicked());
    EXPECT_EQ(m_window->rows()[0].result->kind, FilmResult::Kind::Fetched);
    EXPECT_EQ(m_store->kept->password, "very-secret-word");
    const QString saved = QString::fromStdString((m_folder.path() / "films.json").string());
    ASSERT_TRUE(m_window->saveSource(saved));
    for (const fs::path& file :
         {fs::path(saved.toStdString()), m_folder.path() / "preferences.ini"})
        if (fs::exists(file)) {
            EXPECT_EQ(contentOf(file).find("very-secret-word"), std::string::npos) << file;
        }
    for (const std::string& line : m_recorder.lines)
        EXPECT_EQ(line.find("very-secret-word"), std::string::npos);
}

TEST_F(FetchWindowTest, OpensItsSourcesAndSaysWhatIsWrongWithOthers) {
    setSource("/{bip}.mp4");
    m_window->showPlan();
    EXPECT_THAT(m_window->fault().toStdString(), HasSubstr("{bip} means nothing"));
    setSource("/{bib}.mp4");
    const QString path = QString::fromStdString((m_folder.path() / "films.json").string());
    ASSERT_TRUE(m_window->saveSource(path));
    const fetch::filmsource001 saved = m_window->source();
    setSource("/list.html");
    ASSERT_TRUE(m_window->open(path));
    EXPECT_EQ(m_window->source(), saved);
    (void)m_folder.add("other.json", "{\"address\":5}");
    EXPECT_FALSE(m_window->open(QString::fromStdString((m_folder.path() / "other.json").string())));
    EXPECT_THAT(m_recorder.alerts, Contains(HasSubstr("address: ")));
    EXPECT_EQ(m_window->source(), saved);
    (void)m_folder.add("empty.csv", "name\nAnn Lee\n");
    ASSERT_TRUE(m_window->open(QString::fromStdString((m_folder.path() / "empty.csv").string())));
    ASSERT_TRUE(showPlan());
    EXPECT_THAT(m_window->fault().toStdString(), HasSubstr("No bib was found"));
}

TEST_F(FetchWindowTest, StopsOnlyWhereItMayBeforeItCloses) {
    server.add("/014.mp4", {silence()});
    setSource("/{bib:3}.mp4");
    ASSERT_TRUE(showPlan());
    m_window->fetchTicked();
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isFetching());
    m_window->cancel();
    EXPECT_FALSE(m_window->isFetching());
    EXPECT_THAT(m_window->status().toStdString(), HasSubstr("cancelled"));
    m_window->fetchTicked();
    m_mayClose = true;
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(m_questions, 2);
}

} // namespace kavela::test
