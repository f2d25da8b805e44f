#include "desktop/find/unknown_names.h"

#include "desktop/shell/qt_text.h"
#include "facts/query.h"
#include "results/name_likeness.h"

#include <QCoreApplication>

#include <set>

namespace kavela::desktop {

namespace {

constexpr int MostNames = 3;
constexpr double LeastLikeness = 0.3;

QString words(const char* text) {
    return QCoreApplication::translate("FindWindow", text);
}

bool isAboutAthlete(const Condition& condition) {
    const QueryColumn* const column = condition.choices.front().column;
    return column && column->name == "athlete" && condition.comparison == Comparison::Equal;
}

std::vector<std::string> namesIn(const FactStore& facts) {
    std::set<std::string> all;
    for (const RunRow& run : facts.runs())
        for (std::string& name : facts.lines(run.names))
            all.insert(std::move(name));
    return {all.begin(), all.end()};
}

} // namespace

QStringList unknownNames(const Query& query, const FactStore& facts) {
    QStringList sentences;
    for (const Condition& condition : query.conditions) {
        Query alone;
        alone.conditions.push_back(condition);
        if (!isAboutAthlete(condition) || answer(facts, alone).size() > 0)
            continue;
        const std::vector<std::string> names = namesIn(facts);
        QStringList like;
        for (const std::size_t at : byLikeness(condition.value, names))
            if (like.size() < MostNames &&
                nameLikeness(condition.value, names[at]) >= LeastLikeness)
                like.append(qtText(names[at]));
        QString sentence =
            words("Nobody is called “%1” in these files.").arg(qtText(condition.value));
        if (!like.isEmpty())
            sentence += ' ' + words("Like it: %1.").arg(like.join(", "));
        sentences.append(sentence);
    }
    return sentences;
}

} // namespace kavela::desktop
