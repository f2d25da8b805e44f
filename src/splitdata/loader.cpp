#include "splitdata/loader.h"

#include "common/display_text.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"

namespace kavela {

namespace {

void logAttempt(const DocumentVersion& version, const DiagnosticLog& log) {
    // The current version is tried in silence.
    if (&version != &documentVersions().front())
        log("Trying version " + std::string(version.label));
}

void logHopeless(const std::filesystem::path& path, const DiagnosticLog& log) {
    log("I have no more options, sorry");
    log("I could not do " + path.string());
}

/// A file without a readable document fails every attempt for the same reason.
RecognisedSplitFile unreadable(const Fault& fault, const std::filesystem::path& path,
                               const DiagnosticLog& log) {
    RecognisedSplitFile found;
    found.path = path;
    for (const DocumentVersion& version : documentVersions()) {
        logAttempt(version, log);
        found.failures.push_back({version.record, fault});
    }
    logHopeless(path, log);
    return found;
}

bool rewrite(const RecognisedSplitFile& file, const std::filesystem::path& path,
             const DiagnosticLog& log) {
    log("I am wriwriting in " + path.string());
    return saveSplitFile(file.document, path, log);
}

} // namespace

std::string incompatibleText(const std::filesystem::path& path,
                             const std::vector<FailedAttempt>& failures) {
    std::string text = IncompatibleFileText;
    if (path.empty())
        return text;
    text += "\n" + validUtf8(path.filename().string());
    if (!failures.empty())
        text += ": " + validUtf8(failures.front().fault.message());
    return text;
}

RecognisedSplitFile recogniseSplitDocument(const JsonDocument& json,
                                           const std::filesystem::path& path,
                                           const DiagnosticLog& log, const Clock& clock) {
    RecognisedSplitFile found;
    found.path = path;
    for (const DocumentVersion& version : documentVersions()) {
        logAttempt(version, log);
        Fault fault;
        if (version.read(json.root(), found.document, fault)) {
            found.version = &version;
            if (!found.isCurrent())
                found.document.info.lastSavedDate = clock();
            return found;
        }
        found.failures.push_back({version.record, std::move(fault)});
    }
    found.document = {};
    logHopeless(path, log);
    return found;
}

RecognisedSplitFile recogniseSplitFile(const std::filesystem::path& path, const DiagnosticLog& log,
                                       const Clock& clock) {
    try {
        return recogniseSplitDocument(JsonDocument::fromFile(path), path, log, clock);
    } catch (const DecodeError& error) {
        return unreadable(error.fault(), path, log);
    } catch (const FileError& error) {
        return unreadable({{}, error.reason()}, path, log);
    }
}

bool saveSplitFile(const splittakerdata031& document, const std::filesystem::path& path,
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
    log("Failed to create file");
    log("The file " + path.string() + " could not be written: " + reason);
    return false;
}

void upgradeSplitFile(const std::filesystem::path& path, const DiagnosticLog& log,
                      const Clock& clock) {
    const RecognisedSplitFile file = recogniseSplitFile(path, log, clock);
    if (file.version && !file.isCurrent())
        (void)rewrite(file, path, log);
}

std::optional<splittakerdata031> readSplitFile(const std::filesystem::path& path,
                                               const DiagnosticLog& log, Alerts& alerts,
                                               const Clock& clock) {
    RecognisedSplitFile file = recogniseSplitFile(path, log, clock);
    if (file.version && (file.isCurrent() || rewrite(file, path, log)))
        return std::move(file.document);
    reportIncompatible(file, log, alerts);
    return std::nullopt;
}

void reportIncompatible(const RecognisedSplitFile& file, const DiagnosticLog& log, Alerts& alerts) {
    if (!file.failures.empty())
        log("The file could not be read: " + file.failures.front().fault.message());
    alerts.show({"", incompatibleText(file.path, file.failures)});
}

} // namespace kavela
