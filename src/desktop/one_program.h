#pragma once

#include <QByteArray>
#include <QEventLoopLocker>
#include <QList>
#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

class QDeadlineTimer;
class QLocalSocket;

namespace kavela::desktop {

/// Where the programs of this user find each other that share preferences and kept work: the path
/// of a socket. Empty when the user has no folder for it.
[[nodiscard]] QString meetingPlace();

/// The one desktop program of a user. The first that starts stays it until it has ended, held by a
/// lock that is gone with its process; it listens on a socket, and every further start hands its
/// files over to it.
class OneProgram : public QObject {
public:
    /// What a further start asks of the one that runs.
    struct Call {
        QStringList files;     ///< absolute paths; none: just come to the front
        QByteArray activation; ///< by which the desktop lets a window come forward; may be empty
    };

    enum class Start {
        First,      ///< this one is called by the further ones
        HandedOver, ///< the one that runs opens the files
        Beside,     ///< another one runs, and this one beside it
        Unknown,    ///< no lock or no socket can be made there, see place()
    };

    /// `place` is the path of the socket; the lock is beside it. A program that runs has `patience`
    /// to answer a further start.
    explicit OneProgram(QString place,
                        std::chrono::milliseconds patience = std::chrono::seconds(2));
    ~OneProgram() override;

    /// Becomes the one program, or hands the call over to it. Waits for a program that is just
    /// ending, so that what it still writes is not taken for the work of a crash. Beside when it
    /// does not answer; then it opens nothing of the call later on.
    [[nodiscard]] Start start(const Call& call);
    /// Becomes the one program where there is none, and starts beside it otherwise.
    [[nodiscard]] Start startBeside();

    using Open = std::function<void(const Call& call)>;
    /// Gives every call to `open` from now on, first those that came meanwhile. One that comes
    /// while a box or menu waits for the coach is kept until it has closed, and the program runs
    /// on for it.
    void serve(Open open);
    /// Answers no more, as at the program's end. Who calls waits for the end and starts itself.
    void stop();

    [[nodiscard]] const QString& place() const { return m_place; }

private:
    enum class Answer { Taken, Nobody, Silent };

    [[nodiscard]] Answer handOver(const Call& call, const QDeadlineTimer& deadline) const;
    [[nodiscard]] Start listen();
    [[nodiscard]] Start notLocked() const;
    void accept();
    void read(QLocalSocket& socket);
    void openNext();

    QString m_place;
    std::chrono::milliseconds m_patience;
    QLockFile m_lock;
    QLocalServer m_server;
    QList<Call> m_calls; ///< that wait to be opened
    QTimer m_next;
    std::optional<QEventLoopLocker> m_running; ///< as long as calls wait
    Open m_open;
};

} // namespace kavela::desktop
