#include "facts/folder_scan.h"
#include "facts/query.h"

#include "common/json_encode.h"
#include "sample_content.h"
#include "sample_files.h"
#include "subjects.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>
#include <cmath>
#include <fstream>
#include <sstream>
#include <stdexcept>

/// Asking many seasons at once: scanning their folder, starting from the cache, and queries, beside
/// SQLite with the same rows in memory.
namespace kavela::bench {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t Files = 5000;
constexpr std::size_t RunsPerFile = 60;
constexpr std::size_t ChangedFiles = 20;
constexpr unsigned Variants = 50; ///< races that differ; the others differ in place and date

/// Seasons on the disk, of which the first scan has been made.
class Seasons {
public:
    Seasons() {
        for (unsigned variant = 0; variant < Variants; ++variant)
            m_races.push_back(race(RunsPerFile, variant));
        for (std::size_t i = 0; i < Files; ++i)
            write(i);
    }

    FolderScan scan() const {
        ScanOptions options;
        options.cacheFolder = m_cache.write("marker", "").parent_path();
        const std::vector<fs::path> paths{m_folder};
        return scanPaths(paths, options);
    }

    void forget() const {
        for (const auto& entry : fs::directory_iterator(m_cache.write("marker", "").parent_path()))
            fs::remove(entry.path());
    }

    void change() {
        for (std::size_t i = 0; i < ChangedFiles; ++i)
            write(i * (Files / ChangedFiles));
    }

private:
    void write(std::size_t i) {
        constexpr double SecondsPerDay = 86400;
        splittakerdata031& document = m_races[i % Variants];
        document.info.place = "Course " + std::to_string(i % 40);
        document.info.date.seconds = 600000000 + static_cast<double>(i) * SecondsPerDay / 2;
        const fs::path path = m_files.write(std::to_string(i) + ".kvx", encode(document));
        m_folder = path.parent_path();
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(1) +
                                      std::chrono::milliseconds(++m_writes));
    }

    ScratchFolder m_files;
    ScratchFolder m_cache;
    fs::path m_folder;
    std::vector<splittakerdata031> m_races;
    int m_writes = 0;
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

/// The same rows in SQLite, with the indices that the queries can use.
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
        for (std::size_t i = 0; i < facts().runs().size(); ++i) {
            const RunRow& row = facts().runs()[i];
            RowCursor cursor;
            cursor.facts = &facts();
            cursor.file = &facts().fileOf(row);
            const std::string id = std::to_string(i);
            run("INSERT INTO runs VALUES(" + id + ",'" + std::string(facts().text(row.crewKey)) +
                "','" + std::string(facts().text(row.category)) + "'," +
                std::to_string(static_cast<int>(year.number(cursor))) + ',' +
                std::to_string(row.sprint) + ')');
            for (const GateRow& gate : facts().gatesOf(row))
                run("INSERT INTO gates VALUES(" + id + ',' + std::to_string(gate.direction) + ',' +
                    std::to_string(gate.time) + ')');
            for (const SectionRow& section : facts().sectionsOf(row))
                run("INSERT INTO sections VALUES(" + id + ',' + std::to_string(section.time) + ')');
        }
    }

    sqlite3* m_database = nullptr;
};

void askKavela(benchmark::State& state, const std::string& query) {
    (void)facts();
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(answer(facts(), parsedQuery(query)).size());
}

void askDatabase(benchmark::State& state, const std::string& query) {
    static const Database database;
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(database.run(query));
}

void addQuery(const std::string& name, const std::string& ours, const std::string& theirs) {
    benchmark::RegisterBenchmark(("facts/" + name + "/kavela").c_str(), askKavela, ours);
    benchmark::RegisterBenchmark(("facts/" + name + "/sqlite").c_str(), askDatabase, theirs);
}

} // namespace

void addFacts() {
    benchmark::RegisterBenchmark("facts/scan", scanAll)->Iterations(1)->UseRealTime();
    benchmark::RegisterBenchmark("facts/cache", startFromCache)->UseRealTime();
    benchmark::RegisterBenchmark("facts/changed", readChanged)->Iterations(1)->UseRealTime();
    addQuery("gates", "gates left cat K1M time<4 year 2022",
             "SELECT gates.rowid, time FROM runs JOIN gates ON run = id WHERE cat = 'K1M' AND "
             "year = 2022 AND direction = 0 AND time > 0 AND time < 4");
    addQuery("best", "best sprint by athlete",
             "SELECT crew, count(*), min(sprint), avg(sprint) FROM runs WHERE sprint > 0 "
             "GROUP BY crew ORDER BY 3");
    addQuery("sections", "sections by athlete, cat",
             "SELECT crew, cat, count(*), min(time), avg(time) FROM runs JOIN sections ON run = id "
             "WHERE time > 0 GROUP BY crew, cat");
}

} // namespace kavela::bench
