#pragma once

#include "common/temp_folder.h"
#include "share/folder_exchange.h"

#include <QThread>

#include <exception>
#include <functional>
#include <map>
#include <string>

namespace kavela::test {

/// Runs what waits for a server on a thread of its own, while events go on here.
void waitBeside(const std::function<void()>& work);

/// A coach's folder that is shared to a server.
class SharingCoach {
public:
    SharingCoach(std::string address, std::string machine,
                 std::optional<fetch::WebLogin> login = std::nullopt);

    void write(const std::string& path, const std::string& content) const;
    [[nodiscard]] std::string read(const std::string& path) const;
    [[nodiscard]] bool has(const std::string& path) const;
    /// As if the caches had been emptied.
    void loseState() const;

    share::ShareSurvey compare();
    /// Compares and carries everything out, deletions where they are agreed to. What became of
    /// each path.
    std::map<std::string, share::ShareResult> share(bool deletes = false);

    share::ShareRequest request;
    share::ShareSurvey survey; ///< the last one

private:
    TempFolder m_folder;
    TempFolder m_caches;
};

} // namespace kavela::test
