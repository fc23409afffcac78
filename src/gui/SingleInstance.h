#pragma once
// One running Velmora per home: a later start hands its request to the running copy over a
// local socket and exits, so a desktop shortcut can drop text on the target. Only the user's
// own processes are spoken to, on either side.

#include <functional>
#include <string>

#include <QByteArray>
#include <QString>

class QLocalServer;

struct InstanceRequest {
    enum class Kind { Show, Drop, DropSelection, Run };
    Kind kind = Kind::Show;
    QString text;  // the dropped text, or command lines to run

    QByteArray Encode() const;
    static InstanceRequest Decode(const QByteArray& bytes);
};

// What the running copy answers: output for standard output, or why it could not do it.
struct InstanceReply {
    bool ok = true;
    QByteArray text;

    QByteArray Encode() const;
    static InstanceReply Decode(const QByteArray& bytes);
};

// Hands `request` to the copy that listens at `socketPath` and holds the home as process
// `holder`, waiting up to `waitSeconds` for a busy one. Prints the answer and returns the exit
// status of this start. Needs no display. While no copy listens it tries `takeHome`, and
// returns kHomeTaken when that took the home: this start is then the copy.
constexpr int kHomeTaken = -1;
int HandOver(const std::string& socketPath, const InstanceRequest& request, int waitSeconds, long holder,
             const std::function<bool()>& takeHome);

class SingleInstance {
public:
    using Handler = std::function<InstanceReply(const InstanceRequest&)>;

    ~SingleInstance();
    // Starts answering later starts at `socketPath`, which the caller's home lock makes ours;
    // each request reaches `handler` on the GUI thread, and its answer goes back.
    bool Listen(const std::string& socketPath, Handler handler);

private:
    QLocalServer* server_ = nullptr;
};
