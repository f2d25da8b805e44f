#include "results/selection_file.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/kept_file.h"
#include "common/record_convert.h"
#include "common/safe_file.h"
#include "results/history/selection_history.h"
#include "results/messages.h"
#include "splitdata/loader.h"

#include <algorithm>
#include <array>

namespace kavela {

namespace fs = std::filesystem;

bool read(simdjson::dom::element element, std::vector<bool>& flags, Fault& fault) {
    simdjson::dom::array array;
    if (element.get(array) != simdjson::SUCCESS)
        return json_detail::refuse(fault, json_detail::Expected::Array, element);
    flags.clear();
    for (const simdjson::dom::element entry : array) {
        bool flag = false;
        if (!json_detail::read(entry, flag, fault)) {
            fault.prependIndex(flags.size());
            return false;
        }
        flags.push_back(flag);
    }
    return true;
}

namespace {

bool readCurrent(simdjson::dom::element root, selectionracesStruct_v3& document, Fault& fault) {
    return tryDecode(root, document, fault);
}

template <class Old>
bool readOld(simdjson::dom::element root, selectionracesStruct_v3& document, Fault& fault) {
    Old old;
    if (!tryDecode(root, old, fault))
        return false;
    document = converted<selectionracesStruct_v3>(std::move(old));
    return true;
}

constexpr std::array Versions{
    SelectionVersion{"selectionracesStruct_v3", "3", readCurrent},
    SelectionVersion{"selectionracesStruct_v2", "2", readOld<history::selectionracesStruct_v2>},
    SelectionVersion{"selectionracesStruct", "1", readOld<history::selectionracesStruct>},
};

RecognisedSelectionFile unreadable(const Fault& fault) {
    RecognisedSelectionFile found;
    for (const SelectionVersion& version : Versions)
        found.failures.push_back({version.record, fault});
    return found;
}

} // namespace

std::span<const SelectionVersion> selectionVersions() {
    return Versions;
}

RecognisedSelectionFile recogniseSelectionDocument(const JsonDocument& json) {
    RecognisedSelectionFile found;
    for (const SelectionVersion& version : Versions) {
        Fault fault;
        if (version.read(json.root(), found.document, fault)) {
            found.version = &version;
            return found;
        }
        found.failures.push_back({version.record, std::move(fault)});
    }
    found.document = {};
    return found;
}

RecognisedSelectionFile recogniseSelectionFile(const fs::path& path) {
    RecognisedSelectionFile found;
    try {
        found = recogniseSelectionDocument(JsonDocument::fromFile(path));
    } catch (const DecodeError& error) {
        found = unreadable(error.fault());
    } catch (const FileError& error) {
        found = unreadable({{}, error.reason()});
    }
    found.path = path;
    return found;
}

bool saveSelectionFile(const selectionracesStruct_v3& document, const fs::path& path,
                       const DiagnosticLog& log) {
    std::string reason;
    try {
        writeFileSafely(path, encode(document));
        return true;
    } catch (const FileError& error) {
        reason = error.reason();
    } catch (const EncodeError& error) {
        reason = error.what();
    }
    log(messages::SelectionNotSaved);
    log("The file " + path.string() + " could not be written: " + reason);
    return false;
}

bool rewriteSelectionFile(const RecognisedSelectionFile& file, const fs::path& path,
                          const DiagnosticLog& log) {
    return !keepPreviousFile(path, path.extension().string(), messages::SelectionNotSaved, log)
                .empty() &&
           saveSelectionFile(file.document, path, log);
}

std::optional<selectionracesStruct_v3> openSelectionFile(const fs::path& path,
                                                         const DiagnosticLog& log, Alerts& alerts) {
    RecognisedSelectionFile file = recogniseSelectionFile(path);
    if (!file.version) {
        reportIncompatible(file, log, alerts);
        return std::nullopt;
    }
    if (!file.isCurrent())
        (void)rewriteSelectionFile(file, path, log);
    return std::move(file.document);
}

void reportIncompatible(const RecognisedSelectionFile& file, const DiagnosticLog& log,
                        Alerts& alerts) {
    if (!file.failures.empty())
        log("The file could not be read: " + file.failures.front().fault.message());
    alerts.show({"", incompatibleText(file.path, file.failures)});
}

} // namespace kavela
