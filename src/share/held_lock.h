#pragma once

#include "share/folder_compare.h"

#include <string>

namespace kavela::share {

/// A file of a server that nobody else may write as long as this is there.
class HeldLock {
public:
    /// None where the server does not lock; the length of the file says for how long the lock is
    /// asked for. Throws ShareError where somebody else holds one, and ShareStopped.
    HeldLock(WebFolder& web, const ShareRequest& request, fetch::Address file, std::int64_t bytes);
    /// Given back also where the coach wants no more of it.
    ~HeldLock();
    HeldLock(const HeldLock&) = delete;
    HeldLock& operator=(const HeldLock&) = delete;

    /// In its angle brackets; empty for none.
    [[nodiscard]] const std::string& token() const { return m_token; }

private:
    const ShareRequest& m_request;
    fetch::Address m_file;
    std::string m_token;
};

} // namespace kavela::share
