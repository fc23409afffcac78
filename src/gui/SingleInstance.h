#pragma once
// One running Velmora per user and home: a second start hands its request to the running
// window over a local socket and exits, so a desktop shortcut can drop text on the target.

#include <functional>

#include <QByteArray>
#include <QString>

class QLocalServer;

struct InstanceRequest {
    enum class Kind { Show, Drop, Run };
    Kind kind = Kind::Show;
    QString text;  // the dropped text, or command lines to run

    QByteArray Encode() const;
    static InstanceRequest Decode(const QByteArray& bytes);
};

class SingleInstance {
public:
    using Handler = std::function<QByteArray(const InstanceRequest&)>;

    // `home` is the folder the program keeps its files in: one copy runs for each.
    explicit SingleInstance(const QString& home);
    ~SingleInstance();

    // Hands the request to a running copy and puts its answer in `reply`; false if none answers.
    bool SendToRunning(const InstanceRequest& request, QByteArray* reply = nullptr) const;
    // Starts answering later starts; each request reaches `handler` on the GUI thread, and
    // what it returns goes back to the sender.
    bool Listen(Handler handler);

private:
    QString name_;
    QLocalServer* server_ = nullptr;
};
