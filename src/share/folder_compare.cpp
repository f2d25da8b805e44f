#include "share/folder_compare.h"

#include "common/display_text.h"
#include "common/error.h"
#include "common/text.h"
#include "fetch/listing.h"
#include "share/shared_names.h"
#include "share/web_place.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>
#include <array>
#include <deque>

namespace kavela::share {

namespace fs = std::filesystem;

namespace {

constexpr qint64 BytesAtOnce = 1'048'576;

QByteArray davBody() {
    const std::string_view question = fetch::davQuestion();
    return {question.data(), static_cast<qsizetype>(question.size())};
}

/// Walks the folders of a server, one question for each.
class ServerWalk {
public:
    ServerWalk(WebFolder& web, ShareSurvey& survey, const ShareSteps& steps)
        : m_web(web), m_survey(survey), m_steps(steps) {}

    void walk() {
        std::deque<std::string> waiting{std::string()};
        while (!waiting.empty()) {
            const std::string folder = waiting.front();
            waiting.pop_front();
            m_steps.tell("The server is looked at",
                         static_cast<std::int64_t>(m_survey.there.size()), 0);
            for (const fetch::DavEntry& entry : entriesIn(folder))
                take(entry, folder, waiting);
        }
    }

private:
    std::vector<fetch::DavEntry> entriesIn(const std::string& folder) {
        const fetch::Address address = folderAt(m_web.address(), folder);
        const DavAnswer answer = m_web.ask(
            {.address = address,
             .verb = "PROPFIND",
             .body = davBody(),
             .headers = {{"Depth", "1"}, {"Content-Type", "application/xml; charset=utf-8"}}});
        constexpr std::array<int, 3> SaidBehindFiles{400, 403, 404};
        if (folder.empty() &&
            std::ranges::find(SaidBehindFiles, answer.status()) != SaidBehindFiles.end())
            refuseFile(address);
        // A folder that went meanwhile; the first one is made when something is put there.
        if (answer.isMissing())
            return {};
        if (answer.status() == 401)
            throw ShareError(refusalOf(answer), true);
        constexpr int MultiStatus = 207;
        const bool isOtherServer =
            answer.reason.empty() && answer.isDone() && answer.status() != MultiStatus;
        if (isOtherServer || answer.status() == 405 || answer.status() == 501)
            throw ShareError(say("The server does not speak WebDAV at this address."));
        if (!answer.isDone())
            throw ShareError(refusalOf(answer));
        return read(answer, address, folder);
    }

    /// Behind the name of a file there is no folder to be found.
    void refuseFile(fetch::Address address) {
        address.path.pop_back();
        if (const auto file = address.path.empty() ? std::nullopt : m_web.stateOf(address);
            file && !file->isFolder)
            throw ShareError(say("The address is that of a file. A folder is shared."));
    }

    std::vector<fetch::DavEntry> read(const DavAnswer& answer, const fetch::Address& address,
                                      const std::string& folder) {
        try {
            std::vector<fetch::DavEntry> entries = fetch::entriesOfDav(answer.body, address);
            for (const fetch::DavEntry& entry : entries)
                if (folder.empty() && !entry.isFolder && isFolderItself(entry.address, address))
                    throw ShareError(say("The address is that of a file. A folder is shared."));
            m_survey.foldersThere.insert(folder);
            return entries;
        } catch (const fetch::ListingError& error) {
            throw ShareError(error.what());
        }
    }

    /// Whether an entry is the folder that was asked about, with or without the slash.
    static bool isFolderItself(const fetch::Address& entry, const fetch::Address& folder) {
        return entry.path == folder.path || entry.path + '/' == folder.path;
    }

    /// What does not lie right in the folder by its own address is none of ours, whatever it says.
    void take(const fetch::DavEntry& entry, const std::string& folder,
              std::deque<std::string>& waiting) {
        const fetch::Address address = folderAt(m_web.address(), folder);
        if (isFolderItself(entry.address, address))
            return;
        std::string path = entry.address.path;
        if (path.ends_with('/'))
            path.pop_back();
        fetch::Address plain = entry.address;
        plain.path = path;
        const std::string name = plain.lastName();
        const std::string within = folder.empty() ? name : folder + '/' + name;
        if (isLeftOut(name))
            return;
        if (const auto fault = faultOfName(name))
            leaveOut(within, *fault);
        else if (!isChild(plain, address))
            leaveOut(within, say("The server says that it lies in another folder."));
        else if (entry.isFolder)
            takeFolder(within, waiting);
        else
            m_survey.there[within] = {.size = entry.size,
                                      .mark = entry.mark,
                                      .isTag = entry.isTag,
                                      .sha256 = entry.sha256};
        if (m_survey.there.size() > MostSharedFiles)
            throw ShareError(say("The server has too many files to share."));
    }

    static bool isChild(const fetch::Address& file, const fetch::Address& folder) {
        const std::size_t end = file.path.rfind('/') + 1;
        fetch::Address parent = file;
        parent.path = file.path.substr(0, end);
        // Servers encode what they like: what the parts stand for is compared.
        return file.isSameOrigin(folder) && decodedPath(parent) == decodedPath(folder);
    }

    static std::vector<std::string> decodedPath(fetch::Address address) {
        std::vector<std::string> parts;
        while (address.path.size() > 1) {
            address.path.pop_back(); // the slash behind
            parts.push_back(address.lastName());
            address.path.resize(address.path.rfind('/') + 1);
        }
        return parts;
    }

    void takeFolder(const std::string& path, std::deque<std::string>& waiting) {
        if (std::ranges::count(path, '/') + 1 >= MostLevels)
            leaveOut(path, say("It lies too deep."));
        else if (m_seen.insert(path).second)
            waiting.push_back(path);
    }

    void leaveOut(const std::string& path, const std::string& reason) {
        m_survey.leftOut.push_back({validUtf8(path) + " on the server", reason});
    }

    WebFolder& m_web;
    ShareSurvey& m_survey;
    const ShareSteps& m_steps;
    std::set<std::string> m_seen;
};

/// Whether a server says of itself that it locks: "1,2,3", where 2 stands for it.
bool locksBy(std::string_view dav) {
    while (!dav.empty()) {
        const std::size_t end = std::min(dav.find(','), dav.size());
        std::string_view part = dav.substr(0, end);
        part.remove_prefix(std::min(part.find_first_not_of(' '), part.size()));
        if (part == "2")
            return true;
        dav.remove_prefix(std::min(end + 1, dav.size()));
    }
    return false;
}

/// Fills in the hashes that decide something.
void hashWhereNeeded(const SharedPlace& place, ShareSurvey& survey, const ShareSteps& steps) {
    std::vector<std::string> wanted;
    for (const auto& [path, file] : survey.here) {
        const auto there = survey.there.find(path);
        const auto known = survey.known.find(path);
        if (needsHash(file, there == survey.there.end() ? nullptr : &there->second,
                      known == survey.known.end() ? nullptr : &known->second))
            wanted.push_back(path);
    }
    for (std::size_t done = 0; done < wanted.size(); ++done) {
        steps.tell("Files are compared", static_cast<std::int64_t>(done),
                   static_cast<std::int64_t>(wanted.size()));
        survey.here[wanted[done]].sha256 =
            sha256OfFile(fs::path(place.folder) / wanted[done], steps.stop);
    }
}

/// What is the same on both sides is noted, and what is on neither forgotten.
void noteAgreement(ShareSurvey& survey) {
    std::erase_if(survey.known, [&](const auto& noted) {
        return !survey.here.contains(noted.first) && !survey.there.contains(noted.first);
    });
    for (const auto& [path, file] : survey.here) {
        const auto there = survey.there.find(path);
        if (there == survey.there.end() || file.sha256.empty())
            continue;
        const auto known = survey.known.find(path);
        const Change change =
            changeOf(&file, &there->second, known == survey.known.end() ? nullptr : &known->second);
        if (change == Change::None || change == Change::Agree)
            survey.known[path] = {there->second.mark, file.sha256, file.size, file.modified};
    }
}

} // namespace

fetch::WebRules rulesOf(const ShareRequest& request) {
    return {.source = folderAt(request.address),
            .sites = {},
            .login = request.login,
            .pace = request.pace};
}

SharedPlace placeOf(const ShareRequest& request) {
    std::error_code fault;
    const fs::path folder = fs::canonical(request.folder, fault);
    if (fault)
        throw FileError(request.folder, fault.message());
    return {folder.string(), folderAt(request.address).text()};
}

ShareSurvey compareFolder(const ShareRequest& request, const ShareSteps& steps) {
    if (const auto fault = faultOfPlace(request.address))
        throw ShareError(*fault);
    const SharedPlace place = placeOf(request);
    ShareSurvey survey;
    if (!request.caches.empty())
        survey.known = readState(statePath(request.caches, place), place);
    FolderFiles own = filesIn(place.folder, steps.stop);
    if (steps.stop.stop_requested())
        throw ShareStopped();
    survey.here = std::move(own.files);
    survey.leftOut = std::move(own.leftOut);
    WebFolder web(rulesOf(request), steps.stop);
    ServerWalk(web, survey, steps).walk();
    const DavAnswer options = web.askOnce({.address = web.address(), .verb = "OPTIONS"});
    survey.canLock = options.isDone() && locksBy(options.head.dav);
    survey.asked = web.asked();
    hashWhereNeeded(place, survey, steps);
    noteAgreement(survey);
    keepState(request, survey.known);
    survey.rows = sharePlan(survey.here, survey.there, survey.known);
    return survey;
}

std::string sha256OfFile(const fs::path& path, const std::stop_token& stop) {
    QFile file(QFile::decodeName(path.c_str()));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw FileError(path, file.errorString().toStdString());
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (;;) {
        if (stop.stop_requested())
            throw ShareStopped();
        const QByteArray bytes = file.read(BytesAtOnce);
        if (file.error() != QFileDevice::NoError)
            throw FileError(path, file.errorString().toStdString());
        if (bytes.isEmpty())
            return hash.result().toHex().toStdString();
        hash.addData(bytes);
    }
}

void keepState(const ShareRequest& request, const KnownFiles& known) {
    if (request.caches.empty())
        return;
    try {
        const SharedPlace place = placeOf(request);
        writeState(statePath(request.caches, place), place, known);
    } catch (const std::runtime_error&) {
        return; // what is not known is compared again
    }
}

} // namespace kavela::share
