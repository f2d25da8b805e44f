#pragma once

#include "desktop/find/found_table.h"
#include "desktop/shell/background_work.h"

#include <QObject>

namespace kavela::desktop {

/// Answers queries beside the window. Of several only the last one is told.
class QuerySearch : public QObject {
    Q_OBJECT

public:
    explicit QuerySearch(QObject* parent = nullptr);

    void ask(std::shared_ptr<const FactStore> facts, Query query);
    /// The rows of one group of an answer.
    void askGroup(std::shared_ptr<const Found> groups, std::size_t group);
    /// What is being looked for is not wanted any more.
    void forget() { m_answered = ++m_asked; }
    [[nodiscard]] bool isSearching() const { return m_asked != m_answered; }

signals:
    void found(std::shared_ptr<const kavela::desktop::Found> found);

private:
    template <class Answer>
    void start(std::shared_ptr<const FactStore> facts, Answer answer);

    int m_asked = 0;
    int m_answered = 0;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
