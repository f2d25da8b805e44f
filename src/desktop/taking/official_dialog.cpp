#include "desktop/taking/official_dialog.h"

#include "common/text.h"
#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/taking_window.h"
#include "performance/race_tables.h"
#include "tables/table_error.h"
#include "tables/table_reading.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int SentenceColumn = 2;

QString kindWord(OfficialDifferenceKind kind) {
    static constexpr std::array<const char*, 8> Words{KAVELA_TEXT("Penalty missing"),
                                                      KAVELA_TEXT("Penalty too many"),
                                                      "Time",
                                                      KAVELA_TEXT("Bibs swapped"),
                                                      KAVELA_TEXT("No result"),
                                                      KAVELA_TEXT("Not finished"),
                                                      KAVELA_TEXT("Not in list"),
                                                      KAVELA_TEXT("Not filmed")};
    return OfficialDialog::tr(Words.at(static_cast<std::size_t>(kind)));
}

/// What only tells, and cannot be taken over, is quiet.
Column<OfficialDifference>
differenceColumn(const QString& title, std::function<QString(const OfficialDifference&)> text) {
    Column<OfficialDifference> column;
    column.title = title;
    column.show = [text = std::move(text)](const OfficialDifference& difference) {
        Cell cell;
        cell.text = text(difference);
        cell.tip = cell.text;
        cell.look = difference.isOpen ? Cell::Look::Plain : Cell::Look::Quiet;
        return cell;
    };
    return column;
}

ColumnModel<OfficialDifference>::Columns differenceColumns() {
    ColumnModel<OfficialDifference>::Columns columns;
    columns.push_back(
        differenceColumn(OfficialDialog::tr("Crew"), [](const OfficialDifference& difference) {
            return qtText(difference.crew);
        }));
    columns.push_back(differenceColumn(
        OfficialDialog::tr("What differs"),
        [](const OfficialDifference& difference) { return kindWord(difference.kind); }));
    columns.push_back(
        differenceColumn(OfficialDialog::tr("How"), [](const OfficialDifference& difference) {
            return shownNumbers(qtText(difference.text));
        }));
    return columns;
}

/// The same difference of another comparison: its run may stand elsewhere by then.
bool isSameDifference(const OfficialDifference& a, const OfficialDifference& b) {
    return a.kind == b.kind && a.line == b.line && a.crew == b.crew && a.text == b.text;
}

/// The values that the runs have, each once, in the order of the runs.
QStringList runWords(const TakingDocument& document, std::string athletedata031::*word) {
    QStringList words;
    for (int run = 0; run < document.runCount(); ++run)
        words.append(qtText(document.run(run).*word));
    words.removeAll(QString());
    words.removeDuplicates();
    return words;
}

} // namespace

OfficialDialog::OfficialDialog(TakingDocument& document, Workspace& workspace, QWidget* parent)
    : QDialog(parent),
      m_document(document),
      m_workspace(workspace),
      m_rows(differenceColumns()),
      m_list(new QComboBox),
      m_category(new QComboBox),
      m_phase(new QComboBox),
      m_told(new QLabel),
      m_table(new ColumnTable(m_rows, "officialDifferences")) {
    setWindowTitle(tr("Official results and the films"));
    makeParts();
    connect(&m_document, &EditedFile::changed, this, &OfficialDialog::followDocument);
    for (QComboBox* const box : {m_list, m_category, m_phase})
        connect(box, &QComboBox::currentIndexChanged, this, &OfficialDialog::compareOther);
    connect(m_table, &ColumnTable::chosen, this, &OfficialDialog::enable);
    followDocument();
    resize(860, 460);
}

OfficialDialog::~OfficialDialog() {
    m_table->disconnect(this); // it reports while it is taken apart
}

void OfficialDialog::makeParts() {
    m_list->setObjectName("officialList");
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_category->setObjectName("officialCategory");
    m_phase->setObjectName("officialPhase");
    m_told->setObjectName("officialTold");
    m_told->setWordWrap(true);
    m_table->keepOrder();
    m_table->keepOneChosen();
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->stretch({SentenceColumn});
    m_takeOver =
        &m_table->addCommand(tr("&Take over"), Qt::Key_Return, [this] { takeOverCurrent(); });
    m_goToRun = &m_table->addCommand(tr("&Show the run"), Qt::Key_Space, [this] {
        withCurrent([this](const OfficialDifference& difference) {
            if (difference.run)
                emit runRequested(static_cast<int>(*difference.run));
        });
    });
    auto* const file = new QPushButton(tr("A &file…"));
    file->setAutoDefault(false);
    connect(file, &QPushButton::clicked, this, &OfficialDialog::chooseFile);
    auto* const choices = new QHBoxLayout;
    for (QWidget* const part : {static_cast<QWidget*>(m_list), static_cast<QWidget*>(file),
                                static_cast<QWidget*>(m_category), static_cast<QWidget*>(m_phase)})
        choices->addWidget(part);
    choices->addStretch();
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    for (QPushButton* const button : {buttonFor(*m_takeOver, tr("&Take over"), "takeOver"),
                                      buttonFor(*m_goToRun, tr("&Show the run"), "goToRun")}) {
        button->setAutoDefault(false);
        buttons->addButton(button, QDialogButtonBox::ActionRole);
    }
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(choices);
    column->addWidget(m_told);
    column->addWidget(m_table, 1);
    column->addWidget(buttons);
}

/// A list without times is offered all the same: the coach sees why it cannot be compared.
OfficialDialog::Source OfficialDialog::sourceOf(const OfferedList& list, const QString& file) {
    QStringList title{file, list.title};
    title.removeAll(QString());
    Source source{title.join(QStringLiteral(", ")), {}, {}};
    try {
        source.lines = std::make_shared<const Lines>(officialLines(tableOf(list.grid)));
    } catch (const TableError& error) {
        source.fault = QString::fromStdString(error.what());
    }
    return source;
}

std::vector<OfficialDialog::Source> OfficialDialog::ownSources(const infodata031& info) {
    std::vector<Source> sources;
    if (!info.resultsCSVdata.empty())
        sources.push_back({tr("Results list"),
                           std::make_shared<const Lines>(officialLines(info.resultsCSVdata)),
                           {}});
    for (const std::string& name : raceTableNames(info)) {
        if (name == "resultsCSVdata")
            continue;
        const QString title =
            name == "officialresults" ? tr("Attached document") : tr("Table kept with the race");
        try {
            for (ListGrid& grid : raceTableLists(info, name)) {
                const QString sheet = qtText(grid.name);
                sources.push_back(sourceOf({name, sheet, std::move(grid)}, title));
            }
        } catch (const TableError& error) {
            sources.push_back({title, {}, QString::fromStdString(error.what())});
        }
    }
    return sources;
}

/// The race's lists are read again only where they may be others, and beside the window: a
/// spreadsheet may be among them.
void OfficialDialog::followDocument() {
    if (m_document.value().info != m_read) {
        m_read = m_document.value().info;
        m_isOwnRead = false;
        m_ownWork.run(
            [info = m_read] { return ownSources(*info); },
            [this, info = m_read](const std::vector<Source>& sources) { takeOwn(info, sources); },
            {.failed = [this, info = m_read](const std::exception_ptr& fault) {
                const auto reason = QString::fromStdString(causeOf(fault));
                takeOwn(info, {{tr("Results list"), {}, reason}});
            }});
    }
    fillChoices();
    compare();
}

/// Where the race carries other lists meanwhile, those are being read already.
void OfficialDialog::takeOwn(const std::shared_ptr<const infodata031>& info,
                             std::vector<Source> sources) {
    if (info != m_read)
        return;
    m_isOwnRead = true;
    m_own = std::move(sources);
    fillChoices();
    compare();
}

void OfficialDialog::fillChoices() {
    const QSignalBlocker quiet(m_list);
    const QString before = m_list->currentText();
    m_list->clear();
    for (const auto* const sources : {&m_own, &m_opened})
        for (const Source& source : *sources)
            m_list->addItem(source.title);
    m_list->setCurrentIndex(std::max(m_list->findText(before), 0));
    m_list->setEnabled(m_list->count() > 0);
    fillScope(*m_category, runWords(m_document, &athletedata031::cat), tr("All categories"));
    fillScope(*m_phase, runWords(m_document, &athletedata031::phase), tr("All phases"));
}

void OfficialDialog::fillScope(QComboBox& box, const QStringList& texts, const QString& all) {
    const QSignalBlocker quiet(box);
    const QString before = box.currentData().toString();
    box.clear();
    box.addItem(all, QString());
    for (const QString& text : texts)
        box.addItem(text, text);
    box.setCurrentIndex(std::max(box.findData(before), 0));
}

void OfficialDialog::chooseFile() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Official results"),
                                                      m_document.folder(), listFilter());
    if (!path.isEmpty())
        openList(path);
}

void OfficialDialog::openList(const QString& path) {
    m_work.runOver(
        {this, tr("Reading %1…").arg(QFileInfo(path).fileName())},
        [path] {
            std::vector<Source> sources;
            for (const OfferedList& list : offeredLists(path).lists)
                sources.push_back(sourceOf(list, QFileInfo(path).fileName()));
            return sources;
        },
        [this](const std::vector<Source>& sources) {
            const auto first = static_cast<int>(m_own.size() + m_opened.size());
            m_opened.insert(m_opened.end(), sources.begin(), sources.end());
            fillChoices();
            m_list->setCurrentIndex(first);
            compare();
        },
        {.failed = [this, path](const std::exception_ptr& fault) {
            m_workspace.showAlert(
                {tr("“%1” cannot be opened").arg(QFileInfo(path).fileName()).toStdString(),
                 causeOf(fault)},
                this);
        }});
}

/// What was asked of the differences of before means nothing among others.
void OfficialDialog::compareOther() {
    m_waiting.reset();
    compare();
}

/// Beside the window: a long list and many runs take their time, at every edit of the race. What is
/// shown stays until then.
void OfficialDialog::compare() {
    m_matching.cancel();
    const int chosen = m_list->currentIndex();
    if (chosen < 0) {
        showNone(!m_isOwnRead ? QString()
                              : tr("The race carries no results list. Open one with “A file…”."),
                 true);
        return;
    }
    const auto place = static_cast<std::size_t>(chosen);
    const Source& source = place < m_own.size() ? m_own[place] : m_opened.at(place - m_own.size());
    if (!source.lines) {
        showNone(source.fault, false);
        return;
    }
    OfficialScope scope;
    scope.category = m_category->currentData().toString().toStdString();
    scope.phase = m_phase->currentData().toString().toStdString();
    m_matching.run(
        [state = m_document.value(), lines = source.lines, scope] {
            return officialDifferences(timesOf(state), *lines, scope);
        },
        [this](std::vector<OfficialDifference> differences) { take(std::move(differences)); });
}

void OfficialDialog::take(std::vector<OfficialDifference> differences) {
    const auto open = std::ranges::count(differences, true, &OfficialDifference::isOpen);
    m_told->setText(differences.empty()
                        ? tr("The films and this list say the same.")
                        : tr("%1 differences, %2 of them to take over. The films' own times stay; "
                             "Ctrl+Z in split taking takes a step back.")
                              .arg(differences.size())
                              .arg(open));
    m_rows.show(std::move(differences));
    enable();
    const auto waiting = std::exchange(m_waiting, std::nullopt);
    if (!waiting)
        return;
    const auto found =
        std::ranges::find_if(m_rows.rows(), [&](const OfficialDifference& difference) {
            return isSameDifference(difference, waiting->difference);
        });
    if (found != m_rows.rows().end())
        waiting->act(OfficialDifference(*found)); // the rows may be others afterwards
}

void OfficialDialog::showNone(const QString& why, bool isOther) {
    m_waiting.reset();
    m_told->setText(why);
    m_rows.show({}, isOther);
    enable();
}

void OfficialDialog::enable() {
    const int place = m_table->currentPlace();
    m_takeOver->setEnabled(place >= 0 && m_rows.row(place).isOpen);
    m_goToRun->setEnabled(place >= 0 && m_rows.row(place).run.has_value());
}

/// Where the race is being compared, the difference may be none any more, and its run may stand
/// elsewhere: that is waited for.
void OfficialDialog::withCurrent(Act act) {
    const int place = m_table->currentPlace();
    if (place < 0)
        return;
    OfficialDifference difference = m_rows.row(place); // the rows are others afterwards
    if (isComparing())
        m_waiting = Waiting{std::move(difference), std::move(act)};
    else
        act(difference);
}

void OfficialDialog::takeOverCurrent() {
    withCurrent([this](const OfficialDifference& difference) {
        if (difference.isOpen && !m_document.takeOfficial(difference))
            compare();
    });
}

/// Not modal: films are looked at beside it. What is typed in the window is taken over first, so
/// that it is not compared as it was.
OfficialDialog& showOfficialDifferences(TakingWindow& window, Workspace& workspace) {
    (void)window.commit();
    auto* dialog = window.findChild<OfficialDialog*>();
    if (!dialog) {
        dialog = new OfficialDialog(window.document(), workspace, &window);
        QObject::connect(dialog, &OfficialDialog::runRequested, &window, &TakingWindow::selectRun);
    }
    dialog->show();
    bringToFront(*dialog);
    return *dialog;
}

} // namespace kavela::desktop
