#include "facts/query.h"
#include "harness.h"

/// Queries as people type them. One that is refused says where; one that is read is written in a
/// way that reads back the same, and is answered.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kavela;
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    Query query;
    try {
        query = parsedQuery(text);
    } catch (const QueryError& error) {
        fuzz::require(error.place() + error.length() <= size);
        return 0;
    }
    const std::string written = textOf(query);
    fuzz::require(textOf(parsedQuery(written)) == written);
    static const FactStore facts = [] {
        splittakerdata031 race;
        race.info.gates = 1;
        race.athletes.resize(2);
        race.athletes[0].sectioninfo.times = {9};
        race.athletes[0].sectioninfo.pens = {2};
        FactStore store;
        store.add(race, "race.kvx");
        return store;
    }();
    const QueryAnswer found = answer(facts, query);
    for (std::size_t row = 0; row < found.size(); ++row) {
        (void)found.place(row);
        for (std::size_t column = 0; column < found.columns().size(); ++column)
            (void)found.text(row, column);
    }
    return 0;
}
