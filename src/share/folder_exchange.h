#pragma once

#include "share/folder_compare.h"

#include <functional>
#include <string>

namespace kavela::share {

/// What became of one row.
struct ShareResult {
    enum class Kind {
        Done,
        Same,     ///< both sides had the same content, which is noted now
        BothKept, ///< they differed: the own file has another name now
        Failed,
        Cancelled ///< not begun, or given up by the coach
    };

    Kind kind = Kind::Done;
    std::string text = {}; ///< a sentence; empty where there is nothing to say
    bool wantsLogin = false;
};

/// Carries out what a coach has seen and agreed to, one row after the other. Every step first looks
/// whether both sides still are as they were seen. It waits for the server: not for the thread of
/// windows.
class FolderExchange {
public:
    /// The survey is one of this request, and learns what is done.
    FolderExchange(const ShareRequest& request, ShareSurvey& survey, ShareSteps steps);
    /// What is known by then is kept.
    ~FolderExchange();
    FolderExchange(const FolderExchange&) = delete;
    FolderExchange& operator=(const FolderExchange&) = delete;

    /// Bytes of one file that were moved; of 0 where it is not known.
    void setMoved(BytesMoved moved) { m_moved = std::move(moved); }
    /// Throws nothing: what went wrong is told as the result. After a cancel, a server that is full
    /// or wants another password, every further row that needs it ends as this one did.
    [[nodiscard]] ShareResult carryOut(const ShareRow& row);

private:
    struct Arrived {
        std::filesystem::path part;
        HereFile file; ///< with its hash
        std::string mark;
    };

    ShareResult carriedOut(const ShareRow& row);
    ShareResult upload(const std::string& path, bool isNew);
    ShareResult checkSent(const std::string& path, const HereFile& sent, const DavAnswer& answer);
    ShareResult download(const std::string& path, bool replaces);
    ShareResult settle(const std::string& path);
    ShareResult keepBoth(const std::string& path, const HereFile& own, const Arrived& arrived);
    ShareResult deleteThere(const std::string& path);
    ShareResult deleteHere(const std::string& path);
    [[nodiscard]] DavAnswer putOver(const std::string& path, const std::string& lock);
    [[nodiscard]] DavAnswer put(const std::string& path,
                                const std::pair<QByteArray, QByteArray>& condition);
    [[nodiscard]] DavAnswer boundTo(const std::string& path, const std::function<DavAnswer()>& ask);
    [[nodiscard]] bool isThereAsSeen(const std::string& path);
    [[nodiscard]] bool isHereAsSeen(const std::string& path) const;
    void makeFoldersFor(const std::string& path);
    [[nodiscard]] Arrived arrive(const std::string& path);
    void bringPart(const std::string& path, Arrived& arrived);
    [[nodiscard]] std::string markOfArrived(const std::string& path, const std::string& tag);
    [[nodiscard]] HereFile hashed(const std::string& path);
    void note(const std::string& path, const std::string& mark, const HereFile& file);
    [[nodiscard]] std::filesystem::path place(const std::string& path) const;
    [[nodiscard]] fetch::Address addressOf(const std::string& path) const;

    ShareRequest m_request;
    ShareSurvey& m_survey;
    ShareSteps m_steps;
    SharedPlace m_place;
    WebFolder m_web;
    BytesMoved m_moved;
    std::optional<ShareResult> m_end; ///< why nothing more is asked of the server
    std::string m_full;               ///< what the server said when it took no more
    int m_unkept = 0;                 ///< notes that are not on the disk yet
};

} // namespace kavela::share
