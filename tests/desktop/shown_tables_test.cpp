#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/shell/tool_window.h"
#include "desktop/tools.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace kavela::test {
namespace {

using desktop::Desktop;

QString onOneLine(const QVariant& text) {
    return text.toString().replace('\n', ' ').trimmed();
}

/// What is shown of a row and of those below it, its columns in the order of the screen.
void addRows(QString& text, const QAbstractItemModel& model, const QList<int>& columns,
             const QModelIndex& parent, int depth) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
        QStringList cells;
        for (const int column : columns) {
            const QModelIndex index = model.index(row, column, parent);
            QString cell = onOneLine(index.data());
            if (const QVariant tick = index.data(Qt::CheckStateRole); tick.isValid())
                cell.prepend(tick.toInt() == Qt::Checked ? "[x]" : "[ ]");
            cells.append(cell);
        }
        text += QString(2 * depth, ' ') + cells.join(" | ").trimmed() + '\n';
        addRows(text, model, columns, model.index(row, 0, parent), depth + 1);
    }
}

const QHeaderView* headerOf(const QAbstractItemView& view) {
    if (const auto* const table = qobject_cast<const QTableView*>(&view))
        return table->horizontalHeader();
    if (const auto* const tree = qobject_cast<const QTreeView*>(&view))
        return tree->header();
    return nullptr;
}

QString textOf(const QAbstractItemView& view) {
    const QAbstractItemModel& model = *view.model();
    const QHeaderView* const header = headerOf(view);
    QList<int> columns{0};
    QString text = "== " + view.objectName() + '\n';
    if (header) {
        columns.clear();
        QStringList titles;
        for (int place = 0; place < header->count(); ++place) {
            const int column = header->logicalIndex(place);
            if (header->isSectionHidden(column))
                continue;
            columns.append(column);
            titles.append(onOneLine(model.headerData(column, Qt::Horizontal)));
        }
        text += titles.join(" | ") + '\n';
    }
    addRows(text, model, columns, {}, 0);
    return text;
}

/// Every table of a window, also those behind its tabs, by their names.
QString tablesOf(QWidget& window) {
    for (QTabWidget* const tabs : window.findChildren<QTabWidget*>())
        for (int page = tabs->count() - 1; page >= 0; --page) {
            tabs->setCurrentIndex(page);
            QApplication::processEvents();
        }
    QStringList texts;
    for (const QAbstractItemView* const view : window.findChildren<QAbstractItemView*>()) {
        const bool isPopup =
            view->window() != &window || qobject_cast<QHeaderView*>(view->parent());
        if (!isPopup && !qobject_cast<const QHeaderView*>(view) && view->model())
            texts.append(textOf(*view));
    }
    texts.sort();
    return texts.join('\n');
}

std::string contentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

struct Shown {
    const char* tool;
    const char* file;
};

/// What the tables of the sample season say, cell by cell. Where a change of them is meant, this
/// test with KAVELA_WRITE_TABLES in its environment writes the files anew, and their difference
/// shows what changed.
class ShownTablesTest : public ::testing::TestWithParam<Shown> {
protected:
    ShownTablesTest() { m_workspace.setAlerts(&m_recorder); }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
};

TEST_P(ShownTablesTest, SayWhatTheyAlwaysSaid) {
    Desktop program(m_workspace,
                    desktop::Autosave(QString::fromStdString((m_folder.path() / "kept").string())));
    ASSERT_TRUE(program.openIn(*desktop::toolOfKind(GetParam().tool),
                               QString(KAVELA_EXAMPLES) + '/' + GetParam().file));
    QTRY_COMPARE(program.windows().size(), 1); // some files are read beside the windows
    const std::string shown = tablesOf(*program.windows().front()).toStdString();
    const std::string path = std::string(KAVELA_TEST_DATA "/shown_tables/") + GetParam().tool +
                             '.' + std::filesystem::path(GetParam().file).stem().string() + ".txt";
    if (std::getenv("KAVELA_WRITE_TABLES"))
        std::ofstream(path) << shown;
    EXPECT_EQ(shown, contentOf(path));
}

INSTANTIATE_TEST_SUITE_P(Tools, ShownTablesTest,
                         ::testing::Values(Shown{"race", "races/riverside_cup.kvx"},
                                           Shown{"taking", "races/spring_opener.kvx"},
                                           Shown{"cross", "races/harbour_cross.kvx"},
                                           Shown{"team", "team/kavela_team.kvteam"},
                                           Shown{"selection", "selection/spring_selection.kvsr"},
                                           Shown{"planning", "planning/season.planning"},
                                           Shown{"watertests", "tests/form_tests.kvtest"},
                                           Shown{"session", "recordings/sprint_with_watch.kvb"},
                                           Shown{"motion", "recordings/upstream_drill.kvb"}),
                         [](const auto& tool) {
                             std::string name =
                                 std::string(tool.param.tool) + '_' +
                                 std::filesystem::path(tool.param.file).stem().string();
                             return name;
                         });

} // namespace
} // namespace kavela::test
