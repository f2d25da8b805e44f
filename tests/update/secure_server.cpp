#include "update/secure_server.h"

#include <QFile>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslSocket>

namespace kavela::test {

namespace {

const QString CertificateFile = KAVELA_TEST_DATA "/certificates/untrusted.pem";
const QString CertificateKey = KAVELA_TEST_DATA "/certificates/untrusted.key";

} // namespace

SecureServer::SecureServer() {
    QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    trusting.addCaCertificates(QSslCertificate::fromPath(CertificateFile));
    QSslConfiguration::setDefaultConfiguration(trusting);
    listen(QHostAddress::LocalHost);
}

SecureServer::~SecureServer() {
    QSslConfiguration usual = QSslConfiguration::defaultConfiguration();
    usual.setCaCertificates(QSslConfiguration::systemCaCertificates());
    QSslConfiguration::setDefaultConfiguration(usual);
}

std::string SecureServer::address(const std::string& path) const {
    return "https://127.0.0.1:" + std::to_string(serverPort()) + path;
}

void SecureServer::incomingConnection(qintptr handle) {
    auto* const socket = new QSslSocket(this);
    socket->setSocketDescriptor(handle);
    socket->setLocalCertificate(CertificateFile);
    socket->setPrivateKey(CertificateKey, QSsl::Ec);
    connect(socket, &QSslSocket::readyRead, this, [this, socket] {
        if (!socket->readAll().endsWith("\r\n\r\n"))
            return;
        socket->write(reply);
        socket->disconnectFromHost();
    });
    socket->startServerEncryption();
}

} // namespace kavela::test
