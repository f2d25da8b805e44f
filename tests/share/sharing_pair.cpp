#include "share/sharing_pair.h"

#include <QEventLoop>

namespace kavela::test {

namespace fs = std::filesystem;

void waitBeside(const std::function<void()>& work) {
    std::exception_ptr thrown;
    QEventLoop loop;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        try {
            work();
        } catch (...) {
            thrown = std::current_exception();
        }
    }));
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    if (thrown)
        std::rethrow_exception(thrown);
}

SharingCoach::SharingCoach(std::string address, std::string machine,
                           std::optional<fetch::WebLogin> login) {
    request = {.folder = m_folder.path(),
               .address = std::move(address),
               .login = std::move(login),
               .caches = m_caches.path(),
               .machine = std::move(machine),
               .pace = {.silenceMilliseconds = 5'000, .secondMilliseconds = 5}};
}

void SharingCoach::write(const std::string& path, const std::string& content) const {
    const fs::path file = m_folder.path() / path;
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

std::string SharingCoach::read(const std::string& path) const {
    return contentOf(m_folder.path() / path);
}

bool SharingCoach::has(const std::string& path) const {
    return fs::exists(m_folder.path() / path);
}

void SharingCoach::loseState() const {
    for (const auto& entry : fs::directory_iterator(m_caches.path()))
        fs::remove_all(entry.path());
}

share::ShareSurvey SharingCoach::compare() {
    waitBeside([&] { survey = share::compareFolder(request); });
    return survey;
}

std::map<std::string, share::ShareResult> SharingCoach::share(bool deletes) {
    std::map<std::string, share::ShareResult> results;
    waitBeside([&] {
        survey = share::compareFolder(request);
        share::FolderExchange exchange(request, survey, {});
        for (const share::ShareRow& row : survey.rows)
            if (deletes || !row.isDeletion())
                results[row.path] = exchange.carryOut(row);
    });
    return results;
}

} // namespace kavela::test
