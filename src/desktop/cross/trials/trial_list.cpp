#include "desktop/cross/trials/trial_list.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "desktop/splitfile/film_table.h"
#include "desktop/splitfile/taking_document.h"

#include <QAction>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr int FilmColumnWidth = 140; ///< pixels
constexpr int LeastTrials = 6;       ///< that are seen without scrolling

/// 0 stands for none.
std::optional<double> unlessZero(double number) {
    return std::isfinite(number) && number != 0 ? std::optional(number) : std::nullopt;
}

} // namespace

TrialList::TrialList(QWidget* parent)
    : QWidget(parent),
      m_name(new QLineEdit),
      m_rows(columns()),
      m_table(filmTable(m_rows, "trials")) {
    m_name->setObjectName("newTrial");
    m_name->setPlaceholderText(tr("New athlete"));
    m_name->setToolTip(
        tr("Enter adds a time trial of that athlete; Esc gives the keys back to the film"));
    connect(m_name, &QLineEdit::returnPressed, this, [this] {
        const QString athlete = m_name->text().trimmed();
        m_name->setText({}); // the next name may follow at once
        if (!athlete.isEmpty())
            emit nameTyped(athlete);
    });
    makeTable();
    makeLayout();
    setFocusProxy(m_table);
}

ColumnModel<TrialRow>::Columns TrialList::columns() {
    const auto rename = [this](const std::size_t& trial, const TrialRow&, const QString& typed) {
        if (typed.isEmpty())
            throw RefusedEntry(tr("A time trial needs the name of its athlete."));
        emit renamed(trial, typed);
    };
    return {
        numberColumn<TrialRow>(
            tr("Pos"),
            [](const TrialRow& row) { return unlessZero(static_cast<double>(row.position)); },
            [](double position) { return QString::number(position); }),
        {.title = tr("Athlete"),
         .show = [](const TrialRow& row) { return Cell{qtText(row.athlete)}; },
         .take = rename},
        numberColumn<TrialRow>(
            tr("Time"), [](const TrialRow& row) { return unlessZero(row.time); }, shownHundredths),
        {.title = tr("Film"), .show = [this](const TrialRow& row) { return filmCell(row); }}};
}

Cell TrialList::filmCell(const TrialRow& row) const {
    if (row.isMissing)
        return {.text = tr("⚠ missing"),
                .tip = tr("%1 is not in the folder").arg(row.film),
                .colour = missedColour(palette())};
    return {.text = row.film.isEmpty() ? QStringLiteral("–") : row.film, .tip = row.film};
}

void TrialList::makeTable() {
    // A letter is a key of the film that was missed, not another name.
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_table->setTabKeyNavigation(false); // each row that Tab came by would open its film
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_table->setMinimumHeight(LeastTrials * m_table->verticalHeader()->defaultSectionSize());
    m_table->stretch({AthleteColumn});
    m_table->horizontalHeader()->setSectionResizeMode(FilmColumn, QHeaderView::Fixed);
    m_table->horizontalHeader()->resizeSection(FilmColumn, grown(*this, FilmColumnWidth));
    m_table->setAdd(tr("Add an athlete"), [this] { startAdding(); });
    m_ofTrial = {
        &m_table->addCommand(tr("Re&name the athlete"), {},
                             [this] { m_table->edit(m_table->currentPlace(), AthleteColumn); }),
        &m_table->addCommand(tr("&Film…"), {}, [this] { emit filmWanted(); }),
        &m_table->addCommand(tr("R&emove the trial"), {}, [this] { emit removalWanted(); })};
    connect(m_table, &ColumnTable::chosen, this, [this] {
        if (const int place = m_table->currentPlace(); place >= 0)
            emit chosen(static_cast<std::size_t>(place));
    });
    connect(m_table, &ColumnTable::doubleClicked, this, [this](const QModelIndex& cell) {
        if (cell.column() == FilmColumn)
            emit filmWanted();
    });
}

void TrialList::makeLayout() {
    QPushButton* const film = buttonFor(*m_ofTrial[1], tr("Film…"), "trialFilm");
    film->setToolTip(tr("Chooses the film of the selected trial"));
    QPushButton* const remove = buttonFor(*m_ofTrial[2], tr("Remove"), "removeTrial");
    remove->setToolTip(tr("Removes the selected trial"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_name, 1);
    row->addWidget(film);
    row->addWidget(remove);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addLayout(row);
    column->addWidget(m_table, 1);
}

void TrialList::setTrials(const std::vector<ttdata030>& trials, const TakingDocument& document) {
    std::vector<TrialRow> rows;
    for (const ttdata030& trial : trials)
        rows.push_back(
            {trial.pos, trial.athlete, trial.time, qtText(trial.videoname),
             !trial.videoname.empty() && !QFileInfo::exists(document.pathOf(trial.videoname))});
    const QSignalBlocker blocked(m_table); // the page says which one is in front
    m_rows.show(std::move(rows));
}

void TrialList::setCurrent(std::optional<std::size_t> trial) {
    const QSignalBlocker blocked(m_table);
    for (QAction* const each : m_ofTrial)
        each->setEnabled(trial.has_value());
    if (const int place = trial ? static_cast<int>(*trial) : -1; place != m_table->currentPlace())
        m_table->choose(place, AthleteColumn);
}

void TrialList::startAdding() {
    m_name->setFocus();
    m_name->selectAll();
}

void TrialList::startRenaming(std::size_t trial) {
    m_table->edit(static_cast<int>(trial), AthleteColumn);
}

} // namespace kavela::desktop
