#pragma once

#include "common/temp_folder.h"
#include "fetch/web_rules.h"

#include <QProcess>

#include <filesystem>
#include <string>

namespace kavela::test {

/// A WebDAV server of the system's packages as a process of the test's own: on a free port of this
/// computer, with everything that it writes in a folder of the test.
class RealServer {
public:
    struct Kind {
        std::string name;
        bool isApache = false; ///< with locks and a certificate of its own; the other is plain
        bool hasLocks = false; ///< of the other
        std::string end = {};  ///< of the certificate, as "20250101000000Z"; empty for tomorrow
    };

    explicit RealServer(const Kind& kind);
    ~RealServer();
    RealServer(const RealServer&) = delete;
    RealServer& operator=(const RealServer&) = delete;

    /// Whether it answers; if not, what it said.
    [[nodiscard]] bool isThere();
    [[nodiscard]] std::string faults() const;
    /// Of the folder that is shared.
    [[nodiscard]] std::string address() const;
    [[nodiscard]] fetch::WebLogin login() const { return {"coach", "rapid-word"}; }
    /// Where the server keeps that folder.
    [[nodiscard]] std::filesystem::path files() const { return m_folder.path() / "root" / "dav"; }
    /// Writes a file there, behind the server's back.
    void put(const std::string& path, const std::string& content) const;

private:
    void makeCertificate(const std::string& end) const;
    [[nodiscard]] std::string apacheConfiguration() const;
    [[nodiscard]] std::string lighttpdConfiguration(const Kind& kind) const;

    TempFolder m_folder;
    bool m_isSecure;
    int m_port = 0;
    QProcess m_process;
};

} // namespace kavela::test
