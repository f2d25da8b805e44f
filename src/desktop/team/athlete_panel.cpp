#include "desktop/team/athlete_panel.h"

#include "common/folded_text.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/team/team_document.h"
#include "desktop/team/typed_values.h"
#include "splitdata/athlete_keys.h"

#include <QComboBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

enum ListColumn { NameColumn, BirthYearColumn, CategoriesColumn, RetiredColumn };

/// Whether a name holds every word that is searched for.
bool isFound(const QString& name, const QStringList& words) {
    const QString plain = QString::fromStdString(folded(name.toStdString()));
    return std::ranges::all_of(words, [&](const QString& word) { return plain.contains(word); });
}

/// Of one who has retired, in every column alike.
Cell ofAthlete(const AthleteRow& row, Cell cell) {
    if (row.isRetired) {
        cell.look = Cell::Look::Italic;
        cell.tip = AthletePanel::tr("Retired: left out of the categorization report");
    }
    return cell;
}

} // namespace

AthletePanel::AthletePanel(TeamDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_model(columns()),
      m_search(new QLineEdit),
      m_category(new QComboBox),
      m_table(new ColumnTable(m_model, "athletes")) {
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
    connect(&m_document, &TeamDocument::changed, this, &AthletePanel::showTeam);
    connect(m_search, &QLineEdit::textChanged, this, &AthletePanel::filter);
    connect(m_category, &QComboBox::currentIndexChanged, this, [this] {
        filter();
        emit categoryChosen();
    });
}

std::vector<Column<AthleteRow>> AthletePanel::columns() {
    Column<AthleteRow> name{.title = tr("Athlete"), .show = [](const AthleteRow& row) {
                                return ofAthlete(row, {row.name});
                            }};
    name.take = [this](std::size_t athlete, const AthleteRow&, const QString& typed) {
        const std::string checked = checkedName(m_document, typed, athlete);
        m_document.editAthlete(athlete, tr("name"),
                               [&](myTeamStruct& record) { record.name = checked; });
    };
    Column<AthleteRow> born{.title = tr("Born"), .show = [](const AthleteRow& row) {
                                return ofAthlete(row, {numberShown(row.birthYear)});
                            }};
    born.take = [this](std::size_t athlete, const AthleteRow&, const QString& typed) {
        const std::int64_t year = typedBirthYear(typed);
        m_document.editAthlete(athlete, tr("birth year"),
                               [&](myTeamStruct& record) { record.birthYear = year; });
    };
    Column<AthleteRow> boats{.title = tr("Boats"), .show = [](const AthleteRow& row) {
                                 return ofAthlete(row, {row.categories.join(' ')});
                             }};
    Column<AthleteRow> retired{
        .title = tr("Ret."), .tip = tr("Retired"), .show = [](const AthleteRow& row) {
            return ofAthlete(row, {.isTicked = row.isRetired});
        }};
    retired.tick = [this](std::size_t athlete, const AthleteRow&, bool isTicked) {
        m_document.editAthlete(athlete, tr("retirement"),
                               [&](myTeamStruct& record) { record.isretired = isTicked; });
    };
    return {name, born, boats, retired};
}

void AthletePanel::makeTable() {
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false); // the list is gone through with the arrows
    m_table->setAlternatingRowColors(false);
    m_table->sortBy(NameColumn, Qt::AscendingOrder);
    m_table->stretch({NameColumn});
    m_table->keepOneChosen();
    setMinimumWidth(grown(*this, 250)); // that names are read in the list
    connect(m_table, &ColumnTable::chosen, this, &AthletePanel::athleteChosen);
}

/// The athlete chosen may have another place in the team now.
void AthletePanel::showTeam() {
    std::vector<AthleteRow> rows;
    for (const myTeamStruct& athlete : m_document.athletes()) {
        AthleteRow row{
            QString::fromStdString(athlete.name), athlete.birthYear, {}, athlete.isretired};
        for (const mtCatsStruct& category : athlete.cats)
            row.categories.append(QString::fromStdString(category.cat));
        rows.push_back(std::move(row));
    }
    const auto before = athlete();
    m_model.show(std::move(rows));
    if (athlete() != before)
        emit athleteChosen();
}

void AthletePanel::filter() {
    const QStringList words = QString::fromStdString(folded(m_search->text().toStdString()))
                                  .split(' ', Qt::SkipEmptyParts);
    const QString category = m_category->currentData().toString();
    m_table->setFilter([this, words, category](int place) {
        const AthleteRow& row = m_model.row(place);
        return (category.isEmpty() || row.categories.contains(category)) &&
               isFound(row.name, words);
    });
}

std::optional<std::size_t> AthletePanel::athlete() const {
    const int place = m_table->currentPlace();
    return place < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(place));
}

void AthletePanel::choose(std::size_t athlete) {
    const int place = static_cast<int>(athlete);
    if (!m_table->cellAt(place, NameColumn).isValid()) {
        m_search->clear();
        m_category->setCurrentIndex(0);
    }
    m_table->choose(place, NameColumn);
}

std::string AthletePanel::category() const {
    return m_category->currentData().toString().toStdString();
}

void AthletePanel::setCategory(const QString& category) {
    m_category->setCurrentIndex(std::max(m_category->findData(category), 0));
}

std::string checkedName(const TeamDocument& document, const QString& typed,
                        std::optional<std::size_t> athlete) {
    const std::string name = typed.simplified().toStdString();
    const std::string key = crewKey(name);
    if (key.empty())
        throw RefusedEntry(AthletePanel::tr("An athlete needs a name."));
    const auto& athletes = document.athletes();
    for (std::size_t other = 0; other < athletes.size(); ++other)
        if (other != athlete && crewKey(athletes[other].name) == key)
            throw RefusedEntry(AthletePanel::tr("“%1” is in the team already.")
                                   .arg(QString::fromStdString(athletes[other].name)));
    return name;
}

} // namespace kavela::desktop
