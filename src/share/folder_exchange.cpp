#include "share/folder_exchange.h"

#include "common/display_text.h"
#include "common/error.h"
#include "common/json_decode.h"
#include "common/safe_file.h"
#include "common/text.h"
#include "share/held_lock.h"
#include "share/shared_names.h"
#include "share/web_place.h"

#include <QDate>
#include <QFile>

#include <utility>

namespace kavela::share {

namespace fs = std::filesystem;

namespace {

using Kind = ShareResult::Kind;

constexpr int NotesBetweenKeeps = 50;
constexpr int MostRefusedMarks = 3;

ShareResult failedWith(const std::string& reason) {
    return {.kind = Kind::Failed, .text = reason};
}

bool isSameStamp(const HereFile& a, const HereFile& b) {
    return a.size == b.size && a.modified == b.modified;
}

std::chrono::year_month_day today() {
    const QDate date = QDate::currentDate();
    return std::chrono::year(date.year()) /
           std::chrono::month(static_cast<unsigned>(date.month())) /
           std::chrono::day(static_cast<unsigned>(date.day()));
}

fs::path partOf(const fs::path& target) {
    return target.parent_path() / ('.' + target.filename().string() + ".kavela.part");
}

fs::path notePathOf(const fs::path& part) {
    return part.string() + ".note";
}

void dropPart(const fs::path& part) {
    std::error_code ignored;
    fs::remove(part, ignored);
    fs::remove(notePathOf(part), ignored);
}

/// Another state may have left a part behind, which would be taken for this one.
void dropPartOfOtherState(const fs::path& part, const std::string& mark) {
    try {
        const auto note = decode<fetch::filmpart001>(JsonDocument::fromFile(notePathOf(part)));
        if (!mark.empty() && note.validator == mark)
            return;
    } catch (const std::runtime_error&) {
        // no note, or none that can be read
    }
    dropPart(part);
}

void renameOver(const fs::path& from, const fs::path& to) {
    std::error_code fault;
    fs::rename(from, to, fault);
    if (fault)
        throw FileError(to, fault.message());
}

} // namespace

FolderExchange::FolderExchange(const ShareRequest& request, ShareSurvey& survey, ShareSteps steps)
    : m_request(request),
      m_survey(survey),
      m_steps(std::move(steps)),
      m_place(placeOf(request)),
      m_web(rulesOf(request), m_steps.stop) {}

FolderExchange::~FolderExchange() {
    keepState(m_request, m_survey.known);
}

fs::path FolderExchange::place(const std::string& path) const {
    const auto found = placeIn(m_place.folder, path);
    if (!found)
        throw ShareError(say("A link in the folder leads out of it, and is not followed."));
    return *found;
}

fetch::Address FolderExchange::addressOf(const std::string& path) const {
    return fileAt(m_web.address(), path);
}

ShareResult FolderExchange::carryOut(const ShareRow& row) {
    if (m_end)
        return *m_end;
    try {
        return carriedOut(row);
    } catch (const ShareStopped&) {
        m_end = ShareResult{.kind = Kind::Cancelled, .text = "Cancelled."};
        return *m_end;
    } catch (const ShareError& error) {
        ShareResult result = failedWith(error.what());
        result.wantsLogin = error.wantsLogin();
        if (result.wantsLogin)
            m_end = result;
        return result;
    } catch (const FileError& error) {
        // On a full disk what came so far would only keep the room from the others.
        if (const auto target = placeIn(m_place.folder, row.path))
            dropPart(partOf(*target));
        return failedWith(validUtf8(error.reason()));
    } catch (const std::exception& error) {
        return failedWith(validUtf8(error.what()));
    }
}

ShareResult FolderExchange::carriedOut(const ShareRow& row) {
    switch (row.change) {
    case Change::NewHere:
        return upload(row.path, true);
    case Change::ChangedHere:
        return upload(row.path, false);
    case Change::NewThere:
        return download(row.path, false);
    case Change::ChangedThere:
        return download(row.path, true);
    case Change::BothSides:
        return settle(row.path);
    case Change::DeletedHere:
        return deleteThere(row.path);
    case Change::DeletedThere:
        return deleteHere(row.path);
    case Change::None:
    case Change::Agree:
    case Change::Gone:
        break;
    }
    return {};
}

bool FolderExchange::isHereAsSeen(const std::string& path) const {
    const auto seen = m_survey.here.find(path);
    const auto now = fileNow(place(path));
    return seen != m_survey.here.end() && now && isSameStamp(*now, seen->second);
}

bool FolderExchange::isThereAsSeen(const std::string& path) {
    const auto now = m_web.stateOf(addressOf(path));
    const auto seen = m_survey.there.find(path);
    if (!now || seen == m_survey.there.end())
        return !now && seen == m_survey.there.end();
    return now->mark == seen->second.mark && now->size == seen->second.size;
}

/// The file as it is now, with its hash: that of the survey where nobody touched it since.
HereFile FolderExchange::hashed(const std::string& path) {
    auto now = fileNow(place(path));
    if (!now)
        throw ShareError(say("It is not here any more."));
    const auto seen = m_survey.here.find(path);
    const bool isKnown = seen != m_survey.here.end() && !seen->second.sha256.empty() &&
                         isSameStamp(*now, seen->second);
    now->sha256 = isKnown ? seen->second.sha256 : sha256OfFile(place(path), m_steps.stop);
    return *now;
}

void FolderExchange::note(const std::string& path, const std::string& mark, const HereFile& file) {
    m_survey.here[path] = file;
    m_survey.known[path] = {mark, file.sha256, file.size, file.modified};
    if (++m_unkept < NotesBetweenKeeps)
        return;
    m_unkept = 0;
    keepState(m_request, m_survey.known);
}

void FolderExchange::makeFoldersFor(const std::string& path) {
    for (std::size_t end = 0; end != std::string::npos; end = path.find('/', end + 1)) {
        const std::string folder = path.substr(0, end);
        if (m_survey.foldersThere.contains(folder))
            continue;
        const DavAnswer answer =
            m_web.ask({.address = folderAt(m_web.address(), folder), .verb = "MKCOL"});
        constexpr int IsThereAlready = 405;
        if (!answer.isDone() && answer.status() != IsThereAlready)
            throw ShareError(
                say("The folder could not be made on the server: {}", refusalOf(answer)),
                answer.status() == 401);
        m_survey.foldersThere.insert(folder);
    }
}

DavAnswer FolderExchange::put(const std::string& path,
                              const std::pair<QByteArray, QByteArray>& condition) {
    const fs::path file = place(path);
    const auto content = std::make_shared<QFile>(QFile::decodeName(file.c_str()));
    if (!content->open(QIODevice::ReadOnly))
        throw FileError(file, content->errorString().toStdString());
    return m_web.ask({.address = addressOf(path),
                      .verb = "PUT",
                      .headers = {{"Content-Type", "application/octet-stream"}, condition},
                      .content = content},
                     m_moved);
}

/// Some servers call their mark a weak one within the second in which a file was written, and take
/// it for none of theirs then: where nothing has changed, it is tried again a little later.
DavAnswer FolderExchange::boundTo(const std::string& path, const std::function<DavAnswer()>& ask) {
    for (int tries = 1;; ++tries) {
        DavAnswer answer = ask();
        if (answer.status() != 412 || !isThereAsSeen(path))
            return answer;
        if (tries == MostRefusedMarks)
            return {.reason = say("The server does not know its own mark of this file again.")};
        m_web.pause(fetch::waitBeforeTry(tries, {}).value_or(std::chrono::seconds(1)));
    }
}

/// What lies there is what the coach has seen, or nothing is put: by the lock, under which it is
/// looked at once more, or by the mark, to which the question is bound.
DavAnswer FolderExchange::putOver(const std::string& path, const std::string& lock) {
    constexpr int IsOther = 412;
    if (!isThereAsSeen(path))
        return {.head = {.status = IsOther}};
    if (!lock.empty())
        return put(path, {"If", QByteArray::fromStdString('(' + lock + ')')});
    const ThereFile& seen = m_survey.there.at(path);
    if (!seen.isTag)
        return put(path, {"Cache-Control", "no-cache"}); // there is nothing to bind it to
    return boundTo(path, [&] {
        return put(path, {"If-Match", QByteArray::fromStdString(seen.mark)});
    });
}

ShareResult FolderExchange::upload(const std::string& path, bool isNew) {
    if (!m_full.empty())
        return failedWith(m_full);
    const HereFile sent = hashed(path);
    makeFoldersFor(path);
    std::optional<HeldLock> lock;
    if (!isNew && m_survey.canLock)
        lock.emplace(m_web, m_request, addressOf(path), sent.size);
    DavAnswer answer;
    if (!isNew)
        answer = putOver(path, lock ? lock->token() : std::string());
    else if (m_web.stateOf(addressOf(path)))
        answer.head.status = 412; // also for servers that heed no condition
    else
        answer = put(path, {"If-None-Match", "*"});
    if (answer.status() == 412) {
        lock.reset();
        return settle(path);
    }
    if (answer.status() == 507)
        m_full = refusalOf(answer);
    if (!answer.isDone())
        throw ShareError(refusalOf(answer), answer.status() == 401);
    return checkSent(path, sent, answer);
}

ShareResult FolderExchange::checkSent(const std::string& path, const HereFile& sent,
                                      const DavAnswer& answer) {
    m_survey.known.erase(path);
    const auto there = m_web.stateOf(addressOf(path));
    if (!there)
        return failedWith(say("The server took the file and does not have it."));
    if (there->size.value_or(sent.size) != sent.size)
        return failedWith(say("The server has kept another length than was sent."));
    const auto now = fileNow(place(path));
    if (!now || !isSameStamp(*now, sent))
        return failedWith(say("It was changed while it was sent. Compare again."));
    const std::string tag = fetch::markOfTag(answer.head.etag);
    // Where they differ, somebody was there since: the next comparison shows it.
    const std::string mark = there->isTag && !tag.empty() ? tag : there->mark;
    m_survey.there[path] = {.size = there->size, .mark = mark, .isTag = there->isTag, .sha256 = {}};
    note(path, mark, sent);
    return {};
}

std::string FolderExchange::markOfArrived(const std::string& path, const std::string& tag) {
    const ThereFile& seen = m_survey.there.at(path);
    if (!tag.empty() && tag == seen.mark)
        return tag;
    // Not every server tells the same of a file and of the list that it stands in.
    return isThereAsSeen(path) ? seen.mark : std::string();
}

void FolderExchange::bringPart(const std::string& path, Arrived& arrived) {
    const ThereFile& seen = m_survey.there.at(path);
    if (seen.size == 0) {
        dropPart(arrived.part);
        writeFileSafely(arrived.part, "");
        arrived.mark = seen.mark;
        return;
    }
    dropPartOfOtherState(arrived.part, seen.mark);
    const WebFolder::Brought brought = m_web.bring(addressOf(path), arrived.part, m_moved);
    const auto held = fileNow(arrived.part);
    arrived.mark = markOfArrived(path, brought.mark);
    const bool hasOtherLength = !held || (seen.size && held->size != *seen.size);
    if (hasOtherLength) {
        dropPart(arrived.part);
        throw ShareError(arrived.mark.empty()
                             ? say("It was changed on the server meanwhile. Compare again.")
                             : say("The server told another length than it sent."));
    }
    arrived.file.sha256 = sha256OfFile(arrived.part, m_steps.stop);
    for (const std::string& told : {seen.sha256, brought.digest})
        if (!told.empty() && told != arrived.file.sha256) {
            dropPart(arrived.part);
            throw ShareError(say("The file that came is not what its checksum says."));
        }
}

FolderExchange::Arrived FolderExchange::arrive(const std::string& path) {
    const fs::path target = place(path);
    std::error_code fault;
    fs::create_directories(target.parent_path(), fault);
    if (fault)
        throw FileError(target.parent_path(), fault.message());
    Arrived arrived{.part = partOf(target), .file = {}, .mark = {}};
    bringPart(path, arrived);
    const auto held = fileNow(arrived.part);
    if (!held)
        throw ShareError(say("The file that came has gone."));
    const std::string hash = arrived.file.sha256.empty() ? sha256OfFile(arrived.part, m_steps.stop)
                                                         : arrived.file.sha256;
    arrived.file = {.size = held->size, .sha256 = hash, .modified = held->modified};
    return arrived;
}

ShareResult FolderExchange::download(const std::string& path, bool replaces) {
    const fs::path target = place(path);
    const ShareResult changed = failedWith(say("It was changed here meanwhile. Compare again."));
    if (replaces ? !isHereAsSeen(path) : isTaken(target))
        return changed;
    const Arrived arrived = arrive(path);
    if (replaces) {
        if (!isHereAsSeen(path))
            return changed;
        renameOver(arrived.part, target);
    } else if (!keepUnderSecondName(arrived.part, target)) {
        return changed;
    }
    dropPart(arrived.part);
    HereFile file = fileNow(target).value_or(arrived.file);
    file.sha256 = arrived.file.sha256;
    note(path, arrived.mark, file);
    return {};
}

/// Both sides have a file, and nobody knows yet whether it is the same.
ShareResult FolderExchange::settle(const std::string& path) {
    const auto there = m_web.stateOf(addressOf(path));
    if (!there)
        return failedWith(say("It is not on the server any more. Compare again."));
    m_survey.there[path] = {
        .size = there->size, .mark = there->mark, .isTag = there->isTag, .sha256 = there->sha256};
    const HereFile own = hashed(path);
    const Arrived arrived = arrive(path);
    if (arrived.file.sha256 != own.sha256)
        return keepBoth(path, own, arrived);
    dropPart(arrived.part);
    note(path, arrived.mark, own);
    return {.kind = Kind::Same, .text = say("Both sides have the same.")};
}

/// The own file gets another name before the other one gets its: at every moment both are there.
ShareResult FolderExchange::keepBoth(const std::string& path, const HereFile& own,
                                     const Arrived& arrived) {
    const fs::path target = place(path);
    const std::string name =
        conflictName(path, m_request.machine, today(), [this](const std::string& taken) {
            return m_survey.there.contains(taken) || isTaken(place(taken));
        });
    if (!keepUnderSecondName(target, place(name)))
        return failedWith(say("It could not be given another name. Compare again."));
    const auto now = fileNow(target);
    if (!now || !isSameStamp(*now, own))
        return failedWith(say("It was changed here meanwhile. Compare again."));
    renameOver(arrived.part, target);
    dropPart(arrived.part);
    HereFile file = fileNow(target).value_or(arrived.file);
    file.sha256 = arrived.file.sha256;
    note(path, arrived.mark, file);
    ShareResult result{
        .kind = Kind::BothKept,
        .text = say("Both are kept: the one of this computer is “{}” now.", validUtf8(name))};
    try {
        const ShareResult put = upload(name, true);
        if (put.kind == Kind::Failed)
            result.text += ' ' + say("It is not on the server yet: {}", put.text);
    } catch (const ShareError& error) {
        result.text += ' ' + say("It is not on the server yet: {}", error.what());
        result.wantsLogin = error.wantsLogin();
    }
    return result;
}

ShareResult FolderExchange::deleteThere(const std::string& path) {
    const auto seen = m_survey.there.find(path);
    const auto now = m_web.stateOf(addressOf(path));
    if (isTaken(place(path)))
        return failedWith(say("It is here again. Compare again."));
    if (now && (seen == m_survey.there.end() || now->mark != seen->second.mark))
        return failedWith(say("It was changed on the server meanwhile. Compare again."));
    if (now) {
        std::vector<std::pair<QByteArray, QByteArray>> headers;
        if (now->isTag)
            headers = {{"If-Match", QByteArray::fromStdString(now->mark)}};
        const DavAnswer answer = boundTo(path, [&] {
            return m_web.ask({.address = addressOf(path), .verb = "DELETE", .headers = headers});
        });
        if (!answer.isDone() && !answer.isMissing())
            throw ShareError(refusalOf(answer), answer.status() == 401);
    }
    m_survey.there.erase(path);
    m_survey.known.erase(path);
    return {};
}

ShareResult FolderExchange::deleteHere(const std::string& path) {
    if (m_web.stateOf(addressOf(path)))
        return failedWith(say("It is on the server again. Compare again."));
    if (!isHereAsSeen(path))
        return failedWith(say("It was changed here meanwhile. Compare again."));
    std::error_code fault;
    const fs::path file = place(path);
    fs::remove(file, fault);
    if (fault)
        throw FileError(file, fault.message());
    m_survey.here.erase(path);
    m_survey.known.erase(path);
    return {};
}

} // namespace kavela::share
