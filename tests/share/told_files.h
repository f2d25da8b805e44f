#pragma once

#include "fetch/faulty_server.h"

#include <QByteArray>

#include <vector>

namespace kavela::test {

/// What the server tells of one address.
struct Told {
    QByteArray link;
    qint64 size = -1; ///< below 0 for a folder
    QByteArray tag = "\"1\"";
};

/// The answer of a WebDAV server that lists these.
inline QByteArray listed(const std::vector<Told>& entries) {
    QByteArray body = "<?xml version=\"1.0\"?><D:multistatus xmlns:D=\"DAV:\">";
    for (const Told& one : entries)
        body +=
            "<D:response><D:href>" + one.link + "</D:href><D:propstat><D:prop>" +
            (one.size < 0 ? QByteArray("<D:resourcetype><D:collection/></D:resourcetype>")
                          : "<D:resourcetype/><D:getcontentlength>" + QByteArray::number(one.size) +
                                "</D:getcontentlength><D:getetag>" + one.tag + "</D:getetag>") +
            "</D:prop><D:status>HTTP/1.1 200 OK</D:status></D:propstat></D:response>";
    return answer("207 Multi-Status", "DAV: 1\r\n", body + "</D:multistatus>");
}

} // namespace kavela::test
