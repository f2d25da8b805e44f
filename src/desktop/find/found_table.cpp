#include "desktop/find/found_table.h"

#include "common/text.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/why/why_popup.h"
#include "facts/found_reasons.h"
#include "facts/found_text.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

/// Finding out which rows are the same costs more the more there are.
constexpr std::size_t MostFollowed = 1'000;

/// The words of annotations as the other windows have them; the query's own word stands in the tip.
QString labelText(const QueryColumn& column, double code) {
    return qtText(labelOf(*column.labels, static_cast<std::int64_t>(code)));
}

Cell cellOf(const QueryAnswer& answer, std::size_t row, std::size_t at) {
    const FoundColumn& column = answer.columns()[at];
    Cell cell{qtText(answer.text(row, at)).replace('\n', QStringLiteral(", "))};
    const double number = answer.value(row, at).number;
    const bool isText = column.column && column.column->isText() && !column.isFigure;
    if (isText)
        return cell;
    if (std::isnan(number)) {
        cell.text = QStringLiteral("–");
        return cell;
    }
    if (isNumber(column)) {
        cell.number = number;
        cell.text = shownNumbers(cell.text);
    } else if (column.column->kind == kavela::ColumnKind::Label) {
        cell.tip = cell.text;
        cell.text = labelText(*column.column, number);
    } else if (column.column->kind == kavela::ColumnKind::Day) {
        cell.sortValue = number;
    }
    return cell;
}

ColumnModel<AnswerLine>::Columns columnsFor(const QueryAnswer& answer) {
    ColumnModel<AnswerLine>::Columns columns;
    for (std::size_t at = 0; at < answer.columns().size(); ++at) {
        const FoundColumn& column = answer.columns()[at];
        const bool isRight = isNumber(column);
        columns.push_back({.title = qtText(column.name),
                           .unit = column.column && isRight ? qtText(column.unit) : QString(),
                           .tip = column.column ? qtText(translated(column.column->meaning))
                                                : FoundTable::tr("rows of the group"),
                           .kind = isRight ? ColumnKind::Number : ColumnKind::Text,
                           .show = [at](const AnswerLine& line) {
                               // A row from before may have had fewer columns.
                               const QueryAnswer& of = line.found->answer;
                               return at < of.columns().size() ? cellOf(of, line.row, at) : Cell{};
                           }});
    }
    return columns;
}

bool isSameQuery(const Found* one, const Found* other) {
    return one && other && textOf(one->answer.query()) == textOf(other->answer.query());
}

QString rowsWord(What what, bool isOne) {
    switch (what) {
    case What::Runs:
        return isOne ? FoundTable::tr("run") : FoundTable::tr("runs");
    case What::Sections:
        return isOne ? FoundTable::tr("section") : FoundTable::tr("sections");
    case What::Gates:
        return isOne ? FoundTable::tr("gate") : FoundTable::tr("gates");
    case What::Penalties:
        return isOne ? FoundTable::tr("penalty") : FoundTable::tr("penalties");
    case What::Losses:
        return isOne ? FoundTable::tr("loss") : FoundTable::tr("losses");
    case What::Strokes:
        return isOne ? FoundTable::tr("section with strokes")
                     : FoundTable::tr("sections with strokes");
    case What::Tags:
        break;
    }
    return isOne ? FoundTable::tr("tag") : FoundTable::tr("tags");
}

} // namespace

QString countText(const Found& found) {
    const std::size_t count = found.answer.size();
    const bool isGrouped = !found.answer.query().by.empty();
    const QString rows = !isGrouped   ? rowsWord(found.answer.query().what, count == 1)
                         : count == 1 ? FoundTable::tr("group")
                                      : FoundTable::tr("groups");
    const QString took = found.milliseconds < 1
                             ? FoundTable::tr("less than 1 ms")
                             : FoundTable::tr("%1 ms").arg(std::lround(found.milliseconds));
    QString text = FoundTable::tr("%1 %2 in %3").arg(QString::number(count), rows, took);
    if (count > MostFoundShown)
        text += FoundTable::tr(", the first %1 shown").arg(MostFoundShown);
    return text;
}

FoundTable::FoundTable(const char* name, QWidget* parent)
    : QWidget(parent),
      m_lines({}, RowsKnownBy::WhatTheyShow),
      m_title(new QLabel),
      m_table(new ColumnTable(m_lines, name)) {
    m_title->setTextFormat(Qt::PlainText);
    m_title->hide();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_title);
    column->addWidget(m_table, 1);
    m_table->keepOneChosen();
    connect(m_table, &ColumnTable::chosen, this, &FoundTable::chosen);
    connect(m_table, &ColumnTable::activated, this, &FoundTable::activated);
    answerWhy(m_table, [this](const QModelIndex& cell) {
        const AnswerLine& line = m_lines.row(m_table->placeAt(cell));
        return explainFound(line.found->answer, line.row, static_cast<std::size_t>(cell.column()));
    });
}

void FoundTable::setTitle(const QString& title) {
    m_title->setText(title);
    m_title->setVisible(!title.isEmpty());
}

void FoundTable::setEmptyText(const QString& text) {
    m_table->setEmptyText(text);
}

void FoundTable::show(std::shared_ptr<const Found> found, bool isOther) {
    isOther =
        isOther || !isSameQuery(m_found.get(), found.get()) || found->answer.size() > MostFollowed;
    m_found = std::move(found);
    std::vector<AnswerLine> lines;
    const std::size_t count = m_found ? std::min(m_found->answer.size(), MostFoundShown) : 0;
    for (std::size_t row = 0; row < count; ++row)
        lines.push_back({m_found, row});
    if (isOther) {
        m_lines.show({}, true);
        m_table->sortByColumn(-1, Qt::AscendingOrder); // the query tells the order
        if (m_found)
            m_lines.setColumns(columnsFor(m_found->answer));
    }
    m_lines.show(std::move(lines), isOther);
}

std::optional<std::size_t> FoundTable::current() const {
    const int place = m_table->currentPlace();
    return place < 0 ? std::nullopt : std::optional(m_lines.row(place).row);
}

} // namespace kavela::desktop
