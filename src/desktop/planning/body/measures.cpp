#include "desktop/planning/body/measures.h"

#include <QCoreApplication>

namespace kavela::desktop {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("Measures", text);
}

/// A list of records of a season whose values are members of the record.
template <class Record, class List>
class ListOf : public Measures {
public:
    ListOf(List list, std::vector<double Record::*> members, std::vector<MeasureColumn> columns)
        : m_list(list), m_members(std::move(members)), m_columns(std::move(columns)) {}

    std::vector<MeasureColumn> columns() const override { return m_columns; }

    std::vector<MeasureRow> rows(const yearsplannings_v6& season) const override {
        std::vector<MeasureRow> rows;
        for (const Record& record : m_list(season)) {
            MeasureRow row{rows.size(), record.date, {}};
            for (const auto member : m_members)
                row.values.push_back(record.*member);
            rows.push_back(std::move(row));
        }
        return rows;
    }

    std::size_t add(yearsplannings_v6& season, ReferenceDate date) const override {
        Record record;
        record.date = date;
        return insertByDate(m_list(season), record);
    }

    void remove(yearsplannings_v6& season, std::vector<std::size_t> places) const override {
        removePlaces(m_list(season), std::move(places));
    }

    void setDate(yearsplannings_v6& season, std::size_t place, ReferenceDate date) const override {
        if (place < m_list(season).size())
            m_list(season)[place].date = date;
    }

    void setValue(yearsplannings_v6& season, std::size_t place, std::size_t column,
                  double value) const override {
        if (place < m_list(season).size() && column < m_members.size())
            m_list(season)[place].*m_members[column] = value;
    }

private:
    List m_list;
    std::vector<double Record::*> m_members;
    std::vector<MeasureColumn> m_columns;
};

template <class Record, class List>
std::unique_ptr<Measures> makeList(List list, std::vector<double Record::*> members,
                                   std::vector<MeasureColumn> columns) {
    return std::make_unique<ListOf<Record, List>>(list, std::move(members), std::move(columns));
}

} // namespace

std::unique_ptr<Measures> bodyMeasures() {
    using Record = healthdataplanning_v1;
    return makeList<Record>([](auto& season) -> auto& { return season.healthdata; },
                            {&Record::weight, &Record::fatper},
                            {{tr("Weight"), "kg", 300}, {tr("Body fat"), "%", 100}});
}

std::unique_ptr<Measures> restingMeasures() {
    using Record = restingdataplanning_v1;
    return makeList<Record>([](auto& season) -> auto& { return season.heartdata.resting; },
                            {&Record::rhr}, {{tr("Resting heart rate"), "bpm", 250}});
}

std::unique_ptr<Measures> variabilityMeasures() {
    return makeList<variabilitydataplanning_v2>(
        [](auto& season) -> auto& { return season.heartdata.variability; }, variabilityIndices(),
        {{"AVNN", "ms", 3000},
         {"SDNN", "ms", 1000},
         {"rMSSD", "ms", 1000},
         {"pNN50", "%", 100},
         {"LF", "ms²", 1e6},
         {"HF", "ms²", 1e6}});
}

const std::vector<double variabilitydataplanning_v2::*>& variabilityIndices() {
    using Record = variabilitydataplanning_v2;
    static const std::vector indices{&Record::AVNN,  &Record::SDNN, &Record::rMSSD,
                                     &Record::pNN50, &Record::LF,   &Record::HF};
    return indices;
}

} // namespace kavela::desktop
