#include "desktop/cross/trials/trial_list.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/splitfile/text_table.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>

namespace kavela::desktop {

namespace {

QPushButton* button(const QString& text, const char* name, const QString& help) {
    auto* made = new QPushButton(text);
    made->setObjectName(name);
    made->setToolTip(help);
    made->setFocusPolicy(Qt::NoFocus);
    return made;
}

} // namespace

TrialList::TrialList(QWidget* parent)
    : QWidget(parent),
      m_name(new QLineEdit),
      m_table(makeTable()),
      m_film(button(tr("Film…"), "trialFilm", tr("Chooses the film of the selected trial"))),
      m_remove(button(tr("Remove"), "removeTrial", tr("Removes the selected trial"))) {
    m_name->setObjectName("newTrial");
    m_name->setPlaceholderText(tr("New athlete"));
    m_name->setToolTip(
        tr("Enter adds a time trial of that athlete; Esc gives the keys back to the film"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_name, 1);
    row->addWidget(m_film);
    row->addWidget(m_remove);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addLayout(row);
    column->addWidget(m_table, 1);
    connect(m_name, &QLineEdit::returnPressed, this, [this] {
        const QString athlete = m_name->text().trimmed();
        m_name->setText({}); // the next name may follow at once
        if (!athlete.isEmpty())
            emit nameTyped(athlete);
    });
    setFocusProxy(m_table);
    connect(m_film, &QPushButton::clicked, this, &TrialList::filmWanted);
    connect(m_remove, &QPushButton::clicked, this, &TrialList::removalWanted);
    connectTable();
}

QTableWidget* TrialList::makeTable() {
    QTableWidget* const table = textTable({tr("Pos"), tr("Athlete"), tr("Time"), tr("Film")});
    table->setObjectName("trials");
    table->setEditTriggers(QAbstractItemView::DoubleClicked);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setTextElideMode(Qt::ElideMiddle);
    table->setMinimumHeight(6 * table->verticalHeader()->defaultSectionSize());
    table->horizontalHeader()->setSectionResizeMode(AthleteColumn, QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(FilmColumn, QHeaderView::Fixed);
    table->horizontalHeader()->setStretchLastSection(false);
    table->horizontalHeader()->resizeSection(FilmColumn, 140);
    return table;
}

void TrialList::connectTable() {
    connect(m_table, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (row >= 0)
            emit chosen(static_cast<std::size_t>(row));
    });
    connect(m_table, &QTableWidget::cellChanged, this, [this](int row, int column) {
        if (column == AthleteColumn)
            emit renamed(static_cast<std::size_t>(row), m_table->item(row, column)->text());
    });
    connect(m_table, &QTableWidget::cellDoubleClicked, this, [this](int, int column) {
        if (column == FilmColumn)
            emit filmWanted();
    });
}

void TrialList::setText(int row, Column column, const QString& text) {
    QTableWidgetItem* item = m_table->item(row, column);
    if (!item) { // one that is being edited must stay
        item = new QTableWidgetItem;
        item->setFlags(column == AthleteColumn ? item->flags()
                                               : item->flags() & ~Qt::ItemIsEditable);
        if (column == PositionColumn || column == TimeColumn)
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_table->setItem(row, column, item);
    }
    item->setText(text);
}

void TrialList::showFilm(int row, const std::string& film, const TakingDocument& document) {
    const QString name = QString::fromStdString(film);
    const bool isMissing = !name.isEmpty() && !QFileInfo::exists(document.pathOf(film));
    setText(row, FilmColumn,
            name.isEmpty() ? QStringLiteral("–")
            : isMissing    ? tr("⚠ missing")
                           : name);
    QTableWidgetItem& item = *m_table->item(row, FilmColumn);
    item.setToolTip(isMissing ? tr("%1 is not in the folder").arg(name) : name);
    item.setForeground(isMissing ? missedColour(palette()) : palette().color(QPalette::Text));
}

void TrialList::setTrials(const std::vector<ttdata030>& trials, const TakingDocument& document) {
    const QSignalBlocker blocked(m_table);
    m_table->setRowCount(static_cast<int>(trials.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const ttdata030& trial = trials[static_cast<std::size_t>(row)];
        setText(row, PositionColumn,
                trial.pos == 0 ? QStringLiteral("–") : QString::number(trial.pos));
        setText(row, AthleteColumn, QString::fromStdString(trial.athlete));
        setText(row, TimeColumn, timeOrDash(trial.time));
        showFilm(row, trial.videoname, document);
    }
}

void TrialList::setCurrent(std::optional<std::size_t> trial) {
    const QSignalBlocker blocked(m_table);
    m_film->setEnabled(trial.has_value());
    m_remove->setEnabled(trial.has_value());
    if (!trial)
        m_table->setCurrentItem(nullptr);
    else if (m_table->currentRow() != static_cast<int>(*trial))
        m_table->setCurrentCell(static_cast<int>(*trial), AthleteColumn);
}

void TrialList::startAdding() {
    m_name->setFocus();
    m_name->selectAll();
}

void TrialList::startRenaming(std::size_t trial) {
    m_table->setFocus();
    m_table->editItem(m_table->item(static_cast<int>(trial), AthleteColumn));
}

} // namespace kavela::desktop
