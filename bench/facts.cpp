#include "facts/folder_scan.h"
#include "facts/query.h"

#include "many_seasons.h"
#include "sample_files.h"
#include "subjects.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <stdexcept>

/// Asking many seasons at once: scanning their folder, starting from the cache, and queries, beside
/// SQLite with the same rows in memory.
namespace kavela::bench {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t ChangedFiles = 20;

std::size_t fileCount = 0; ///< as the call says, before anything is measured

/// Seasons on the disk with a cache of their own.
class Seasons {
public:
    FolderScan scan() const {
        ScanOptions options;
        options.cacheFolder = m_cache.path();
        const std::vector<fs::path> paths{m_seasons.folder()};
        return scanPaths(paths, options);
    }

    void forget() const {
        for (const auto& entry : fs::directory_iterator(m_cache.path()))
            fs::remove(entry.path());
    }

    void change() { m_seasons.touch(ChangedFiles); }

private:
    ManySeasons m_seasons{fileCount};
    ScratchFolder m_cache;
};

Seasons& seasons() {
    static Seasons made;
    return made;
}

const FactStore& facts() {
    static const FolderScan scan = seasons().scan();
    return scan.facts;
}

double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (std::string name; line.starts_with("VmHWM:")) {
            double kilobytes = 0;
            std::istringstream(line) >> name >> kilobytes;
            return kilobytes / 1024;
        }
    return 0;
}

void scanAll(benchmark::State& state) {
    (void)seasons();
    for ([[maybe_unused]] const auto iteration : state) {
        state.PauseTiming();
        seasons().forget();
        std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts anew
        state.ResumeTiming();
        benchmark::DoNotOptimize(seasons().scan().read);
    }
    state.counters["peak_mb"] = peakMegabytes();
}

void startFromCache(benchmark::State& state) {
    (void)seasons().scan();
    for ([[maybe_unused]] const auto iteration : state)
        if (seasons().scan().read != 0)
            state.SkipWithError("the cache was not used");
}

void readChanged(benchmark::State& state) {
    (void)seasons().scan();
    for ([[maybe_unused]] const auto iteration : state) {
        state.PauseTiming();
        seasons().change();
        state.ResumeTiming();
        if (seasons().scan().read != ChangedFiles)
            state.SkipWithError("other files were read than those that changed");
    }
}

/// A statement that is run with other values again and again.
class Insertion {
public:
    Insertion(sqlite3* database, const char* text) {
        if (::sqlite3_prepare_v2(database, text, -1, &m_statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(::sqlite3_errmsg(database));
    }
    Insertion(const Insertion&) = delete;
    Insertion& operator=(const Insertion&) = delete;
    ~Insertion() { ::sqlite3_finalize(m_statement); }

    template <class... Values>
    void run(const Values&... values) {
        int place = 0;
        (bind(++place, values), ...);
        if (::sqlite3_step(m_statement) != SQLITE_DONE)
            throw std::runtime_error("SQLite does not take a row");
        ::sqlite3_reset(m_statement);
    }

private:
    void bind(int place, std::int64_t value) { ::sqlite3_bind_int64(m_statement, place, value); }
    void bind(int place, double value) { ::sqlite3_bind_double(m_statement, place, value); }
    void bind(int place, std::string_view value) {
        ::sqlite3_bind_text(m_statement, place, value.data(), static_cast<int>(value.size()),
                            SQLITE_STATIC);
    }

    sqlite3_stmt* m_statement = nullptr;
};

/// The rows that the queries ask for in SQLite, with the indices that they can use.
class Database {
public:
    Database() {
        if (::sqlite3_open(":memory:", &m_database) != SQLITE_OK)
            throw std::runtime_error("SQLite cannot be opened");
        run("CREATE TABLE runs(id INTEGER PRIMARY KEY, crew TEXT, cat TEXT, year INT, sprint REAL);"
            "CREATE TABLE gates(run INT, direction INT, time REAL);"
            "CREATE TABLE sections(run INT, time REAL); BEGIN");
        fill();
        run("COMMIT; CREATE INDEX run_cat ON runs(cat, year);"
            "CREATE INDEX gate_run ON gates(run); CREATE INDEX section_run ON sections(run)");
    }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database() { ::sqlite3_close(m_database); }

    std::size_t run(const std::string& text) const {
        std::size_t rows = 0;
        const auto count = [](void* rows_, int, char**, char**) {
            ++*static_cast<std::size_t*>(rows_);
            return 0;
        };
        if (::sqlite3_exec(m_database, text.c_str(), count, &rows, nullptr) != SQLITE_OK)
            throw std::runtime_error(::sqlite3_errmsg(m_database));
        return rows;
    }

private:
    void fill() const {
        const QueryColumn& year = *columnNamed(What::Runs, "year");
        Insertion runs(m_database, "INSERT INTO runs VALUES(?,?,?,?,?)");
        Insertion gates(m_database, "INSERT INTO gates VALUES(?,?,?)");
        Insertion sections(m_database, "INSERT INTO sections VALUES(?,?)");
        std::int64_t id = 0;
        for (const RunRow& row : facts().runs()) {
            RowCursor cursor;
            cursor.facts = &facts();
            cursor.file = &facts().fileOf(row);
            runs.run(++id, facts().text(row.crewKey), facts().text(row.category),
                     static_cast<std::int64_t>(year.number(cursor)), row.sprint);
            for (const GateRow& gate : facts().gatesOf(row))
                gates.run(id, std::int64_t{gate.direction}, gate.time);
            for (const SectionRow& section : facts().sectionsOf(row))
                sections.run(id, section.time);
        }
    }

    sqlite3* m_database = nullptr;
};

const Database& database() {
    static const Database made;
    return made;
}

/// What a scan and a start from the cache are beside: putting rows that are read already into
/// tables.
void fillDatabase(benchmark::State& state) {
    (void)facts();
    for ([[maybe_unused]] const auto iteration : state)
        Database().run("SELECT 1");
}

/// The rows of all tables; those that the queries do not ask for too.
std::size_t bytesOf(const FactStore& store) {
    std::size_t bytes = store.files().size_bytes() + store.runs().size_bytes();
    for (const RunRow& run : store.runs())
        bytes += store.sectionsOf(run).size_bytes() + store.gatesOf(run).size_bytes() +
                 store.penaltiesOf(run).size_bytes() + store.lossesOf(run).size_bytes() +
                 store.tagsOf(run).size_bytes() + store.pensOf(run).size_bytes() +
                 store.filmsOf(run).size_bytes();
    for (std::size_t text = 0; text < store.textCount(); ++text)
        bytes += sizeof(std::string) + store.text(static_cast<TextId>(text)).size();
    return bytes;
}

void storeMemory(benchmark::State& state, bool isDatabase) {
    constexpr double Megabyte = 1 << 20;
    (void)facts();
    for ([[maybe_unused]] const auto iteration : state) {
        if (isDatabase)
            (void)database(); // the only one that is there
        const auto bytes =
            isDatabase ? static_cast<std::size_t>(::sqlite3_memory_used()) : bytesOf(facts());
        state.counters["mb"] = static_cast<double>(bytes) / Megabyte;
    }
}

void askKavela(benchmark::State& state, const std::string& query) {
    (void)facts();
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(answer(facts(), parsedQuery(query)).size());
}

/// Both must have as many rows for an answer: else they were asked different things.
void askDatabase(benchmark::State& state, const std::string& query, const std::string& ours) {
    const std::size_t rows = answer(facts(), parsedQuery(ours)).size();
    if (rows == 0 || database().run(query) != rows)
        state.SkipWithError("SQLite has another answer, or there is none");
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(database().run(query));
}

void addQuery(const std::string& name, const std::string& ours, const std::string& theirs) {
    benchmark::RegisterBenchmark(("facts/" + name + "/kavela").c_str(), askKavela, ours);
    benchmark::RegisterBenchmark(("facts/" + name + "/sqlite").c_str(), askDatabase, theirs, ours);
}

} // namespace

void addFacts(std::size_t files) {
    fileCount = files;
    benchmark::RegisterBenchmark("facts/scan", scanAll)->Iterations(1)->UseRealTime();
    benchmark::RegisterBenchmark("facts/cache", startFromCache)->UseRealTime();
    benchmark::RegisterBenchmark("facts/changed", readChanged)->Iterations(1)->UseRealTime();
    benchmark::RegisterBenchmark("facts/fill/sqlite", fillDatabase)->Iterations(1)->UseRealTime();
    benchmark::RegisterBenchmark("facts/memory/kavela", storeMemory, false)->Iterations(1);
    benchmark::RegisterBenchmark("facts/memory/sqlite", storeMemory, true)->Iterations(1);
    addQuery("gates", "gates left cat K1M time<4 year 2020",
             "SELECT gates.rowid, time FROM runs JOIN gates ON run = id WHERE cat = 'K1M' AND "
             "year = 2020 AND direction = 0 AND time > 0 AND time < 4");
    addQuery("best", "best sprint by athlete",
             "SELECT crew, count(*), min(sprint), avg(sprint) FROM runs WHERE sprint > 0 "
             "GROUP BY crew ORDER BY 3");
    addQuery("sections", "sections by athlete, cat",
             "SELECT crew, cat, count(*), min(time), avg(time) FROM runs JOIN sections ON run = id "
             "WHERE time > 0 GROUP BY crew, cat");
}

} // namespace kavela::bench
