#include "desktop/race/race_window.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/charts/chart_panel.h"
#include "desktop/race/frozen_table.h"
#include "desktop/race/run_panel.h"
#include "desktop/race/table_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

namespace kavela::desktop {

namespace {

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

/// Refills a filter with the values that the runs have, the choice of all in front.
void fill(QComboBox& box, const QString& all, const RaceSet& set,
          std::string analyzerdata::*field) {
    const QSignalBlocker blocker(box);
    QStringList values;
    for (const analyzerdata& run : set.alldata)
        if (const QString value = qtText(run.*field); !value.isEmpty() && !values.contains(value))
            values.append(value);
    box.clear();
    box.addItem(all, QString());
    for (const QString& value : values)
        box.addItem(value, value);
    box.setVisible(values.size() > 1);
}

QString countText(int runs) {
    return runs == 1 ? RaceWindow::tr("1 run") : RaceWindow::tr("%1 runs").arg(runs);
}

} // namespace

RaceWindow::RaceWindow(Workspace& workspace)
    : m_workspace(workspace), m_document(workspace), m_model(m_document) {
    setAttribute(Qt::WA_DeleteOnClose);
    makeCentre();
    makeFileMenu();
    makeTableMenu();
    connect(&m_document, &RaceDocument::tableChanged, this, [this] {
        m_count->setText(countText(m_model.rowCount()));
        showCharts();
        showSelection();
    });
    connect(&m_document, &RaceDocument::changedOnDisk, this, &RaceWindow::offerReload);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RaceWindow::showSelection);
    resize(1280, 800);
}

bool RaceWindow::open(const QString& path) {
    if (!m_document.open(path, this))
        return false;
    showDocument();
    return true;
}

void RaceWindow::makeCentre() {
    m_table = new FrozenTable(SplitTableModel::LeadingColumns);
    m_table->setObjectName("splitTable");
    m_table->setModel(&m_model);
    m_panel = new RunPanel(m_document);

    m_charts = new ChartPanel;
    connect(m_charts, &ChartPanel::runActivated, this, &RaceWindow::selectRun);
    connect(m_charts, &ChartPanel::savingFailed, this,
            [this](const QString&, const QString& reason) {
                m_workspace.log()("Failed to create file");
                m_workspace.showAlert({"Failed to create file", reason.toStdString()}, this);
            });

    auto* work = new QSplitter(Qt::Vertical);
    work->addWidget(m_table);
    work->addWidget(m_charts);
    work->setStretchFactor(0, 1);
    work->setSizes({420, 280});
    auto* split = new QSplitter;
    split->addWidget(work);
    split->addWidget(m_panel);
    split->setStretchFactor(0, 1);
    split->setSizes({900, 340});

    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                               theme::LargeSpacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(makeFilterBar());
    column->addWidget(split, 1);
    setCentralWidget(page);
}

QWidget* RaceWindow::makeFilterBar() {
    m_title = new QLabel;
    m_title->setFont(theme::titleFont(*this));
    m_subtitle = new QLabel;
    m_subtitle->setForegroundRole(QPalette::PlaceholderText);
    m_note = new QLabel;
    m_note->setForegroundRole(QPalette::PlaceholderText);
    m_note->hide();
    m_count = new QLabel;
    m_count->setForegroundRole(QPalette::PlaceholderText);
    m_phase = new QComboBox;
    m_phase->setObjectName("phase");
    m_category = new QComboBox;
    m_category->setObjectName("category");
    m_name = new QLineEdit;
    m_name->setObjectName("name");
    m_name->setPlaceholderText(tr("Name"));
    m_name->setClearButtonEnabled(true);
    m_name->setMaximumWidth(200);
    for (QComboBox* box : {m_phase, m_category})
        connect(box, &QComboBox::currentIndexChanged, this, &RaceWindow::applyFilter);
    connect(m_name, &QLineEdit::textChanged, this, &RaceWindow::applyFilter);

    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    for (QLabel* label : {m_title, m_subtitle, m_note}) {
        label->setTextFormat(Qt::PlainText);
        words->addWidget(label);
    }
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    row->addLayout(words, 1);
    for (QWidget* widget : std::initializer_list<QWidget*>{m_count, m_phase, m_category, m_name})
        row->addWidget(widget, 0, Qt::AlignBottom);
    return box;
}

void RaceWindow::makeFileMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&Open…"), QKeySequence::Open, this, [this] {
        const QStringList files =
            QFileDialog::getOpenFileNames(this, tr("Open"), QFileInfo(m_document.path()).path(),
                                          tr("Split files (*.kvx);;All files (*)"));
        for (const QString& file : files)
            emit m_workspace.openRequested(file);
    });
    menu->addAction(tr("&Home"), QKeySequence(Qt::CTRL | Qt::Key_H), this,
                    &RaceWindow::homeRequested);
    menu->addSeparator();
    menu->addAction(tr("Save the table as &CSV…"), QKeySequence(Qt::CTRL | Qt::Key_E), this,
                    &RaceWindow::saveCsv);
    menu->addAction(tr("&Copy the selected runs"), QKeySequence::Copy, this,
                    &RaceWindow::copySelection);
    menu->addSeparator();
    menu->addAction(tr("Se&ttings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma), this,
                    &RaceWindow::settingsRequested);
    menu->addAction(tr("C&lose"), QKeySequence::Close, this, &QWidget::close);
}

QAction* RaceWindow::preferenceAction(QMenu& menu, const QString& text, const QKeySequence& keys,
                                      const char* key) {
    QAction* action = menu.addAction(text, keys, this,
                                     [this, key](bool on) { m_workspace.setPreference(key, on); });
    action->setCheckable(true);
    action->setChecked(m_workspace.preferences().boolean(key));
    connect(&m_workspace, &Workspace::preferenceChanged, action,
            [this, action, key](const QString& changed) {
                if (changed == key)
                    action->setChecked(m_workspace.preferences().boolean(key));
            });
    return action;
}

void RaceWindow::makeColourActions(QMenu& menu) {
    QAction* training =
        menu.addAction(tr("&Tint cells by rank"), QKeySequence(Qt::Key_T), this, [this](bool on) {
            m_workspace.setPreference("colorMode", std::string(on ? "Training" : "Race"));
        });
    training->setObjectName("training");
    training->setCheckable(true);
    const auto follow = [this, training] {
        training->setChecked(m_workspace.preferences().string("colorMode") == "Training");
    };
    follow();
    connect(&m_workspace, &Workspace::preferenceChanged, training, follow);
    QAction* blue =
        menu.addAction(tr("&Blue to orange instead of green to red"), QKeySequence(Qt::Key_B), this,
                       [this](bool on) {
                           m_model.setScale(on ? ColourScale::BlueOrange : ColourScale::GreenRed);
                       });
    blue->setCheckable(true);
}

void RaceWindow::makeContentMenu(QMenu& menu) {
    struct Choice {
        QString text;
        Qt::Key key;
        CellContent content;
    };
    const std::vector<Choice> choices{
        {tr("&Times"), Qt::Key_1, CellContent::Time},
        {tr("&Gap to the reference"), Qt::Key_2, CellContent::Gap},
        {tr("&Place"), Qt::Key_3, CellContent::Rank},
        {tr("Per&cent behind the best"), Qt::Key_4, CellContent::PercentBehind},
        {tr("Percenti&le"), Qt::Key_5, CellContent::Percentile},
    };
    auto* group = new QActionGroup(this);
    for (const Choice& choice : choices) {
        QAction* action =
            menu.addAction(choice.text, QKeySequence(Qt::CTRL | choice.key), this,
                           [this, content = choice.content] { m_model.setContent(content); });
        action->setCheckable(true);
        action->setChecked(choice.content == m_model.content());
        group->addAction(action);
    }
}

void RaceWindow::makeTableMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Table"));
    makeContentMenu(*menu);
    menu->addSeparator();
    menu->addAction(tr("&Reference: the best"), QKeySequence(Qt::SHIFT | Qt::Key_B), this,
                    [this] { m_model.setReference({}); });
    menu->addAction(tr("Reference: the &median"), QKeySequence(Qt::SHIFT | Qt::Key_M), this,
                    [this] {
                        m_model.setReference({ReferenceKind::Median, 0});
                    });
    menu->addAction(tr("Reference: the &selected run"), QKeySequence(Qt::SHIFT | Qt::Key_R), this,
                    &RaceWindow::useSelectionAsReference);
    menu->addSeparator();
    QAction* accumulated = menu->addAction(tr("&Accumulated times"), QKeySequence(Qt::Key_A), this,
                                           [this](bool on) { m_document.setAccumulated(on); });
    accumulated->setCheckable(true);
    preferenceAction(*menu, tr("Penalties &included"), QKeySequence(Qt::Key_I),
                     "penaltiesIncluded");
    preferenceAction(*menu, tr("Penalties &visible"), QKeySequence(Qt::Key_V), "penaltiesVisible");
    makeColourActions(*menu);
    menu->addSeparator();
    menu->addAction(tr("&Find a name"), QKeySequence::Find, this, [this] { m_name->setFocus(); });
    menu->addAction(tr("Show all r&uns"), QKeySequence(Qt::Key_Escape), this,
                    &RaceWindow::clearFilter);
}

void RaceWindow::showDocument() {
    setWindowTitle(m_document.title() + " – Kavela");
    setWindowFilePath(m_document.path());
    m_title->setText(m_document.title());
    m_subtitle->setText(m_document.subtitle());
    m_note->setText(m_document.upgradeNote());
    m_note->setVisible(!m_document.upgradeNote().isEmpty());
    fillFilters();
    m_table->setFocus();
}

void RaceWindow::fillFilters() {
    fill(*m_phase, tr("All phases"), m_document.wholeSet(), &analyzerdata::phase);
    fill(*m_category, tr("All categories"), m_document.wholeSet(), &analyzerdata::category);
}

void RaceWindow::applyFilter() {
    m_document.setFilter({m_phase->currentData().toString(), m_category->currentData().toString(),
                          m_name->text().trimmed()});
}

void RaceWindow::clearFilter() {
    m_phase->setCurrentIndex(0);
    m_category->setCurrentIndex(0);
    m_name->clear();
    m_table->setFocus();
}

void RaceWindow::showSelection() {
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    std::vector<std::size_t> runs;
    for (const QModelIndex& row : rows)
        runs.push_back(m_model.runOfRow(row.row()));
    m_charts->setSelection(runs);
    if (runs.empty())
        m_panel->showRun(std::nullopt, std::nullopt);
    else if (runs.size() == 1)
        m_panel->showRun(runs.front(), std::nullopt);
    else
        m_panel->showRun(runs[1], runs[0]);
}

void RaceWindow::showCharts() {
    m_charts->setPenaltiesIncluded(m_document.settings().penaltiesIncluded);
    m_charts->setRace(m_document.shownSet());
}

void RaceWindow::selectRun(std::size_t run) {
    const int row = m_model.rowOfRun(run);
    if (row >= 0)
        m_table->selectRow(row);
}

void RaceWindow::useSelectionAsReference() {
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    if (!rows.isEmpty())
        m_model.setReference({ReferenceKind::Run, m_model.runOfRow(rows.front().row())});
}

void RaceWindow::copySelection() {
    QList<int> rows;
    for (const QModelIndex& row : m_table->selectionModel()->selectedRows())
        rows.append(row.row());
    std::sort(rows.begin(), rows.end());
    if (rows.isEmpty())
        for (int row = 0; row < m_model.rowCount(); ++row)
            rows.append(row);
    QApplication::clipboard()->setText(tabSeparated(m_model, rows));
}

void RaceWindow::saveCsv() {
    const QFileInfo race(m_document.path());
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save the table"), race.path() + '/' + race.completeBaseName() + ".csv",
        tr("Semicolon-separated text (*.csv)"));
    if (path.isEmpty())
        return;
    try {
        writeFileSafely(path.toStdString(), semicolonSeparated(m_model).toStdString());
    } catch (const FileError& error) {
        m_workspace.log()("Failed to create file");
        m_workspace.showAlert({"Failed to create file", error.reason()}, this);
    }
}

void RaceWindow::offerReload() {
    if (!QFileInfo::exists(m_document.path())) {
        m_note->setText(tr("The file is not on the disk any more. What you see is what it held."));
        m_note->show();
        return;
    }
    m_note->setText(
        tr("The file was changed by another program. Open it again to see the change."));
    m_note->show();
}

} // namespace kavela::desktop
