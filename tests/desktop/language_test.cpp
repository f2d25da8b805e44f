#include "common/environment_variable.h"
#include "desktop/shell/language.h"

#include "boatmotion/imports/sensor_csv.h"
#include "common/json_decode.h"
#include "common/temp_folder.h"
#include "common/text.h"
#include "desktop/shell/autosave.h"
#include "desktop/shell/menu_keys.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/settings_window.h"
#include "desktop/shell/tool_window.h"
#include "desktop/shell/workspace.h"
#include "desktop/tools.h"
#include "facts/query_text.h"
#include "fetch/resume_rules.h"
#include "language/languages.h"
#include "update/update_rules.h"
#include "vision/slit_file.h"
#include "vision/water_plane.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLocale>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QStringList>
#include <QTabWidget>
#include <QTest>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kavela::test {
namespace {

using desktop::SpokenLanguage;

class LanguageTest : public testing::Test {
protected:
    const TempFolder m_folder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   [](std::string_view) {}, systemNow};
};

TEST_F(LanguageTest, IsChosenInTheSettingsAndKeptForTheNextStart) {
    const EnvironmentVariable undecided("KAVELA_LANGUAGE", "");
    const EnvironmentVariable system("LC_ALL", "C.UTF-8");
    desktop::SettingsWindow settings(m_workspace);
    auto* const choice = settings.findChild<QComboBox*>("language");
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->currentIndex(), 0) << "as the system";
    QTest::keyClick(choice, Qt::Key_Down);
    EXPECT_EQ(desktop::chosenLanguage(m_workspace), "en");
    EXPECT_EQ(desktop::SettingsWindow(m_workspace)
                  .findChild<QComboBox*>("language")
                  ->currentData()
                  .toString(),
              "en");
    QTest::keyClick(choice, Qt::Key_Home);
    EXPECT_EQ(desktop::chosenLanguage(m_workspace), "");
    EXPECT_EQ(desktop::spokenLanguage(m_workspace), "en");
}

TEST_F(LanguageTest, OfTheEnvironmentDecidesBeforeTheChosenOne) {
    const EnvironmentVariable decided("KAVELA_LANGUAGE", "pseudo");
    desktop::chooseLanguage(m_workspace, "en");
    EXPECT_EQ(desktop::spokenLanguage(m_workspace), "pseudo");
}

TEST_F(LanguageTest, ThatIsUnknownGivesWayToTheSystems) {
    const EnvironmentVariable undecided("KAVELA_LANGUAGE", "");
    const EnvironmentVariable system("LC_ALL", "C.UTF-8");
    desktop::chooseLanguage(m_workspace, "tlh");
    EXPECT_EQ(desktop::spokenLanguage(m_workspace), "en");
}

/// The ways by which a text reaches a window: a class, a plain function whose context no source
/// has, a table looked up later, a number of things, a plain library.
TEST_F(LanguageTest, ReachesEveryKindOfText) {
    const QLocale before;
    {
        const SpokenLanguage pseudo("pseudo", false);
        const auto isSaid = [](const QString& text, const QString& english) {
            return text.size() >= 2 * english.size() && text != english;
        };
        EXPECT_TRUE(isSaid(desktop::SettingsWindow::tr("As the system"), "As the system"));
        EXPECT_TRUE(
            isSaid(QCoreApplication::translate("Desktop", "Race analyzer"), "Race analyzer"));
        EXPECT_TRUE(
            isSaid(QCoreApplication::translate("MotionRecording", "Hull speed"), "Hull speed"));
        const QString films = QCoreApplication::translate("none", "%n films", nullptr, 12);
        EXPECT_TRUE(films.startsWith("12 ") && films != "12 films") << films.toStdString();
        EXPECT_NE(say("{} met nobody in these races.", "Ana"), "Ana met nobody in these races.");
    }
    EXPECT_EQ(desktop::SettingsWindow::tr("As the system"), "As the system");
    EXPECT_EQ(translated("Hull speed"), "Hull speed");
    EXPECT_EQ(QLocale(), before);
}

std::string faultOfDoing(const std::function<void()>& what) {
    try {
        what();
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

/// A sentence of every library that refuses what a coach gave it.
std::array<std::string, 7> faultsOfLibraries() {
    return {faultOfDoing([] { (void)decodeText<slitfile002>("{}"); }),
            faultOfDoing([] { (void)decodeText<slitfile002>("[]"); }),
            faultOfDoing([] { (void)parsedQuery("gates time"); }),
            faultOfDoing([] { (void)WaterPlane(std::vector<PlanePoint>()); }),
            faultOf(CsvMapping()).value_or(""),
            fetch::planOfAnswer({}, false, {}, {.status = 404}, 0).reason,
            update::verdictOn({}, {}, "deb-amd64", false).sentence};
}

TEST_F(LanguageTest, ReachesTheFaultsOfEveryLibrary) {
    const auto english = faultsOfLibraries();
    const SpokenLanguage pseudo("pseudo", false);
    const auto said = faultsOfLibraries();
    for (std::size_t i = 0; i < english.size(); ++i) {
        EXPECT_NE(english[i], "") << i;
        EXPECT_GT(said[i].size(), english[i].size()) << english[i];
    }
}

/// The column of files to be shared, and a proportion.
TEST_F(LanguageTest, PartsTheMeaningsOfAWord) {
    const SpokenLanguage german("de", false);
    EXPECT_EQ(QCoreApplication::translate("kavela::desktop::SharedRows", "Share"), "Teilen");
    EXPECT_EQ(QCoreApplication::translate("Penalties", "Share"), "Anteil");
}

/// Texts of a window that do not have the room they ask for.
QStringList clippedTexts(const QWidget& window) {
    QStringList clipped;
    for (const auto* const label : window.findChildren<QLabel*>())
        if (label->isVisible() && !label->text().isEmpty() &&
            (label->wordWrap() ? label->height() < label->heightForWidth(label->width())
                               : label->width() < label->sizeHint().width()))
            clipped << label->text();
    for (const auto* const button : window.findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->text().isEmpty() &&
            button->width() < button->minimumSizeHint().width())
            clipped << button->text();
    return clipped;
}

TEST_F(LanguageTest, OfLongTextsFitsTheSettings) {
    const SpokenLanguage pseudo("pseudo", false);
    desktop::SettingsWindow settings(m_workspace);
    settings.resize(1280, 800);
    settings.show();
    auto* const pages = settings.findChild<QTabWidget*>();
    ASSERT_TRUE(pages);
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        QApplication::processEvents();
        EXPECT_TRUE(pages->tabText(page).contains("xax")) << pages->tabText(page).toStdString();
        EXPECT_LE(settings.width(), 1280) << "grew on page " << page;
        EXPECT_LE(settings.height(), 800) << "grew on page " << page;
        EXPECT_EQ(clippedTexts(settings).join('\n'), "") << "on page " << page;
    }
}

/// Pairs of texts among the actions, and in the menus below them, that one key would reach.
QStringList doubledKeys(const QList<QAction*>& actions) {
    QStringList doubled;
    QMap<QString, QString> reached;
    for (const QAction* const action : actions) {
        const QString key = QKeySequence::mnemonic(action->text()).toString();
        if (!key.isEmpty() && reached.contains(key))
            doubled << reached[key] + " / " + action->text();
        reached.insert(key, action->text());
        if (action->menu())
            doubled << doubledKeys(action->menu()->actions());
    }
    return doubled;
}

TEST_F(LanguageTest, ThatIsOfferedHasNoKeyTwiceAndFitsTheScreen) {
    const auto& tools = desktop::toolKinds(); // said once, in English here
    const desktop::Autosave kept(QString::fromStdString((m_folder.path() / "kept").string()));
    for (const Language& language : offeredLanguages()) {
        const SpokenLanguage spoken(desktop::qtText(language.code), false);
        for (const desktop::ToolKind& tool : tools) {
            const std::unique_ptr<desktop::ToolWindow> window(tool.make(m_workspace, kept));
            const QString where = desktop::qtText(language.code) + ' ' + tool.kind;
            EXPECT_EQ(doubledKeys(window->menuBar()->actions()).join('\n'), "")
                << where.toStdString();
            EXPECT_LE(window->minimumSizeHint().width(), 1280) << where.toStdString();
            EXPECT_LE(window->minimumSizeHint().height(), 800) << where.toStdString();
        }
    }
}

TEST(MenuKeys, ArePartedInEveryMenu) {
    QMenu menu;
    menu.addAction("&Salida");
    menu.addAction("&Series de hoy");
    menu.addAction("&Sss && &sa"); // its second letter stands for nothing
    menu.addAction("&Ó");
    QMenu* const below = menu.addMenu("&Hoja");
    below->addAction("&Salida");
    below->addAction("Todas\tCtrl+S");
    desktop::partMenuKeys(menu.actions());
    QStringList texts;
    for (const QAction* const action : menu.actions())
        texts << action->text();
    EXPECT_EQ(texts.join('|').toStdString(), "&Salida|Series &de hoy|Sss && s&a|&Ó|&Hoja");
    EXPECT_EQ(below->actions().first()->text().toStdString(), "&Salida") << "a menu of its own";
    EXPECT_EQ(below->actions().last()->text().toStdString(), "Todas\tCtrl+S");
}

TEST(DoubledKeys, AreFoundInMenusBelow) {
    QMenu menu;
    menu.addAction("&Open");
    menu.addAction("&Save");
    EXPECT_EQ(doubledKeys(menu.actions()), QStringList());
    QMenu* const below = menu.addMenu("&More");
    below->addAction("&Print");
    below->addAction("To the &printer");
    EXPECT_EQ(doubledKeys(menu.actions()), QStringList{"&Print / To the &printer"});
}

} // namespace
} // namespace kavela::test
