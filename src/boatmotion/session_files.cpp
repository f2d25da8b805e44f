#include "boatmotion/session_files.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/record_convert.h"
#include "common/safe_file.h"

#include <array>

namespace kavela {

namespace {

struct KnownSession {
    SessionVersion version;
    bool (*read)(simdjson::dom::element root, std::vector<SessionCount>& counts, Fault& fault);
};

template <class T>
void countIfArray(const char* name, const std::vector<T>& values,
                  std::vector<SessionCount>& counts) {
    counts.push_back({name, values.size()});
}

template <class T>
void countIfArray(const char*, const T&, std::vector<SessionCount>&) {}

template <Record T>
bool readAndCount(simdjson::dom::element root, std::vector<SessionCount>& counts, Fault& fault) {
    T session;
    if (!tryDecode(root, session, fault))
        return false;
    [&]<class... Member>(boost::mp11::mp_list<Member...>) {
        (countIfArray(Member::name, session.*Member::pointer, counts), ...);
    }(MembersOf<T>{});
    return true;
}

constexpr std::array KnownSessions{
    KnownSession{{"bmrawdata_v5", "raw session", "5", true}, readAndCount<bmrawdata_v5>},
    KnownSession{{"bmrawdata_v4", "raw session", "4", false}, readAndCount<bmrawdata_v4>},
    KnownSession{{"smartAlldata_v4", "smart session", "4", true}, readAndCount<smartAlldata_v4>},
    KnownSession{{"smartAlldata_v5", "smart session", "5", false}, readAndCount<smartAlldata_v5>},
    KnownSession{{"smartAlldata_v3", "smart session", "3", false}, readAndCount<smartAlldata_v3>},
    KnownSession{{"smartAlldata", "smart session", "1", false}, readAndCount<smartAlldata>},
    KnownSession{{"varoTestAlldata", "test session", "1", true}, readAndCount<varoTestAlldata>},
};

/// Refuses a document: it tells what it is, when it is a session of another kind or version,
/// otherwise the fault that was found.
[[noreturn]] void refuse(const JsonDocument& document, Fault fault) {
    const auto version = recogniseSession(document).version;
    if (!version)
        throw DecodeError(std::move(fault));
    if (version->record == "bmrawdata_v4")
        throw OlderRecording(
            {{},
             "this is a recording of version 4; `kavela upgrade` converts it to a new file of "
             "the current version"});
    throw DecodeError({{},
                       "this is a " + std::string(version->kind) + " of version " +
                           std::string(version->label) + ", which is not what is read here"});
}

template <Record T>
T readSession(const std::filesystem::path& path) {
    const JsonDocument document = JsonDocument::fromFile(path);
    T session;
    Fault fault;
    if (!tryDecode(document.root(), session, fault))
        refuse(document, std::move(fault));
    return session;
}

std::filesystem::path besideWith(const std::filesystem::path& file, const char* ending) {
    std::filesystem::path name = file.stem();
    name += ending;
    return file.parent_path() / name;
}

} // namespace

std::vector<SessionVersion> sessionVersions() {
    std::vector<SessionVersion> versions;
    versions.reserve(KnownSessions.size());
    for (const KnownSession& known : KnownSessions)
        versions.push_back(known.version);
    return versions;
}

SessionRecognition recogniseSession(const JsonDocument& document) {
    SessionRecognition found;
    for (const KnownSession& known : KnownSessions) {
        Fault fault;
        if (known.read(document.root(), found.counts, fault)) {
            found.version = known.version;
            break;
        }
        found.failures.push_back({known.version.record, std::move(fault)});
    }
    return found;
}

bmrawdata_v5 readRawSession(const std::filesystem::path& path) {
    return readSession<bmrawdata_v5>(path);
}

smartAlldata_v4 readSmartSession(const std::filesystem::path& path) {
    return readSession<smartAlldata_v4>(path);
}

varoTestAlldata readTestSession(const std::filesystem::path& path) {
    return readSession<varoTestAlldata>(path);
}

void saveRawSession(const bmrawdata_v5& session, const std::filesystem::path& path) {
    writeFileSafely(path, encode(session));
}

void saveSmartSession(const smartAlldata_v4& session, const std::filesystem::path& path) {
    writeFileSafely(path, encode(session));
}

bmrawdata_v5 upgradedRawSession(bmrawdata_v4 session) {
    return converted<bmrawdata_v5>(std::move(session));
}

std::filesystem::path upgradedSessionPath(const std::filesystem::path& recording) {
    return besideWith(recording, "_v5.kvb");
}

std::filesystem::path convertedSessionPath(const std::filesystem::path& recording) {
    return besideWith(recording, "_postv5.bms");
}

} // namespace kavela
