#include "gui/SingleInstance.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

#include <QApplication>
#include <QDataStream>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <QTimer>
#include <QVariant>

namespace {
constexpr quint32 kMaxMessageBytes = 64u << 20;  // larger is no text a user selected
using Clock = std::chrono::steady_clock;

// Each message is its length, four bytes big-endian, then its bytes.
QByteArray Framed(const QByteArray& payload) {
    QByteArray framed;
    QDataStream(&framed, QIODevice::WriteOnly) << static_cast<quint32>(payload.size());
    return framed + payload;
}

quint32 AnnouncedLength(const QByteArray& buffer) {
    quint32 length = 0;
    if (buffer.size() >= 4) QDataStream(buffer.left(4)) >> length;
    return length;
}

// The whole message once `buffer` holds it.
bool Unframe(const QByteArray& buffer, QByteArray* payload) {
    if (buffer.size() < 4 || static_cast<quint32>(buffer.size() - 4) < AnnouncedLength(buffer)) return false;
    *payload = buffer.mid(4, AnnouncedLength(buffer));
    return true;
}

bool SameUser(int fd) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::getuid();
}

const char* const kKinds[] = {"show", "drop", "selection", "run"};

int Connect(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) return -1;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd >= 0 && ::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) return fd;
    if (fd >= 0) ::close(fd);
    return -1;
}

long long MillisecondsLeft(Clock::time_point deadline) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
}

// Sends `message` and reads the answer, both within the deadline; false when it runs out.
bool Exchange(int fd, const QByteArray& message, Clock::time_point deadline, QByteArray* answer, bool* told) {
    qsizetype sent = 0;
    QByteArray buffer;
    for (;;) {
        const long long left = MillisecondsLeft(deadline);
        if (left <= 0) return false;
        pollfd watch{fd, static_cast<short>(sent < message.size() ? POLLOUT : POLLIN), 0};
        // Say once why a start seems to hang: the running copy is still at its last work.
        const int ready = ::poll(&watch, 1, static_cast<int>(std::min<long long>(left, *told ? left : 2000)));
        if (ready == 0 && !*told) {
            std::fprintf(stderr, "velmora: the running copy is busy; waiting for it\n");
            *told = true;
        }
        if (ready <= 0) continue;
        if (sent < message.size()) {
            const ssize_t put = ::send(fd, message.constData() + sent, static_cast<size_t>(message.size() - sent), MSG_NOSIGNAL);
            if (put < 0 && errno != EINTR && errno != EAGAIN) return false;
            if (put > 0) sent += put;
            continue;
        }
        char chunk[1 << 16];
        const ssize_t got = ::recv(fd, chunk, sizeof chunk, 0);
        if (got == 0) return false;
        if (got > 0) buffer.append(chunk, got);
        if (Unframe(buffer, answer)) return true;
    }
}
}  // namespace

QByteArray InstanceRequest::Encode() const {
    return QByteArray(kKinds[static_cast<int>(kind)]) + '\n' + text.toUtf8();
}

InstanceRequest InstanceRequest::Decode(const QByteArray& bytes) {
    const qsizetype end = bytes.indexOf('\n');
    const QByteArray word = bytes.left(end);
    InstanceRequest request;
    for (int kind = 0; kind < 4; ++kind)
        if (word == kKinds[kind]) request.kind = static_cast<Kind>(kind);
    if (request.kind != Kind::Show && end >= 0) request.text = QString::fromUtf8(bytes.mid(end + 1));
    return request;
}

QByteArray InstanceReply::Encode() const { return QByteArray(ok ? "ok\n" : "error\n") + text; }

InstanceReply InstanceReply::Decode(const QByteArray& bytes) {
    const qsizetype end = bytes.indexOf('\n');
    return {bytes.left(end) == "ok", end >= 0 ? bytes.mid(end + 1) : QByteArray()};
}

int HandOver(const std::string& socketPath, const InstanceRequest& request, int waitSeconds, long holder,
             const std::function<bool()>& takeHome) {
    const Clock::time_point deadline = Clock::now() + std::chrono::seconds(waitSeconds);
    bool told = false;
    for (;;) {
        // The socket is checked before it is spoken to: a socket of another user is never ours.
        struct stat info {};
        const bool ours = ::lstat(socketPath.c_str(), &info) == 0 && S_ISSOCK(info.st_mode) && info.st_uid == ::getuid();
        const int fd = ours ? Connect(socketPath) : -1;
        if (fd >= 0 && !SameUser(fd)) {
            ::close(fd);
            std::fprintf(stderr, "velmora: %s belongs to another user; nothing was sent\n", socketPath.c_str());
            return 1;
        }
        if (fd >= 0) {
            QByteArray answer;
            const bool answered = Exchange(fd, Framed(request.Encode()), deadline, &answer, &told);
            ::close(fd);
            if (answered) {
                const InstanceReply reply = InstanceReply::Decode(answer);
                std::fwrite(reply.text.constData(), 1, static_cast<size_t>(reply.text.size()), reply.ok ? stdout : stderr);
                return reply.ok ? 0 : 1;
            }
            break;
        }
        // The copy that holds the home may still be on its way to listening, or may have been a
        // start like this one that held it for a moment and is gone: then the home is free.
        if (takeHome()) return kHomeTaken;
        if (MillisecondsLeft(deadline) <= 0) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    std::fprintf(stderr,
                 "velmora: Velmora already runs on this home (process %ld) and has not answered in %d s; "
                 "it is left alone\n",
                 holder, waitSeconds);
    return 1;
}

namespace {
// A request waits while a message box is up: it would otherwise run inside the box's own loop,
// in the midst of the handler that showed it. The sender waits as for any busy copy.
// A sender whose wait ran out (while this copy was stopped or busy) has closed its end and told
// its user that nothing was done: what it asked is then not done behind its back.
bool SenderGone(QLocalSocket* socket) {
    char byte = 0;
    return socket->state() != QLocalSocket::ConnectedState ||
           ::recv(static_cast<int>(socket->socketDescriptor()), &byte, 1, MSG_PEEK | MSG_DONTWAIT) == 0;
}

void Answer(QLocalSocket* socket, const SingleInstance::Handler& handler, const InstanceRequest& request) {
    if (SenderGone(socket)) {
        socket->abort();
        return;
    }
    if (QApplication::activeModalWidget()) {
        QTimer::singleShot(200, socket, [socket, handler, request] { Answer(socket, handler, request); });
        return;
    }
    // The handler may run events in which a sender that gave up is deleted.
    const QPointer<QLocalSocket> alive(socket);
    const QByteArray answer = Framed(handler(request).Encode());
    if (!alive) return;
    socket->write(answer);
    socket->disconnectFromServer();
}
}  // namespace

SingleInstance::~SingleInstance() { delete server_; }

bool SingleInstance::Listen(const std::string& socketPath, Handler handler) {
    const QString path = QString::fromStdString(socketPath);
    server_ = new QLocalServer;
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    // Whoever made a socket here before is gone: the home's lock is ours, and the folder too.
    QLocalServer::removeServer(path);
    if (!server_->listen(path)) return false;
    QObject::connect(server_, &QLocalServer::newConnection, server_, [this, handler] {
        while (QLocalSocket* socket = server_->nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            if (!SameUser(static_cast<int>(socket->socketDescriptor()))) {
                socket->abort();
                continue;
            }
            QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket, handler] {
                QByteArray buffer = socket->property("buffer").toByteArray() + socket->readAll();
                QByteArray payload;
                if (AnnouncedLength(buffer) > kMaxMessageBytes) {
                    socket->abort();
                } else if (Unframe(buffer, &payload)) {
                    Answer(socket, handler, InstanceRequest::Decode(payload));
                } else {
                    socket->setProperty("buffer", buffer);
                }
            });
        }
    });
    return true;
}
