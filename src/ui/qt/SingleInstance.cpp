#include "ui/qt/SingleInstance.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <unistd.h>

namespace vantrel::qt {
namespace {

// A program that is busy for longer is still there, and hears of it later.
constexpr int milliseconds = 1000;

// In the user's own folder for sockets; in the one for temporary files otherwise.
QString socketPath(const std::string& name) {
    const QString own = QString::fromStdString(name) + "-" + QString::number(::getuid());
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return (folder.isEmpty() ? QDir::tempPath() : folder) + "/" + own;
}

bool call(const QString& path) {
    QLocalSocket socket;
    socket.connectToServer(path);
    if (!socket.waitForConnected(milliseconds)) return false;
    socket.disconnectFromServer();
    return true;
}

}  // namespace

SingleInstance::SingleInstance(const std::string& name) {
    const QString path = socketPath(name);
    if (call(path)) return;
    // Nobody listens there any more.
    QLocalServer::removeServer(path);
    server_ = std::make_unique<QLocalServer>();
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(server_.get(), &QLocalServer::newConnection, server_.get(), [this] {
        while (QLocalSocket* const socket = server_->nextPendingConnection()) {
            socket->deleteLater();
            if (called_) called_();
        }
    });
    server_->listen(path);
}

SingleInstance::~SingleInstance() = default;

}  // namespace vantrel::qt
