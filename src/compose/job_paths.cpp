#include "compose/job_paths.h"

#include <string>

namespace kavela {

namespace {

namespace fs = std::filesystem;

template <class Change>
void changeNames(composejob002& job, const Change& change) {
    const auto changed = [&](std::string& name) {
        if (!name.empty())
            name = change(fs::path(name)).generic_string();
    };
    for (composefilm002& film : job.films) {
        changed(film.splitFile);
        changed(film.film);
        changed(film.track);
    }
    changed(job.output.file);
}

bool sharesMoreThanRoot(const fs::path& a, const fs::path& b) {
    const fs::path ofA = a.relative_path();
    const fs::path ofB = b.relative_path();
    return a.root_name() == b.root_name() && !ofA.empty() && !ofB.empty() &&
           *ofA.begin() == *ofB.begin();
}

} // namespace

composejob002 withFullNames(composejob002 job, const fs::path& folder) {
    changeNames(job, [&](const fs::path& name) { return (folder / name).lexically_normal(); });
    return job;
}

composejob002 withNamesFrom(composejob002 job, const fs::path& folder) {
    const fs::path base = folder.lexically_normal();
    changeNames(job, [&](const fs::path& name) {
        if (name.is_relative() || !sharesMoreThanRoot(name.lexically_normal(), base))
            return name;
        return name.lexically_normal().lexically_relative(base);
    });
    return job;
}

} // namespace kavela
