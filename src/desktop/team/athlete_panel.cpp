#include "desktop/team/athlete_panel.h"

#include "common/folded_text.h"
#include "desktop/shell/cell_delegate.h"
#include "desktop/shell/edit_order.h"
#include "desktop/shell/theme.h"
#include "desktop/team/team_document.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

/// Athletes whose name holds every word that is searched for, in a category.
class AthleteFilter : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void set(const QString& search, const QString& category) {
        m_words =
            QString::fromStdString(folded(search.toStdString())).split(' ', Qt::SkipEmptyParts);
        m_category = category;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        const QModelIndex index = sourceModel()->index(row, AthleteModel::NameColumn, parent);
        const bool isInCategory =
            m_category.isEmpty() ||
            index.data(AthleteModel::CategoriesRole).toStringList().contains(m_category);
        const QString name = QString::fromStdString(folded(index.data().toString().toStdString()));
        return isInCategory && std::ranges::all_of(m_words, [&](const QString& word) {
                   return name.contains(word);
               });
    }

    bool lessThan(const QModelIndex& a, const QModelIndex& b) const override {
        if (a.column() == AthleteModel::RetiredColumn) {
            const auto retired = [](const QModelIndex& index) {
                return index.data(Qt::CheckStateRole).toInt();
            };
            return retired(a) < retired(b);
        }
        return isNaturallyBefore(a.data().toString().toStdString(),
                                 b.data().toString().toStdString());
    }

private:
    QStringList m_words;
    QString m_category;
};

AthletePanel::AthletePanel(TeamDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_model(document),
      m_shown(new AthleteFilter(this)),
      m_search(new QLineEdit),
      m_category(new QComboBox),
      m_table(new EditOrder<QTableView>) {
    m_search->setObjectName("search");
    m_search->setPlaceholderText(tr("Search athletes"));
    m_search->setToolTip(tr("Ctrl+F"));
    m_search->setClearButtonEnabled(true);
    m_category->setObjectName("category");
    m_category->addItem(tr("All categories"), QString());
    for (const char* category : team::Categories)
        m_category->addItem(category, QString(category));
    makeTable();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, theme::Spacing, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_search);
    column->addWidget(m_category);
    column->addWidget(m_table, 1);
    connect(m_search, &QLineEdit::textChanged, this, &AthletePanel::filter);
    connect(m_category, &QComboBox::currentIndexChanged, this, [this] {
        filter();
        emit categoryChosen();
    });
}

void AthletePanel::makeTable() {
    m_shown->setSourceModel(&m_model);
    m_table->setObjectName("athletes");
    m_table->setModel(m_shown);
    connect(&m_model, &AthleteModel::refused, new CellDelegate(*m_table), &CellDelegate::refuse);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false); // the list is gone through with the arrows
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(AthleteModel::NameColumn, Qt::AscendingOrder);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    QHeaderView* header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setMinimumWidth(250); // that names are read in the list
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(AthleteModel::NameColumn, QHeaderView::Stretch);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &AthletePanel::athleteChosen);
    connect(m_shown, &QAbstractItemModel::modelReset, this, &AthletePanel::keepOneChosen);
}

void AthletePanel::filter() {
    m_shown->set(m_search->text(), m_category->currentData().toString());
    keepOneChosen();
}

void AthletePanel::keepOneChosen() {
    if (!m_table->currentIndex().isValid() && m_shown->rowCount() > 0)
        m_table->setCurrentIndex(m_shown->index(0, AthleteModel::NameColumn));
    emit athleteChosen();
}

std::optional<std::size_t> AthletePanel::athlete() const {
    const QModelIndex index = m_shown->mapToSource(m_table->currentIndex());
    return index.isValid() ? std::optional(static_cast<std::size_t>(index.row())) : std::nullopt;
}

void AthletePanel::choose(std::size_t athlete) {
    const QModelIndex index = m_model.index(static_cast<int>(athlete), AthleteModel::NameColumn);
    if (!m_shown->mapFromSource(index).isValid()) {
        m_search->clear();
        m_category->setCurrentIndex(0);
    }
    m_table->setCurrentIndex(m_shown->mapFromSource(index));
}

std::string AthletePanel::category() const {
    return m_category->currentData().toString().toStdString();
}

void AthletePanel::setCategory(const QString& category) {
    m_category->setCurrentIndex(std::max(m_category->findData(category), 0));
}

} // namespace kavela::desktop
