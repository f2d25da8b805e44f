#include "desktop/one_program.h"

#include "desktop/shell/bring_to_front.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QWidget>

#include <utility>

namespace kavela::desktop {

namespace {

using namespace std::chrono_literals;

/// Between two looks at a program that begins or ends, and at a box that is open.
constexpr auto Pause = 50ms;
/// Of the message. A program of a release that speaks another one is no answer.
constexpr quint32 Format = 1;
constexpr char TakenByte = 1;

/// The length in four bytes, then the content.
QByteArray packed(const OneProgram::Call& call) {
    QByteArray content;
    QDataStream inner(&content, QIODevice::WriteOnly);
    inner.setVersion(QDataStream::Qt_6_0);
    inner << Format << call.files << call.activation;
    QByteArray message;
    QDataStream outer(&message, QIODevice::WriteOnly);
    outer.setVersion(QDataStream::Qt_6_0);
    outer << content;
    return message;
}

std::optional<OneProgram::Call> unpacked(const QByteArray& content) {
    QDataStream in(content);
    in.setVersion(QDataStream::Qt_6_0);
    quint32 format = 0;
    OneProgram::Call call;
    in >> format;
    if (format != Format)
        return std::nullopt;
    in >> call.files >> call.activation;
    return in.status() == QDataStream::Ok ? std::optional(call) : std::nullopt;
}

int millisecondsLeft(const QDeadlineTimer& deadline) {
    return static_cast<int>(deadline.remainingTime());
}

/// Whether something waits for the coach, or for the end of what the program is in the middle of:
/// windows that opened now would come up under a box, or change what its question was about.
bool isBusy() {
    return QThread::currentThread()->loopLevel() > 1 || QApplication::activeModalWidget() ||
           QApplication::activePopupWidget();
}

} // namespace

/// A program with other folders, as for a test or a picture, is another one.
QString meetingPlace() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const auto place :
         {QStandardPaths::GenericConfigLocation, QStandardPaths::AppLocalDataLocation})
        hash.addData(QDir::cleanPath(QStandardPaths::writableLocation(place)).toUtf8() + '\n');
    return folder + "/kavela-" + QString::fromLatin1(hash.result().toHex().left(16));
}

/// The lock of a process that is gone is void at once, and no other ever, however old.
OneProgram::OneProgram(QString place, std::chrono::milliseconds patience)
    : m_place(std::move(place)), m_patience(patience), m_lock(m_place + ".lock") {
    m_lock.setStaleLockTime(0);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_next.setSingleShot(true);
    connect(&m_server, &QLocalServer::newConnection, this, &OneProgram::accept);
    connect(&m_next, &QTimer::timeout, this, &OneProgram::openNext);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &OneProgram::stop);
}

OneProgram::~OneProgram() {
    stop();
}

OneProgram::Start OneProgram::start(const Call& call) {
    if (m_place.isEmpty())
        return Start::Unknown;
    const QDeadlineTimer deadline(m_patience);
    do {
        const Answer answer = handOver(call, deadline);
        if (answer != Answer::Nobody)
            return answer == Answer::Taken ? Start::HandedOver : Start::Beside;
        if (m_lock.tryLock(static_cast<int>(Pause.count())))
            return listen();
        if (m_lock.error() != QLockFile::LockFailedError)
            return Start::Unknown;
    } while (!deadline.hasExpired()); // the other one is about to listen, or to end
    return Start::Beside;
}

OneProgram::Start OneProgram::startBeside() {
    if (m_place.isEmpty())
        return Start::Unknown;
    return m_lock.tryLock(0) ? listen() : notLocked();
}

OneProgram::Start OneProgram::notLocked() const {
    return m_lock.error() == QLockFile::LockFailedError ? Start::Beside : Start::Unknown;
}

OneProgram::Answer OneProgram::handOver(const Call& call, const QDeadlineTimer& deadline) const {
    QLocalSocket socket;
    const auto failed = [&] { return deadline.hasExpired() ? Answer::Silent : Answer::Nobody; };
    socket.connectToServer(m_place);
    if (!socket.waitForConnected(millisecondsLeft(deadline)))
        return failed();
    socket.write(packed(call));
    while (socket.bytesAvailable() == 0)
        if (!socket.waitForReadyRead(millisecondsLeft(deadline)))
            return failed();
    return Answer::Taken;
}

/// Who holds the lock finds at most the socket of a program that crashed.
OneProgram::Start OneProgram::listen() {
    QLocalServer::removeServer(m_place);
    if (m_server.listen(m_place))
        return Start::First;
    m_lock.unlock();
    return Start::Unknown;
}

void OneProgram::accept() {
    while (QLocalSocket* const socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(*socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void OneProgram::read(QLocalSocket& socket) {
    QDataStream in(&socket);
    in.setVersion(QDataStream::Qt_6_0);
    QByteArray content;
    in.startTransaction();
    in >> content;
    if (!in.commitTransaction())
        return; // not all of it is there
    const std::optional<Call> call = unpacked(content);
    if (!call) {
        socket.abort();
        return;
    }
    socket.write(&TakenByte, 1);
    if (!socket.flush())
        return; // it waited too long and began by itself
    m_calls.append(*call);
    if (!m_running)
        m_running.emplace();
    m_next.start(0ms);
    // What the call waits for.
    if (QWidget* const box = QApplication::activeModalWidget(); box && box->isVisible())
        bringToFront(*box);
}

void OneProgram::serve(Open open) {
    m_open = std::move(open);
    m_next.start(0ms);
}

void OneProgram::openNext() {
    if (m_calls.isEmpty() || !m_open)
        return;
    if (isBusy()) {
        m_next.start(Pause);
        return;
    }
    m_open(m_calls.takeFirst());
    if (m_calls.isEmpty())
        m_running.reset();
    else
        m_next.start(0ms);
}

void OneProgram::stop() {
    m_server.close();
    qDeleteAll(m_server.findChildren<QLocalSocket*>());
    m_next.stop();
    m_calls.clear();
    m_open = nullptr;
}

} // namespace kavela::desktop
