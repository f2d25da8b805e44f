#include "share/real_server.h"

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <fmt/format.h>
#include <unistd.h>

namespace kavela::test {

namespace fs = std::filesystem;

namespace {

int freePort() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

void ask(const QString& program, const QStringList& arguments, const fs::path& folder) {
    QProcess process;
    process.setWorkingDirectory(QString::fromStdString(folder.string()));
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() + ": " +
                                 process.readAllStandardError().toStdString());
}

/// A server that root starts becomes another user, who has to get in.
void open(const fs::path& folder) {
    fs::permissions(folder, fs::perms::all);
}

} // namespace

RealServer::RealServer(const Kind& kind) : m_isSecure(kind.isApache), m_port(freePort()) {
    fs::create_directories(files());
    fs::create_directories(m_folder.path() / "own");
    for (const char* part : {"", "root", "root/dav", "own"})
        open(m_folder.path() / part);
    const QString configuration = QString::fromStdString((m_folder.path() / "conf").string());
    const fetch::WebLogin user = login();
    if (kind.isApache) {
        makeCertificate(kind.end);
        QProcess hash;
        hash.start("openssl", {"passwd", "-apr1", user.password});
        hash.waitForFinished();
        (void)m_folder.add("users", (user.user + ':').toStdString() +
                                        hash.readAllStandardOutput().toStdString());
        (void)m_folder.add("conf", apacheConfiguration());
        m_process.start("/usr/sbin/apache2", {"-X", "-d", ".", "-f", configuration});
    } else {
        (void)m_folder.add("users", (user.user + ':' + user.password + '\n').toStdString());
        (void)m_folder.add("conf", lighttpdConfiguration(kind));
        m_process.start("/usr/sbin/lighttpd", {"-D", "-f", configuration});
    }
}

RealServer::~RealServer() {
    m_process.terminate();
    if (!m_process.waitForFinished(5'000)) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool RealServer::isThere() {
    return QTest::qWaitFor(
        [this] {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_port));
            return socket.waitForConnected(200);
        },
        20'000);
}

std::string RealServer::faults() const {
    const fs::path log = m_folder.path() / "own" / "error.log";
    return fs::exists(log) ? contentOf(log) : "It was not started: are its packages there?";
}

std::string RealServer::address() const {
    return fmt::format("{}://127.0.0.1:{}/dav/", m_isSecure ? "https" : "http", m_port);
}

void RealServer::put(const std::string& path, const std::string& content) const {
    const fs::path file = files() / path;
    fs::create_directories(file.parent_path());
    open(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

/// An authority of the server's own vouches for it, and this program is told to believe that one: a
/// date is all that can be wrong. Its name is its own too, since several servers run in a program.
void RealServer::makeCertificate(const std::string& end) const {
    (void)m_folder.add("ca.conf", "[ca]\ndefault_ca=own\n[own]\ndatabase=index.txt\nserial=serial\n"
                                  "new_certs_dir=.\ndefault_md=sha256\npolicy=any\n"
                                  "x509_extensions=names\n[any]\ncommonName=supplied\n"
                                  "[names]\nsubjectAltName=IP:127.0.0.1\n");
    (void)m_folder.add("index.txt", "");
    (void)m_folder.add("serial", "1000");
    const QStringList key{"-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes"};
    const QString authority = "/CN=" + QString::fromStdString(m_folder.path().filename().string());
    ask("openssl",
        QStringList{"req", "-x509", "-days", "2", "-subj", authority, "-keyout", "authority.key",
                    "-out", "authority.pem"} +
            key,
        m_folder.path());
    ask("openssl",
        QStringList{"req", "-new", "-subj", "/CN=127.0.0.1", "-keyout", "key.pem", "-out",
                    "request.pem"} +
            key,
        m_folder.path());
    const QStringList until = end.empty() ? QStringList{"-days", "2"}
                                          : QStringList{"-enddate", QString::fromStdString(end)};
    ask("openssl",
        QStringList{"ca", "-batch", "-config", "ca.conf", "-cert", "authority.pem", "-keyfile",
                    "authority.key", "-in", "request.pem", "-out", "certificate.pem", "-notext",
                    "-startdate", "20240101000000Z"} +
            until,
        m_folder.path());
    QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    trusting.addCaCertificates(
        QString::fromStdString((m_folder.path() / "authority.pem").string()));
    QSslConfiguration::setDefaultConfiguration(trusting);
}

std::string RealServer::apacheConfiguration() const {
    std::string modules;
    for (const char* name : {"mpm_event", "authn_core", "authn_file", "authz_core", "authz_user",
                             "auth_basic", "dav", "dav_fs", "ssl"})
        modules += fmt::format("LoadModule {0}_module /usr/lib/apache2/modules/mod_{0}.so\n", name);
    return modules + (::geteuid() == 0 ? "User nobody\nGroup nogroup\n" : "") +
           fmt::format("ServerName 127.0.0.1\nListen 127.0.0.1:{1}\nPidFile {0}/own/pid\n"
                       "ErrorLog {0}/own/error.log\nDocumentRoot {0}/root\nMutex file:{0}/own\n"
                       "SSLEngine on\nSSLCertificateFile {0}/certificate.pem\n"
                       "SSLCertificateKeyFile {0}/key.pem\nDavLockDB {0}/own/locks\n"
                       "<Location /dav>\nDav On\nAuthType Basic\nAuthName files\n"
                       "AuthUserFile {0}/users\nRequire valid-user\n</Location>\n",
                       m_folder.path().string(), m_port);
}

std::string RealServer::lighttpdConfiguration(const Kind& kind) const {
    return fmt::format(
        "server.modules = (\"mod_auth\", \"mod_authn_file\", \"mod_webdav\")\n"
        "server.document-root = \"{0}/root\"\nserver.bind = \"127.0.0.1\"\nserver.port = {1}\n"
        "server.errorlog = \"{0}/own/error.log\"\nserver.upload-dirs = (\"{0}/own\")\n"
        "webdav.activate = \"enable\"\n"
        "server.stat-cache-engine = \"disable\"\n"
        "mimetype.assign = (\"\" => \"application/octet-stream\")\n{2}"
        "auth.backend = \"plain\"\nauth.backend.plain.userfile = \"{0}/users\"\n"
        "auth.require = (\"/dav\" => (\"method\" => \"basic\", \"realm\" => \"files\", "
        "\"require\" => \"valid-user\"))\n",
        m_folder.path().string(), m_port,
        kind.hasLocks
            ? fmt::format("webdav.sqlite-db-name = \"{}/own/locks.db\"\n", m_folder.path().string())
            : std::string());
}

} // namespace kavela::test
