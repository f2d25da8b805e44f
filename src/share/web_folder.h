#pragma once

#include "fetch/dav_listing.h"
#include "fetch/file_transfer.h"
#include "share/dav_client.h"

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <stop_token>
#include <string>

namespace kavela::share {

/// A share that cannot go on, with what is wrong in a sentence.
class ShareError : public std::runtime_error {
public:
    explicit ShareError(const std::string& reason, bool wantsLogin = false)
        : std::runtime_error(reason), m_wantsLogin(wantsLogin) {}
    /// The server wants another user name or password.
    [[nodiscard]] bool wantsLogin() const { return m_wantsLogin; }

private:
    bool m_wantsLogin;
};

/// Thrown where the coach wants no more of it.
struct ShareStopped {};

/// How far a file is, in bytes; of 0 where it is not known.
using BytesMoved = std::function<void(std::int64_t done, std::int64_t all)>;

/// A folder of a server, asked by whoever may wait: a thread of its own, in which the event loop
/// runs as long as a question takes. Answers that another try may better are asked for again after
/// growing pauses.
class WebFolder {
public:
    WebFolder(fetch::WebRules rules, std::stop_token stop);

    /// Throws ShareStopped, as everything here does.
    [[nodiscard]] DavAnswer ask(const fetch::WebAsk& ask, const BytesMoved& sent = {});
    /// The same without another try.
    [[nodiscard]] DavAnswer askOnce(const fetch::WebAsk& ask, const BytesMoved& sent = {});
    /// What the server has there now; nothing where it has nothing. Throws ShareError.
    [[nodiscard]] std::optional<fetch::DavEntry> stateOf(const fetch::Address& file);

    /// What came of a file.
    struct Brought {
        std::string mark = {};   ///< an entity tag, where the server told a strong one
        std::string digest = {}; ///< SHA-256 that the server told; empty for none
    };
    /// Brings a file into `part`, from where an earlier try stopped. As long as every few tries
    /// bring more of it, it goes on. Throws ShareError.
    Brought bring(const fetch::Address& file, const std::filesystem::path& part,
                  const BytesMoved& moved);

    /// Waits as long as a pause of so many seconds is. Throws ShareStopped.
    void pause(std::chrono::seconds length);
    /// Questions so far.
    [[nodiscard]] int asked() const { return m_asked; }
    [[nodiscard]] const fetch::Address& address() const { return m_rules.source; }

private:
    void runUntil(const std::function<bool()>& isOver);
    [[nodiscard]] std::optional<fetch::TransferFault> bringSome(const fetch::Address& file,
                                                                const std::filesystem::path& part,
                                                                const BytesMoved& moved,
                                                                Brought& brought);

    fetch::WebRules m_rules;
    std::stop_token m_stop;
    DavClient m_client;
    int m_asked = 0;
};

} // namespace kavela::share
