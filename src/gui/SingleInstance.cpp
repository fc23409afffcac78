#include "gui/SingleInstance.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QDataStream>
#include <QLocalServer>
#include <QLocalSocket>
#include <QVariant>

namespace {
constexpr int kTimeoutMs = 5000;
constexpr quint32 kMaxMessageBytes = 16u << 20;  // larger is no text a user selected

// Each message is its length, four bytes big-endian, then its bytes.
QByteArray Framed(const QByteArray& payload) {
    QByteArray framed;
    QDataStream(&framed, QIODevice::WriteOnly) << static_cast<quint32>(payload.size());
    return framed + payload;
}

// The whole message once `buffer` holds it.
bool Unframe(const QByteArray& buffer, QByteArray* payload) {
    if (buffer.size() < 4) return false;
    quint32 length = 0;
    QDataStream(buffer.left(4)) >> length;
    if (static_cast<quint32>(buffer.size() - 4) < length) return false;
    *payload = buffer.mid(4, length);
    return true;
}

quint32 AnnouncedLength(const QByteArray& buffer) {
    quint32 length = 0;
    if (buffer.size() >= 4) QDataStream(buffer.left(4)) >> length;
    return length;
}

const char* const kKinds[] = {"show", "drop", "run"};
}  // namespace

QByteArray InstanceRequest::Encode() const {
    return QByteArray(kKinds[static_cast<int>(kind)]) + '\n' + text.toUtf8();
}

InstanceRequest InstanceRequest::Decode(const QByteArray& bytes) {
    const qsizetype end = bytes.indexOf('\n');
    const QByteArray word = bytes.left(end);
    InstanceRequest request;
    for (int kind = 0; kind < 3; ++kind)
        if (word == kKinds[kind]) request.kind = static_cast<Kind>(kind);
    if (request.kind != Kind::Show && end >= 0) request.text = QString::fromUtf8(bytes.mid(end + 1));
    return request;
}

SingleInstance::SingleInstance(const QString& home) {
    const QByteArray hash = QCryptographicHash::hash(home.toUtf8(), QCryptographicHash::Sha1).toHex().left(12);
    name_ = QStringLiteral("velmora-%1-%2").arg(::getuid()).arg(QString::fromLatin1(hash));
}

SingleInstance::~SingleInstance() { delete server_; }

bool SingleInstance::SendToRunning(const InstanceRequest& request, QByteArray* reply) const {
    QLocalSocket socket;
    socket.connectToServer(name_);
    if (!socket.waitForConnected(kTimeoutMs)) return false;
    socket.write(Framed(request.Encode()));
    QByteArray buffer, answer;
    while (!Unframe(buffer, &answer)) {
        if (!socket.waitForReadyRead(kTimeoutMs)) return false;
        buffer += socket.readAll();
    }
    if (reply) *reply = answer;
    return true;
}

bool SingleInstance::Listen(Handler handler) {
    server_ = new QLocalServer;
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    if (!server_->listen(name_)) {
        // A copy that crashed leaves its socket file behind; nobody answered on it.
        QLocalServer::removeServer(name_);
        if (!server_->listen(name_)) return false;
    }
    QObject::connect(server_, &QLocalServer::newConnection, server_, [this, handler] {
        while (QLocalSocket* socket = server_->nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket, handler] {
                QByteArray buffer = socket->property("buffer").toByteArray() + socket->readAll();
                QByteArray payload;
                if (AnnouncedLength(buffer) > kMaxMessageBytes) {
                    socket->abort();
                } else if (Unframe(buffer, &payload)) {
                    socket->write(Framed(handler(InstanceRequest::Decode(payload))));
                    socket->disconnectFromServer();
                } else {
                    socket->setProperty("buffer", buffer);
                }
            });
        }
    });
    return true;
}
