#include "planning/history/planning_history.h"

#include <algorithm>

namespace kavela::history {

namespace {

template <class T>
T taken(std::vector<T>& values, std::size_t index) {
    return index < values.size() ? std::move(values[index]) : T{};
}

std::int64_t placeInDay(const std::vector<sessioninmicro_v5>& earlier,
                        const std::vector<std::int64_t>& day) {
    return day.empty() ? 0 : std::ranges::count(earlier, day, &sessioninmicro_v5::dateinInts);
}

} // namespace

void convertRenamed(testdataplanning_v1& /*from*/, testdataplanning_v5& to) {
    for (std::vector<ReferenceDate>* const done : {&to.blood, &to.endurance, &to.water})
        std::erase(*done, ReferenceDate());
}

void convertRenamed(microsplanning_v1& from, microsplanning_v5& to) {
    const std::size_t count =
        std::max({from.dateinInts.size(), from.trainingtimeInt.size(),
                  from.trainingtimezones.size(), from.trainingtime.size(),
                  from.trainingplace.size(), from.titleanddes.size(), from.data.size()});
    for (std::size_t i = 0; i < count; ++i) {
        sessioninmicro_v5 session;
        session.dateinInts = taken(from.dateinInts, i);
        session.trainingtimeInt = taken(from.trainingtimeInt, i);
        session.trainingtimezones = taken(from.trainingtimezones, i);
        session.trainingtime = taken(from.trainingtime, i);
        session.trainingplace = taken(from.trainingplace, i);
        session.titleanddes = taken(from.titleanddes, i);
        session.data = taken(from.data, i);
        session.dayPosition = placeInDay(to.sessions, session.dateinInts);
        to.sessions.push_back(std::move(session));
    }
}

} // namespace kavela::history
