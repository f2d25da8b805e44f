#include "desktop/help/guide.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/help/guide_text.h"
#include "desktop/help/guide_window.h"
#include "desktop/shell/home_window.h"
#include "desktop/shell/settings_window.h"
#include "desktop/tools.h"
#include "desktop/update/offer_dialog.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTreeWidget>
#include <QUrl>

namespace kavela::test {
namespace {

using desktop::GuideChapter;
using desktop::GuideText;
using desktop::GuideWindow;

QStringList titlesOf(const QList<GuideChapter>& chapters) {
    QStringList titles;
    for (const GuideChapter& chapter : chapters)
        titles.append(chapter.title);
    return titles;
}

TEST(Guide, HasAChapterForEveryToolAndForTheRestOfTheProgram) {
    QTextDocument document;
    document.setMarkdown(desktop::guideText());
    const QStringList titles = titlesOf(desktop::chaptersOf(document));
    QStringList kinds{"home", "settings"};
    for (const desktop::ToolKind& tool : desktop::toolKinds())
        kinds.append(tool.kind);
    for (const QString& kind : kinds) {
        const QString title = desktop::guideChapterOn(kind);
        EXPECT_TRUE(titles.contains(title)) << kind.toStdString() << ": " << title.toStdString();
        EXPECT_EQ(title == desktop::guideChapterOn("none"), kind == "home") << kind.toStdString();
    }
}

/// What is left out of the resources would be an empty frame, or a link that leads nowhere.
TEST(Guide, BringsItsPicturesAndKnowsWhereItsLinksLead) {
    const QString text = desktop::guideText();
    const GuideText page;
    const QList<GuideChapter> chapters = desktop::chaptersOf(*page.document());
    QStringList anchors;
    for (const GuideChapter& chapter : chapters)
        anchors.append(desktop::anchorOf(chapter.title));
    static const QRegularExpression Link(R"((!?)\[[^\]]*\]\(([^)]+)\))");
    int pictures = 0;
    for (const QRegularExpressionMatch& match : Link.globalMatch(text)) {
        const QString target = match.captured(2);
        if (!match.captured(1).isEmpty()) {
            ++pictures;
            EXPECT_FALSE(QImage(":/guide/" + target).isNull()) << target.toStdString();
            const auto shown = page.document()
                                   ->resource(QTextDocument::ImageResource, QUrl(target))
                                   .value<QImage>();
            EXPECT_LE(shown.deviceIndependentSize().width(), 641) << target.toStdString();
            EXPECT_FALSE(shown.isNull()) << target.toStdString();
        } else if (target.startsWith('#')) {
            EXPECT_TRUE(anchors.contains(target.mid(1))) << target.toStdString();
        }
    }
    EXPECT_GT(pictures, 10);
}

class GuideWindowTest : public ::testing::Test {
protected:
    GuideWindowTest() { m_workspace.setAlerts(&m_recorder); }

    static GuideWindow* shownGuide() {
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (auto* const guide = qobject_cast<GuideWindow*>(window); guide && guide->isVisible())
                return guide;
        return nullptr;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
};

TEST_F(GuideWindowTest, OpensByF1AtTheChapterOfTheWindowInFront) {
    desktop::Desktop program(m_workspace, desktop::Autosave(QString::fromStdString(
                                              (m_folder.path() / "kept").string())));
    program.showHome();
    QWidget* const home = program.front();
    ASSERT_TRUE(home);
    QApplication::setActiveWindow(home);
    QTest::keyClick(home, Qt::Key_F1);
    GuideWindow* const guide = shownGuide();
    ASSERT_TRUE(guide);
    EXPECT_EQ(guide->chapter(), "The desktop program");
    program.open(QString(KAVELA_EXAMPLES) + "/team/kavela_team.kvteam");
    QTRY_COMPARE(program.windows().size(), 1);
    QApplication::setActiveWindow(program.windows().constFirst());
    QTest::keyClick(program.windows().constFirst(), Qt::Key_F1);
    EXPECT_EQ(shownGuide(), guide) << "there is one";
    EXPECT_EQ(guide->chapter(), "Team results");
    auto* const text = guide->findChild<GuideText*>();
    guide->resize(700, 500);
    QApplication::processEvents();
    EXPECT_EQ(guide->chapter(), "Team results") << "the text is laid out anew";
    const auto top = text->cursorForPosition(QPoint(20, 12)).block().blockNumber();
    EXPECT_NEAR(top, text->topBlock(), 1) << "that is what one sees";
}

/// Over a dialog that is waited for, no other window could be used.
TEST_F(GuideWindowTest, OpensOverADialog) {
    desktop::Desktop program(m_workspace, desktop::Autosave(QString::fromStdString(
                                              (m_folder.path() / "kept").string())));
    desktop::SettingsWindow settings(m_workspace);
    settings.open();
    QTest::keyClick(&settings, Qt::Key_F1);
    GuideWindow* const guide = shownGuide();
    ASSERT_TRUE(guide);
    EXPECT_EQ(guide->parentWidget(), &settings);
    EXPECT_EQ(guide->chapter(), "Settings");
    QTest::keyClick(guide, Qt::Key_Escape);
    EXPECT_FALSE(guide->isVisible());
    EXPECT_TRUE(settings.isVisible());
}

TEST_F(GuideWindowTest, GoesByLinkAndContentsAndBackAndForward) {
    GuideWindow guide(m_workspace);
    guide.setAttribute(Qt::WA_DeleteOnClose, false);
    guide.show();
    guide.showChapter("Time losses");
    emit guide.findChild<GuideText*>()->anchorClicked(QUrl("#compare-films"));
    EXPECT_EQ(guide.chapter(), "Compare films");
    auto* const contents = guide.findChild<QTreeWidget*>("guideContents");
    ASSERT_TRUE(contents->currentItem());
    EXPECT_EQ(contents->currentItem()->text(0), "Compare films");
    contents->setCurrentItem(contents->itemBelow(contents->currentItem()));
    EXPECT_EQ(guide.chapter(), "Tracking");
    guide.goBack();
    guide.goBack();
    EXPECT_EQ(guide.chapter(), "Time losses");
    guide.goForward();
    EXPECT_EQ(guide.chapter(), "Compare films");
    guide.showChapter("Find");
    guide.goForward();
    EXPECT_EQ(guide.chapter(), "Find") << "nothing lies before what was just opened";
    guide.goBack();
    EXPECT_EQ(guide.chapter(), "Compare films");
    guide.showChapter("No such chapter");
    EXPECT_EQ(guide.chapter(), "Compare films");
}

TEST_F(GuideWindowTest, LeavesTheChaptersThatHaveTheWordsAndGoesFromPlaceToPlace) {
    GuideWindow guide(m_workspace);
    guide.setAttribute(Qt::WA_DeleteOnClose, false);
    guide.show();
    auto* const search = guide.findChild<QLineEdit*>("guideSearch");
    auto* const contents = guide.findChild<QTreeWidget*>("guideContents");
    auto* const text = guide.findChild<GuideText*>();
    const auto isListed = [&](const QString& title) {
        const auto found =
            contents->findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
        return found && !found->isHidden() && (!found->parent() || !found->parent()->isHidden());
    };
    search->setText("pickets wireless");
    EXPECT_FALSE(isListed("Share folders"));
    EXPECT_TRUE(guide.findChild<QLabel*>("guideFound")->text().contains("No chapter"));
    search->setText("server CERTIFICATE");
    EXPECT_TRUE(isListed("Share folders"));
    EXPECT_FALSE(isListed("Tracking"));
    search->setText("split");
    ASSERT_GT(text->extraSelections().size(), 10);
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(search, Qt::Key_Return);
        EXPECT_EQ(text->textCursor().selectionStart(),
                  text->extraSelections().at(i).cursor.selectionStart());
    }
    search->clear();
    EXPECT_TRUE(text->extraSelections().isEmpty());
    EXPECT_TRUE(isListed("Tracking"));
}

} // namespace
} // namespace kavela::test
