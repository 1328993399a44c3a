// The input is registry.ini. A value is read and written.
#include "fuzz/FuzzSupport.h"
#include "platform/Registry.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QString s_path = [] {
        QString path = fuzz::temporaryFile(u"VORNApp/registry.ini"_s);
        QDir().mkpath(QFileInfo(path).path());
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(fuzz::temporaryFile(QString())));
        return path;
    }();
    const QString key = u"HKEY_CURRENT_USER\\System\\VORNApp"_s;
    fuzz::write(s_path, fuzz::bytes(data, size));
    (void)platform::readRegistry(key, u"version"_s);
    if (platform::writeRegistry(key, u"version"_s, u"1.0"_s))
        fuzz::require(platform::readRegistry(key, u"version"_s).toString() == "1.0"_L1,
                      "a written value can be read");
    return 0;
}
