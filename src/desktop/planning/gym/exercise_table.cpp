#include "desktop/planning/gym/exercise_table.h"

#include "common/number_text.h"
#include "desktop/planning/body/typed_measures.h"
#include "desktop/planning/gym/exercise_delegate.h"
#include "desktop/shell/edit_order.h"
#include "desktop/shell/theme.h"
#include "planning/gym_maximum.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

QLabel* makeLabel(const char* name) {
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// A dash for an estimate that is none.
QString estimateText(double kilograms) {
    return std::isfinite(kilograms) && kilograms != 0 ? measureShown(kilograms)
                                                      : QStringLiteral("–");
}

} // namespace

ExerciseTable::ExerciseTable(const DiagnosticLog& log, QWidget* parent)
    : QWidget(parent),
      m_model(log),
      m_view(new EditOrder<QTableView>),
      m_delegate(new ExerciseDelegate(*m_view)),
      m_empty(new QLabel),
      m_stack(new QStackedWidget),
      m_add(new QPushButton(tr("Add exercise"))),
      m_remove(new QPushButton(tr("Remove"))),
      m_take(new QPushButton(tr("Take estimate"))),
      m_estimates(makeLabel("estimates")),
      m_totals(makeLabel("totals")) {
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setMargin(theme::LargeSpacing);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    m_totals->setForegroundRole(QPalette::PlaceholderText);
    makeView();
    m_stack->addWidget(m_view);
    m_stack->addWidget(m_empty);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    makeButtons();
    column->addWidget(m_stack, 1);
    column->addWidget(m_estimates);
    column->addWidget(m_totals);
    connect(&m_model, &ExerciseModel::edited, this, &ExerciseTable::edited);
}

void ExerciseTable::makeView() {
    m_view->setObjectName("exercises");
    m_view->setModel(&m_model);
    connect(&m_model, &ExerciseModel::refused, m_delegate, &CellDelegate::refuse);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setShowGrid(false);
    m_view->setAlternatingRowColors(true);
    m_view->setWordWrap(false);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                            QAbstractItemView::AnyKeyPressed);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    QHeaderView* const header = m_view->horizontalHeader();
    header->setHighlightSections(false);
    for (int column = 0; column < ExerciseModel::Columns; ++column) {
        const QString title =
            m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        header->resizeSection(column, fontMetrics().horizontalAdvance(title) + 3 * theme::Spacing);
    }
    header->setSectionResizeMode(ExerciseModel::ExerciseColumn, QHeaderView::Stretch);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ExerciseTable::showRow);
    connect(m_view, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == ExerciseModel::EstimateColumn)
            takeEstimate();
    });
}

void ExerciseTable::makeButtons() {
    auto* const row = new QHBoxLayout;
    row->setSpacing(theme::Spacing);
    const auto add = [&](QPushButton& button, const QKeySequence& key, const auto& act) {
        button.setToolTip(key.toString(QKeySequence::NativeText));
        connect(&button, &QPushButton::clicked, this, act);
        auto* const action = new QAction(button.text(), this);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, &button, &QPushButton::click);
        addAction(action);
        row->addWidget(&button);
    };
    m_add->setObjectName("add");
    m_take->setObjectName("take");
    add(*m_add, Qt::Key_Insert, [this] { addExercise(); });
    add(*m_remove, Qt::Key_Delete, [this] { removeExercise(); });
    add(*m_take, Qt::CTRL | Qt::Key_Return, [this] { takeEstimate(); });
    row->addStretch();
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void ExerciseTable::show(const gymdataplanning_v1* session, const QStringList& names,
                         const QString& emptyText) {
    m_hasSession = session != nullptr;
    m_delegate->setNames(names);
    const QModelIndex before = m_view->currentIndex();
    m_model.show(session);
    if (!m_view->currentIndex().isValid() && m_model.rowCount() > 0)
        m_view->setCurrentIndex(m_model.index(std::clamp(before.row(), 0, m_model.rowCount() - 1),
                                              std::max(before.column(), 0)));
    m_empty->setText(emptyText);
    m_stack->setCurrentWidget(m_model.rowCount() > 0 ? static_cast<QWidget*>(m_view) : m_empty);
    m_totals->setText(session ? totalsText(*session) : QString());
    m_totals->setVisible(m_model.rowCount() > 0);
    showRow();
}

QString ExerciseTable::totalsText(const gymdataplanning_v1& session) const {
    const GymTotals totals = gymTotals(session);
    const QString exercises =
        totals.exercises == 1 ? tr("1 exercise") : tr("%1 exercises").arg(totals.exercises);
    return tr("%1 · %2 sets · tonnage %3 kg")
        .arg(exercises, totals.sets == 0 ? "0" : measureShown(totals.sets),
             totals.tonnage == 0 ? "0" : measureShown(totals.tonnage));
}

void ExerciseTable::showRow() {
    const QModelIndex index = m_view->currentIndex();
    const GymRow* const row = index.isValid() ? &m_model.row(index.row()) : nullptr;
    m_add->setEnabled(m_hasSession);
    m_remove->setEnabled(row);
    m_take->setEnabled(row && m_model.offered(index.row()));
    showEstimates(row);
    const QString name = row && row->exercise ? QString::fromStdString(*row->exercise) : QString();
    if (name != std::exchange(m_chosen, name))
        emit exerciseChosen(name);
}

void ExerciseTable::showEstimates(const GymRow* row) {
    m_estimates->setVisible(row);
    if (!row)
        return;
    const bool isKnown = row->rep && row->weight;
    const GymEstimates estimates = isKnown ? gymEstimates(*row->rep, *row->weight) : GymEstimates();
    m_estimates->setText(
        tr("Estimated maximum: table %1 · Epley %2 · Brzycki %3 · McGlothin %4 · "
           "Lombardi %5 · result <b>%6</b>")
            .arg(estimateText(estimates.table), estimateText(estimates.epley),
                 estimateText(estimates.brzycki), estimateText(estimates.mcglothin),
                 estimateText(estimates.lombardi), estimateText(estimates.result)));
}

void ExerciseTable::addExercise() {
    if (!m_hasSession)
        return;
    emit edited(tr("new exercise"), [](gymdataplanning_v1& session) { addGymRow(session); });
    const QModelIndex name = m_model.index(m_model.rowCount() - 1, ExerciseModel::ExerciseColumn);
    m_view->setFocus();
    m_view->setCurrentIndex(name);
    m_view->edit(name);
}

void ExerciseTable::removeExercise() {
    const QModelIndex index = m_view->currentIndex();
    if (index.isValid())
        emit edited(tr("removal of an exercise"),
                    [row = static_cast<std::size_t>(index.row())](gymdataplanning_v1& session) {
                        removeGymRow(session, row);
                    });
}

void ExerciseTable::takeEstimate() {
    const QModelIndex index = m_view->currentIndex();
    const auto estimate = index.isValid() ? m_model.offered(index.row()) : std::nullopt;
    if (estimate)
        emit edited(tr("estimated maximum"), [&](gymdataplanning_v1& session) {
            setGymEntry(session.maxweight, static_cast<std::size_t>(index.row()), *estimate);
        });
}

} // namespace kavela::desktop
