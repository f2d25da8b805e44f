#include "desktop/selection/selection_window.h"

#include "desktop/selection/selection_reports.h"
#include "desktop/selection/why_panel.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_layout.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tables/table_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/why/why_popup.h"
#include "results/messages.h"
#include "results/selection_file.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDate>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>

#include <algorithm>
#include <numeric>

namespace kavela::desktop {

SelectionWindow::SelectionWindow(Workspace& workspace, Autosave autosave)
    : ToolWindow(workspace, &m_document, {"selection", tr("Selection races"), "kvsr"}),
      m_document(workspace, std::move(autosave)),
      m_model(m_document),
      m_edits(m_document, workspace, *this),
      m_takeOver(m_document, m_model, m_edits, workspace, *this) {
    m_table = new ColumnTable(m_model, "ranking");
    m_table->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_table->addCommand(tr("Copy the table"), QKeySequence::Copy, [this] { copyTable(); });
    answerWhy(m_table, [this](const QModelIndex& cell) { return whyOf(cell); });
    m_why = new WhyPanel(m_document, m_model);
    auto* split = new QSplitter;
    split->addWidget(m_table);
    split->addWidget(m_why);
    split->setStretchFactor(0, 1);
    shareSizes(*split, {900, 340});
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                               theme::LargeSpacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(makeBar());
    column->addWidget(m_hint);
    column->addWidget(split, 1);
    setCentralWidget(page);
    makeMenus();
    connect(&m_document, &SelectionDocument::changed, this, &SelectionWindow::showDocument);
    connect(&m_edits, &SelectionEdits::categoryAdded, this, &SelectionWindow::showCategory);
    connect(&m_edits, &SelectionEdits::athleteAdded, this, &SelectionWindow::chooseAthlete);
    connect(m_table, &ColumnTable::chosen, this, &SelectionWindow::showWhy);
    connect(m_table, &ColumnTable::shownChanged, this, &SelectionWindow::showWhy);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &SelectionWindow::leaveRow);
    m_leaveRow.setSingleShot(true);
    connect(&m_leaveRow, &QTimer::timeout, this, [this] {
        if (!m_table->indexWidget(m_table->currentIndex()))
            m_model.orderAnew();
    });
    watchFocus();
}

SelectionWindow::~SelectionWindow() {
    hide(); // an open cell would else hand its text to what is gone already
    qApp->disconnect(this);
    m_table->selectionModel()->disconnect(this);
    m_table->disconnect(this);
    m_document.disconnect(this);
    m_model.disconnect(this);
}

void SelectionWindow::makeMenus() {
    makeFileMenu()->addAction(tr("&Reports: preview, PDF, print…"), QKeySequence::Print, this,
                              [this] { previewSelection(m_document, workspace(), *this); });
    QMenu* edit = makeEditMenu();
    edit->addAction(tr("Make times of 0 &missing results"), &m_edits,
                    &SelectionEdits::makeZerosMissing);
    edit->addAction(tr("&Copy the table"), QKeySequence::Copy, this, &SelectionWindow::copyTable);
    edit->addAction(tr("&What if"), QKeySequence(Qt::Key_W), this, [this] { m_whatIf->toggle(); });
    makeRaceMenu();
    makeAthleteMenu();
    finishMenus([this] {
        Commands commands;
        const auto& categories = m_document.shown().categories;
        for (std::size_t category = 0; category < categories.size(); ++category)
            for (const srAthleteStruct_v3& athlete : categories[category].athletes)
                commands.push_back(
                    {qtText(athlete.name), qtText(categories[category].cat), {}, [this, category] {
                         showCategory(category);
                     }});
        return commands;
    });
}

void SelectionWindow::makeRaceMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Races"));
    menu->addAction(tr("&Add a race…"), QKeySequence(Qt::CTRL | Qt::Key_R), &m_edits,
                    &SelectionEdits::askForNewRace);
    menu->addAction(tr("&Rename a race…"), &m_edits, &SelectionEdits::renameRace);
    menu->addAction(tr("Remo&ve a race…"), &m_edits, &SelectionEdits::removeRace);
    menu->addSeparator();
    menu->addAction(tr("Results from &split files…"), QKeySequence(Qt::CTRL | Qt::Key_I), this,
                    [this] { m_takeOver.askForSplitFiles(); });
    const auto addList = [&](const QString& text, ResultLayout layout, const char* help) {
        menu->addAction(text, this,
                        [this, layout, help] { m_takeOver.askForResults(layout, help); });
    };
    addList(tr("Results from a &list (position, total, penalty)…"), ResultLayout::ComaMode,
            messages::ComaModeHelp);
    addList(tr("Results from a list with &categories and clubs…"), ResultLayout::Tacen,
            messages::TacenHelp);
}

void SelectionWindow::makeAthleteMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Athletes"));
    menu->addAction(tr("Add a &category…"), QKeySequence(Qt::CTRL | Qt::Key_G), &m_edits,
                    &SelectionEdits::askForCategory);
    menu->addAction(tr("&Add an athlete…"), QKeySequence(Qt::CTRL | Qt::Key_N), this,
                    [this] { m_edits.askForAthlete(m_model.category()); });
    menu->addAction(tr("&Edit the athlete…"), QKeySequence(Qt::CTRL | Qt::Key_Return), this,
                    [this] {
                        if (const auto athlete = currentAthlete())
                            m_edits.editAthlete(*athlete);
                    });
    menu->addAction(tr("&Remove the athlete"), QKeySequence(Qt::CTRL | Qt::Key_Delete), this,
                    [this] {
                        if (const auto athlete = currentAthlete())
                            m_edits.removeAthlete(*athlete);
                    });
    menu->addSeparator();
    menu->addAction(tr("&Import athletes…"), this, [this] { m_takeOver.askForAthletes(); });
    menu->addAction(tr("&How a list has to look"), this, [this] {
        workspace().showAlert({messages::ImportHelpTitle, messages::ImportHelp}, this);
    });
    for (int category = 1; category <= 9; ++category)
        addAction(tr("Category %1").arg(category),
                  QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + category)), this,
                  [this, category] { showCategory(static_cast<std::size_t>(category - 1)); });
}

QWidget* SelectionWindow::makeBar() {
    m_title = new QLabel;
    m_title->setTextFormat(Qt::PlainText);
    m_title->setFont(theme::titleFont(*this));
    m_hint = new QLabel;
    m_hint->setObjectName("hint");
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_categories = new QTabBar;
    m_categories->setObjectName("categories");
    m_categories->setDocumentMode(true);
    m_categories->setDrawBase(false); // white on dark
    m_categories->setExpanding(false);
    takeTypingBeforePresses(*m_categories);
    m_categories->setAccessibleName(tr("Categories"));
    m_bonus = new QComboBox;
    m_bonus->setObjectName("bonus");
    m_bonus->setAccessibleName(tr("Bonus"));
    m_times = new QComboBox;
    m_times->setObjectName("times");
    m_times->addItems({tr("Official times"), tr("xTimes")});
    m_whatIf = new QPushButton(tr("What if…"));
    m_whatIf->setObjectName("whatIf");
    m_whatIf->setCheckable(true);
    m_whatIf->setToolTip(tr("Try other times and penalties; nothing of it is kept (W)"));
    connect(m_categories, &QTabBar::currentChanged, this, [this](int category) {
        m_model.setCategory(static_cast<std::size_t>(std::max(category, 0)));
    });
    connect(m_bonus, &QComboBox::activated, this, [this](int choice) {
        m_document.setBonus(choice == 0 ? std::nullopt
                                        : BonusKind(static_cast<std::size_t>(choice - 1)));
    });
    connect(m_times, &QComboBox::activated, this, [this](int choice) {
        m_document.setTimes(choice == 0 ? SelectionTimes::Official : SelectionTimes::Expected);
    });
    connect(m_whatIf, &QPushButton::toggled, this, &SelectionWindow::setWhatIf);
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    row->addWidget(m_title);
    row->addSpacing(theme::LargeSpacing);
    row->addWidget(m_categories, 1);
    for (QWidget* widget : std::initializer_list<QWidget*>{m_bonus, m_times, m_whatIf})
        row->addWidget(widget);
    return box;
}

void SelectionWindow::startNew(const QString& path) {
    startNew(path, QDate::currentDate().year());
}

FileReading SelectionWindow::readingOf(const QString& path) {
    return followedBy(m_document.reading(path, this), [this] { m_table->setFocus(); });
}

void SelectionWindow::startNew(const QString& path, std::int64_t year) {
    m_document.startNew(path, year, this);
}

/// Rows are ordered when one was left by a key at once; after a click not before it may have become
/// a double click, which would else hit another athlete.
void SelectionWindow::leaveRow() {
    if (QApplication::mouseButtons() == Qt::NoButton)
        m_model.orderAnew();
    else
        m_leaveRow.start(QApplication::doubleClickInterval());
}

/// The row is left with the table, too; not for the editor of a cell, nor for another program.
void SelectionWindow::watchFocus() {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        const auto isInTable = [this](QWidget* widget) {
            return widget && (widget == m_table || m_table->isAncestorOf(widget));
        };
        if (now && isInTable(before) && !isInTable(now))
            m_model.orderAnew();
    });
}

void SelectionWindow::showDocument() {
    const selectionracesStruct_v3& document = m_document.shown();
    m_title->setText(tr("Selection %1").arg(document.year));
    fillCategories();
    fillBonuses();
    QStringList hints;
    if (m_document.isWhatIf())
        hints.append(tr("What if: times and penalties typed now are tried only. End it (W) to go "
                        "back to the real results."));
    if (document.races.empty())
        hints.append(tr("Add the races of the selection first (Ctrl+R), then athletes (Ctrl+N, or "
                        "drop a .csv file)."));
    else if (document.categories.empty())
        hints.append(tr("Now add a category (Ctrl+G), such as MK1; then its athletes (Ctrl+N, or "
                        "drop a .csv file)."));
    else if (m_model.rowCount() == 0)
        hints.append(tr("Add the athletes of the category (Ctrl+N, or drop a .csv file), then "
                        "their results: type them, or take them over from split files (Ctrl+I)."));
    else if (const auto zeros = zeroResults(document); !zeros.empty())
        hints.append(tr("%n result(s) have a time of 0, which puts their athletes far in front. "
                        "Edit > Make times of 0 missing results.",
                        nullptr, static_cast<int>(zeros.size())));
    m_hint->setText(hints.join('\n'));
    m_hint->setVisible(!hints.isEmpty());
    const QSignalBlocker blocker(m_whatIf);
    m_whatIf->setChecked(m_document.isWhatIf());
    m_whatIf->setText(m_document.isWhatIf() ? tr("End what if") : tr("What if…"));
    m_table->setColumnHidden(RankingModel::BonusColumn, !m_document.bonus());
}

void SelectionWindow::fillCategories() {
    const auto& categories = m_document.shown().categories;
    const QSignalBlocker blocker(m_categories);
    while (m_categories->count() > static_cast<int>(categories.size()))
        m_categories->removeTab(m_categories->count() - 1);
    for (std::size_t i = 0; i < categories.size(); ++i) {
        const QString title =
            tr("%1 (%2)").arg(qtText(categories[i].cat)).arg(categories[i].athletes.size());
        if (std::cmp_less(i, m_categories->count()))
            m_categories->setTabText(static_cast<int>(i), title);
        else
            m_categories->addTab(title);
    }
    m_categories->updateGeometry(); // a bar that is filled unseen keeps its height to itself
    const auto current = static_cast<std::size_t>(std::max(m_categories->currentIndex(), 0));
    if (current != m_model.category())
        m_model.setCategory(current);
}

void SelectionWindow::fillBonuses() {
    m_bonus->clear();
    m_bonus->addItem(tr("No bonus"));
    for (std::size_t kind = 0; kind < bonusKinds(m_document.shown()); ++kind)
        m_bonus->addItem(tr("Bonus %1").arg(kind + 1));
    m_bonus->setCurrentIndex(m_document.bonus() ? static_cast<int>(*m_document.bonus()) + 1 : 0);
    m_bonus->setVisible(m_bonus->count() > 1);
    m_times->setCurrentIndex(m_document.times() == SelectionTimes::Official ? 0 : 1);
}

void SelectionWindow::showWhy() {
    m_why->showRow(m_table->currentPlace());
}

/// The score for place, score and bonus; for the columns of a race how far behind its best.
std::optional<Reason> SelectionWindow::whyOf(const QModelIndex& cell) const {
    using Columns = RankingModel;
    const int place = m_table->placeAt(cell);
    if (place < 0)
        return std::nullopt;
    Why why;
    (void)scoreOf(m_document.shown(), m_model.category(), m_model.row(place).standing.athlete,
                  m_document.bonus(), m_document.times(), &why);
    Reason score = why.reason();
    const int column = cell.column();
    if (column >= Columns::LeadingColumns) {
        const auto race = static_cast<std::size_t>(column - Columns::LeadingColumns) /
                          static_cast<std::size_t>(Columns::RaceColumns);
        return race < m_document.shown().races.size()
                   ? std::optional(score.parts[race].parts.front())
                   : std::nullopt;
    }
    const bool isScore = column == Columns::RankColumn || column == Columns::ScoreColumn ||
                         column == Columns::BonusColumn;
    return isScore ? std::optional(std::move(score)) : std::nullopt;
}

void SelectionWindow::showCategory(std::size_t category) {
    m_categories->setCurrentIndex(static_cast<int>(category));
}

void SelectionWindow::setWhatIf(bool isOn) {
    m_document.setWhatIf(isOn);
    m_table->setFocus();
}

/// An athlete that was just added: the results are typed next.
void SelectionWindow::chooseAthlete(std::size_t athlete) {
    m_table->choose(m_model.placeOfAthlete(athlete),
                    RankingModel::LeadingColumns + int{RankingModel::TimeColumn});
}

std::optional<AthletePlace> SelectionWindow::currentAthlete() const {
    const int place = m_table->currentPlace();
    if (place < 0)
        return std::nullopt;
    return AthletePlace{m_model.category(), m_model.row(place).standing.athlete};
}

void SelectionWindow::copyTable() {
    m_model.orderAnew();
    const QAbstractItemModel& shown = *m_table->model();
    QList<int> rows(shown.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    QApplication::clipboard()->setText(
        tableAsText(shown, rows, shownColumns(*m_table), clipboardTable()));
}

/// A list dropped on the table brings athletes, split files bring results, selections are opened.
void SelectionWindow::takeFiles(const QStringList& paths) {
    QStringList splitFiles;
    QStringList others;
    for (const QString& path : paths) {
        if (path.endsWith(".csv", Qt::CaseInsensitive))
            m_takeOver.importAthletesFrom(path);
        else
            (path.endsWith(".kvx", Qt::CaseInsensitive) ? splitFiles : others).append(path);
    }
    if (!splitFiles.isEmpty())
        m_takeOver.attachFiles(splitFiles);
    if (!others.isEmpty())
        ToolWindow::takeFiles(others);
}

} // namespace kavela::desktop
