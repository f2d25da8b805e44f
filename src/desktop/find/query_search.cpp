#include "desktop/find/query_search.h"

#include <QElapsedTimer>

#include <utility>

namespace kavela::desktop {

QuerySearch::QuerySearch(QObject* parent) : QObject(parent) {}

template <class Answer>
void QuerySearch::start(std::shared_ptr<const FactStore> facts, Answer answer) {
    const int number = ++m_asked;
    m_work.run(
        [facts = std::move(facts), answer = std::move(answer)] {
            QElapsedTimer clock;
            clock.start();
            auto result = std::make_shared<Found>(Found{facts, answer(*facts)});
            constexpr double NanosecondsPerMillisecond = 1e6;
            result->milliseconds =
                static_cast<double>(clock.nsecsElapsed()) / NanosecondsPerMillisecond;
            return std::shared_ptr<const Found>(std::move(result));
        },
        [this, number](const std::shared_ptr<const Found>& result) {
            if (number != m_asked)
                return;
            m_answered = number;
            emit found(result);
        },
        {.failed = [this, number](const std::exception_ptr&) { // no memory for so many rows
            if (number != m_asked)
                return;
            m_answered = number;
            emit found(nullptr);
        }});
}

void QuerySearch::ask(std::shared_ptr<const FactStore> facts, Query query) {
    start(std::move(facts),
          [query = std::move(query)](const FactStore& store) { return answer(store, query); });
}

void QuerySearch::askGroup(std::shared_ptr<const Found> groups, std::size_t group) {
    start(groups->facts,
          [groups, group](const FactStore&) { return rowsOfGroup(groups->answer, group); });
}

} // namespace kavela::desktop
