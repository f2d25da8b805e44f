#pragma once

#include "desktop/shell/tables/column_model.h"
#include "facts/query.h"

#include <QWidget>

#include <memory>
#include <optional>

class QLabel;

namespace kavela::desktop {

class ColumnTable;

/// An answer with the facts that it looks its values up in.
struct Found {
    std::shared_ptr<const FactStore> facts;
    QueryAnswer answer;
    double milliseconds = 0; ///< that the search took
};

/// A row of an answer.
struct AnswerLine {
    std::shared_ptr<const Found> found;
    std::size_t row = 0;
};

/// No table shows more: nobody reads on. What is saved has all.
inline constexpr std::size_t MostFoundShown = 5'000;

/// The rows of an answer under a line that says what they are; the columns are the query's.
/// Numbers answer why.
class FoundTable : public QWidget {
    Q_OBJECT

public:
    /// `name` is that of the table.
    explicit FoundTable(const char* name, QWidget* parent = nullptr);

    /// The rows that were there before stay chosen where the query is the same and asks for the
    /// same, unless these are rows of something else. Null for none.
    void show(std::shared_ptr<const Found> found, bool isOther = false);
    void setTitle(const QString& title);
    void setEmptyText(const QString& text);
    using QWidget::show;

    [[nodiscard]] const std::shared_ptr<const Found>& found() const { return m_found; }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    /// The chosen row of the answer.
    [[nodiscard]] std::optional<std::size_t> current() const;

signals:
    /// Another row is chosen, or none.
    void chosen();
    /// Enter or a double click on a row.
    void activated();

private:
    std::shared_ptr<const Found> m_found;
    ColumnModel<AnswerLine> m_lines;
    QLabel* m_title;
    ColumnTable* m_table;
};

/// "312 gates in 14 ms", "1 group in 2 ms"
[[nodiscard]] QString countText(const Found& found);

} // namespace kavela::desktop
