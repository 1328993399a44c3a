#include "portalhub/SocketName.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

QString channel::socketName()
{
    QByteArray name = qgetenv("VORN_PORTALHUB_SOCKET");
    if (name.isEmpty()) {
        const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
        name = (folder.isEmpty() ? QByteArrayLiteral("/tmp") : folder) + "/vorn-portalhub";
    }
    // Qt would resolve a relative name in the folder for temporary files.
    return QDir::current().absoluteFilePath(QFile::decodeName(name));
}

QString channel::folderOfSocket(const QString& name)
{
    const QFileInfo file(name);
    return file.isAbsolute() ? file.path() : QString();
}
