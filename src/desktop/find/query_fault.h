#pragma once

#include "facts/query_text.h"

#include <QWidget>

class QHBoxLayout;

namespace kavela::desktop {

class FaultLabel;

/// What is wrong with a query, and the words that may have been meant, of which one can be taken.
/// Hidden as long as nothing is wrong.
class QueryFault : public QWidget {
    Q_OBJECT

public:
    explicit QueryFault(QWidget* parent = nullptr);

    /// `query` is the text that the fault is in.
    void tell(const QueryError& error, const QString& query);
    void clear();
    [[nodiscard]] QString text() const;

signals:
    /// The query as it reads with another word in place of the wrong one.
    void mended(const QString& query);

private:
    FaultLabel* m_text;
    QHBoxLayout* m_words;
};

} // namespace kavela::desktop
