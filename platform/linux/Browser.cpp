#include "platform/Browser.h"

#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace platform
{

bool openInBrowser(const QUrl& address)
{
    if (!address.isValid() || address.scheme().isEmpty())
        return false;
    for (const QString& opener : {u"xdg-open"_s, qEnvironmentVariable("BROWSER"),
                                  u"x-www-browser"_s, u"firefox"_s, u"chromium"_s}) {
        const QString path = opener.isEmpty() ? QString() : QStandardPaths::findExecutable(opener);
        if (!path.isEmpty())
            return QProcess::startDetached(path, {address.toString(QUrl::FullyEncoded)});
    }
    return false;
}

} // namespace platform
