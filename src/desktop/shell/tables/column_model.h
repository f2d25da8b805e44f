#pragma once

#include "desktop/shell/tables/row_model.h"

#include <QStringList>

#include <map>
#include <type_traits>

namespace kavela::desktop {

/// One column of a table: what it shows of a row, and what becomes of what is typed into it.
template <class Row, class Key = std::size_t>
struct Column {
    QString title;
    QString unit = {}; ///< stands in brackets behind the title
    QString tip = {};
    QColor colour = {}; ///< of the title, where it has one
    ColumnKind kind = ColumnKind::Text;
    std::function<Cell(const Row&)> show = nullptr;
    /// Takes what was typed, without the blanks around it; only asked where it differs. Throws
    /// RefusedEntry with what is wrong. Empty for a column that is only read.
    std::function<void(const Key&, const Row&, const QString& typed)> take = nullptr;
    /// Takes a tick; for columns whose cells have a box.
    std::function<void(const Key&, const Row&, bool isTicked)> tick = nullptr;
    /// What is offered while the cell is typed.
    std::function<QStringList(const Row&)> proposals = nullptr;
};

/// How rows are told apart that have no key of their own: by what they show, which finds them after
/// others have come and gone, or by their number, as the laps of a test.
enum class RowsKnownBy { WhatTheyShow, Number };

/// A table is the list of its columns. Its rows are followed by a key of theirs; rows that have
/// none are known by what they show, or by their place, which is their key.
template <class Row, class Key = std::size_t>
class ColumnModel : public RowModel {
public:
    using Columns = std::vector<Column<Row, Key>>;
    using KeyOf = std::function<Key(const Row&)>;

    explicit ColumnModel(Columns columns, KeyOf keyOf = {}, QObject* parent = nullptr)
        : RowModel(headsOf(columns), parent),
          m_columns(std::move(columns)),
          m_keyOf(std::move(keyOf)) {}

    ColumnModel(Columns columns, RowsKnownBy what, QObject* parent = nullptr)
        : RowModel(headsOf(columns), parent), m_columns(std::move(columns)), m_knownBy(what) {}

    /// The rows as they are now. What is chosen and typed stays with those from before, unless they
    /// are the rows of something else.
    void show(std::vector<Row> rows, bool isOther = false) {
        if (isOther)
            return start(std::move(rows));
        std::vector<int> movedTo = m_keyOf ? followKeys(rows) : followPlaces(rows);
        m_rows = std::move(rows);
        follow(std::move(movedTo), static_cast<int>(m_rows.size()));
    }

    /// Other columns, which must know what to show of the rows from before, too.
    void setColumns(Columns columns) {
        changeHeads(headsOf(columns), [&] { m_columns = std::move(columns); });
    }

    [[nodiscard]] const std::vector<Row>& rows() const { return m_rows; }
    [[nodiscard]] const Row& row(int place) const {
        return m_rows.at(static_cast<std::size_t>(place));
    }
    [[nodiscard]] Key key(int place) const {
        if constexpr (std::is_same_v<Key, std::size_t>)
            if (!m_keyOf)
                return static_cast<std::size_t>(place);
        return m_keyOf(row(place));
    }
    /// The place of a row; -1 for none.
    [[nodiscard]] int placeOfKey(const Key& wanted) const {
        for (int place = 0; place < static_cast<int>(m_rows.size()); ++place)
            if (key(place) == wanted)
                return place;
        return -1;
    }

protected:
    Cell cell(int place, int column) const override { return at(column).show(row(place)); }
    /// The row may be another one as soon as the document has changed.
    void take(int place, int column, const QString& typed) override {
        const Row before = row(place);
        at(column).take(key(place), before, typed);
    }
    void tick(int place, int column, bool isTicked) override {
        const Row before = row(place);
        at(column).tick(key(place), before, isTicked);
    }
    QStringList proposals(int place, int column) const override {
        return at(column).proposals ? at(column).proposals(row(place)) : QStringList();
    }

private:
    static std::vector<ColumnHead> headsOf(const Columns& columns) {
        std::vector<ColumnHead> heads;
        for (const Column<Row, Key>& column : columns)
            heads.push_back({column.title, column.unit, column.tip, column.colour, column.kind,
                             column.take != nullptr, column.tick != nullptr});
        return heads;
    }

    const Column<Row, Key>& at(int column) const {
        return m_columns.at(static_cast<std::size_t>(column));
    }

    void start(std::vector<Row> rows) {
        beginResetModel();
        m_rows = std::move(rows);
        startWith(static_cast<int>(m_rows.size()));
        endResetModel();
    }

    std::vector<int> followKeys(const std::vector<Row>& rows) const {
        std::map<Key, int> places;
        for (std::size_t place = 0; place < rows.size(); ++place)
            places.emplace(m_keyOf(rows[place]), static_cast<int>(place));
        std::vector<int> movedTo;
        for (const Row& row : m_rows) {
            const auto place = places.extract(m_keyOf(row)); // no two rows end up in one
            movedTo.push_back(place.empty() ? -1 : place.mapped());
        }
        return movedTo;
    }

    std::vector<int> followPlaces(const std::vector<Row>& rows) const {
        if (m_knownBy == RowsKnownBy::Number)
            return followedRows(static_cast<int>(m_rows.size()), static_cast<int>(rows.size()),
                                [](int was, int is) { return was == is; });
        const QStringList before = textsOf(m_rows);
        const QStringList now = textsOf(rows);
        return followedRows(static_cast<int>(before.size()), static_cast<int>(now.size()),
                            [&](int was, int is) { return before[was] == now[is]; });
    }

    QStringList textsOf(const std::vector<Row>& rows) const {
        QStringList texts;
        for (const Row& row : rows) {
            QString text;
            for (const Column<Row, Key>& column : m_columns)
                text += column.show(row).text + '\n';
            texts.append(text);
        }
        return texts;
    }

    Columns m_columns;
    KeyOf m_keyOf;
    RowsKnownBy m_knownBy = RowsKnownBy::WhatTheyShow;
    std::vector<Row> m_rows;
};

/// A column of texts that is only read.
template <class Row>
Column<Row> textColumn(const QString& title, std::function<QString(const Row&)> text) {
    return {.title = title, .show = [=](const Row& row) { return Cell{text(row)}; }};
}

/// A column of numbers that is only read, with a dash where there is none.
template <class Row>
Column<Row> numberColumn(const QString& title,
                         std::function<std::optional<double>(const Row&)> number,
                         std::function<QString(double)> shown) {
    return {.title = title, .kind = ColumnKind::Number, .show = [=](const Row& row) {
                const std::optional<double> value = number(row);
                return Cell{.text = value ? shown(*value) : QStringLiteral("–"), .number = value};
            }};
}

} // namespace kavela::desktop
