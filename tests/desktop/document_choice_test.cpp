#include "desktop/path_text.h"
#include "desktop/shell/document_choice.h"

#include "common/temp_folder.h"
#include "desktop/tools.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace kavela::test {
namespace {

using desktop::DocumentChoiceDialog;

const desktop::DocumentKind Teams{"Team results", "Teams", "kvteam", "Team"};

TEST(DocumentChoice, OpensWithEnterWhatWasOpenLast) {
    DocumentChoiceDialog dialog(Teams, {"/races/B.kvteam", "/races/A.kvteam"}, nullptr);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.choice().path, "/races/B.kvteam");
    EXPECT_FALSE(dialog.choice().isNew);
}

TEST(DocumentChoice, NamesANewDocumentWhereItWillBeSaved) {
    const TempFolder folder;
    DocumentChoiceDialog dialog(Teams, {pathText(folder.path() / "A.kvteam")}, nullptr);
    dialog.show();
    QTimer::singleShot(0, [&] {
        auto* const naming = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(naming);
        EXPECT_EQ(naming->acceptMode(), QFileDialog::AcceptSave) << "nothing is opened";
        EXPECT_EQ(naming->directory().path(), pathText(folder.path()));
        naming->findChild<QLineEdit*>()->setText("Juniors");
        static_cast<QDialog*>(naming)->accept();
    });
    dialog.findChild<QPushButton*>("new")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.choice().path, pathText(folder.path() / "Juniors.kvteam"));
    EXPECT_TRUE(dialog.choice().isNew);
}

TEST(DocumentChoice, ShowsTheFilmsOfEveryCamera) {
    int films = 0;
    for (const desktop::ToolKind& tool : desktop::toolKinds()) {
        if (tool.documents.suffix != "mp4")
            continue;
        ++films;
        EXPECT_TRUE(tool.documents.openFilter().contains(" *.mov ")) << tool.title.toStdString();
    }
    EXPECT_GE(films, 3);
    EXPECT_TRUE(Teams.openFilter().startsWith("Teams (*.kvteam);;"));
}

TEST(DocumentChoice, ChoosesNothingWhenNamingIsGivenUp) {
    DocumentChoiceDialog dialog(Teams, {}, nullptr);
    dialog.show();
    QTimer::singleShot(0, [] {
        if (auto* const naming = QApplication::activeModalWidget())
            naming->close();
    });
    ASSERT_TRUE(dialog.focusWidget());
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); // new is what is left to do
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(dialog.choice().path.isEmpty());
}

} // namespace
} // namespace kavela::test
