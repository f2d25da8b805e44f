#include "desktop/update/updates.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/shell/home_window.h"
#include "desktop/shell/settings_window.h"
#include "desktop/shell/update_choice.h"
#include "desktop/shell/workspace.h"
#include "desktop/update/offer_dialog.h"
#include "fetch/faulty_server.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <QCryptographicHash>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSysInfo>
#include <QTest>

namespace kavela::test {
namespace {

using desktop::OfferDialog;
using desktop::Updates;
using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double SecondsADay = 86'400;

class UpdatesTest : public ::testing::Test {
protected:
    UpdatesTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert&) {
            ++questions;
            return isYes;
        });
        m_workspace.setUpdateSource(
            update::UpdateSource{fetch::parsedAddress(server.address("/newest.json")).value(),
                                 update::parsedPublicKey(keys.publicKey).value()});
        serve("0.32.0", keys.secretKey);
        startAgain();
    }

    /// A start of the program.
    void startAgain() {
        updates = std::make_unique<Updates>(m_workspace, update::Version{{0, 31, 0}});
        updates->setPace({.silenceMilliseconds = 5'000, .secondMilliseconds = 1});
        updates->setFolder(folder.path());
        updates->setShowFile([this](const QString& path) { shown.append(path); });
    }

    void serve(const std::string& version, const std::string& secretKey) {
        const std::string platform =
            update::platformName(QSysInfo::currentCpuArchitecture().toStdString(), false);
        const std::string text =
            json{{"version", version},
                 {"date", "2026-11-22"},
                 {"notes", "<b>Better</b>"},
                 {"files",
                  {{{"platform", platform},
                    {"address", server.address("/kavela.deb")},
                    {"size", package.size()},
                    {"sha256", QCryptographicHash::hash(package, QCryptographicHash::Sha256)
                                   .toHex()
                                   .toStdString()}}}}}
                .dump();
        server.add("/newest.json", {served(QByteArray::fromStdString(text), "\"a\"")});
        server.add(
            "/newest.json.sig",
            {served(QByteArray::fromStdString(update::signatureOf(secretKey, text)), "\"a\"")});
    }

    bool ends() {
        return QTest::qWaitFor([this] { return !updates->isLooking(); }, 20'000);
    }
    bool start() {
        updates->beginAtStart(nullptr);
        return ends();
    }
    bool ask() {
        updates->lookNow(nullptr);
        return ends();
    }
    void press(const char* button) const {
        updates->offer()->findChild<QPushButton*>(button)->click();
    }
    void startNextDay() {
        now += SecondsADay;
        startAgain();
        ASSERT_TRUE(start());
    }

    const QByteArray package = QByteArray(50'000, 'k');
    const update::KeyPair keys = update::newKeyPair();
    FaultyServer server;
    TempFolder folder;
    TempFolder m_kept;
    Recorder m_recorder;
    double now = 8e8;
    desktop::Workspace m_workspace{Preferences(m_kept.path() / "preferences.ini"), m_recorder.log(),
                                   [this] { return ReferenceDate{now}; }};
    std::unique_ptr<Updates> updates;
    QStringList shown;
    int questions = 0;
    bool isYes = true;
};

} // namespace

TEST_F(UpdatesTest, AsksOnceAndLooksNeverWithoutAYes) {
    isYes = false;
    ASSERT_TRUE(start());
    startNextDay();
    EXPECT_EQ(questions, 1);
    EXPECT_THAT(server.asked, IsEmpty());
    ASSERT_TRUE(ask()) << "a look that the coach wants needs no other yes";
    EXPECT_TRUE(updates->offer());
}

TEST_F(UpdatesTest, LooksOnceADay) {
    ASSERT_TRUE(start());
    ASSERT_TRUE(updates->offer());
    press("later");
    startAgain();
    ASSERT_TRUE(start());
    EXPECT_THAT(server.askedFor("/newest.json"), SizeIs(1));
    startNextDay();
    EXPECT_THAT(server.askedFor("/newest.json"), SizeIs(2));
    EXPECT_TRUE(updates->offer()) << "later is another day";
    EXPECT_EQ(questions, 1);
}

TEST_F(UpdatesTest, OffersASkippedVersionOnlyWhereItIsAskedFor) {
    ASSERT_TRUE(start());
    press("skip");
    startNextDay();
    EXPECT_FALSE(updates->offer());
    serve("0.33.0", keys.secretKey);
    startNextDay();
    EXPECT_TRUE(updates->offer());
    press("skip");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !updates->offer(); }));
    ASSERT_TRUE(ask());
    EXPECT_TRUE(updates->offer());
}

TEST_F(UpdatesTest, BringsTheFileAndShowsItsFolder) {
    server.add("/kavela.deb", {always(answer("404 Not Found")), served(package, "\"a\"")});
    ASSERT_TRUE(ask());
    const auto* const notes = updates->offer()->findChild<QPlainTextEdit*>("notes");
    EXPECT_EQ(notes->toPlainText(), "<b>Better</b>") << "what comes from elsewhere is no markup";
    auto* const get = updates->offer()->findChild<QPushButton*>("get");
    get->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return get->isEnabled(); }, 20'000));
    EXPECT_THAT(shown, IsEmpty());
    get->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return get->isEnabled(); }, 20'000));
    EXPECT_THAT(folder.names(), ElementsAre("kavela.deb"));
    EXPECT_TRUE(contentOf(folder.path() / "kavela.deb") == package.toStdString());
    EXPECT_THAT(shown, SizeIs(1));
}

TEST_F(UpdatesTest, LeavesNothingWhenTheOfferIsClosedMeanwhile) {
    server.add("/kavela.deb", {silence()});
    ASSERT_TRUE(ask());
    press("get");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !server.askedFor("/kavela.deb").empty(); }));
    EXPECT_THAT(folder.names(), SizeIs(1));
    press("later");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !updates->offer(); }));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(UpdatesTest, TellsOfAListThatMustNotBeUsedAndOfNoOtherFaultUnasked) {
    serve("0.32.0", update::newKeyPair().secretKey);
    ASSERT_TRUE(start());
    ASSERT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_recorder.alerts[0], HasSubstr("somebody else's"));
    EXPECT_FALSE(updates->offer());
    m_recorder.alerts.clear();
    server.add("/newest.json", {always(answer("404 Not Found"))});
    startNextDay();
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
    ASSERT_TRUE(ask());
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    m_recorder.alerts.clear();
}

TEST_F(UpdatesTest, GoesBackToNoVersionThatWasOfferedBefore) {
    serve("0.33.0", keys.secretKey);
    ASSERT_TRUE(start());
    serve("0.32.0", keys.secretKey);
    startNextDay();
    ASSERT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_recorder.alerts[0], HasSubstr("older than 0.33.0"));
    EXPECT_FALSE(updates->offer());
    m_recorder.alerts.clear();
}

TEST_F(UpdatesTest, IsSeenOnlyInAProgramThatHasWhereToLook) {
    const auto isInHelp = [this] {
        const desktop::HomeWindow home(m_workspace, {});
        for (const QAction* const action : home.menuBar()->actions().last()->menu()->actions())
            if (action->text() == "&Look for a newer version")
                return true;
        return false;
    };
    EXPECT_TRUE(isInHelp());
    EXPECT_TRUE(desktop::SettingsWindow(m_workspace).findChild<QLineEdit*>("updateAddress"));
    m_workspace.setUpdateSource(std::nullopt);
    EXPECT_FALSE(isInHelp());
    EXPECT_FALSE(desktop::SettingsWindow(m_workspace).findChild<QLineEdit*>("updateAddress"));
    ASSERT_TRUE(start());
    EXPECT_EQ(questions, 0);
}

TEST_F(UpdatesTest, LooksWhereTheSettingsSayButTrustsItsOwnKey) {
    FaultyServer other;
    EXPECT_FALSE(desktop::chooseUpdateAddress(m_workspace, "http://example.org/newest.json"));
    ASSERT_TRUE(desktop::chooseUpdateAddress(m_workspace,
                                             QString::fromStdString(other.address("/own.json"))));
    ASSERT_TRUE(ask());
    EXPECT_THAT(other.askedFor("/own.json"), SizeIs(1));
    EXPECT_THAT(server.asked, IsEmpty());
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    m_recorder.alerts.clear();
    ASSERT_TRUE(desktop::chooseUpdateAddress(m_workspace, ""));
    ASSERT_TRUE(ask());
    EXPECT_TRUE(updates->offer());
}

} // namespace kavela::test
