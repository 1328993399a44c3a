// Posts a long stream of database writes, during which the test kills this program.
//
//     write_stream <userdata.db> <prefix>
//
// Write number n stores n under the key <prefix>n; the log goes to standard error.

#include "persistence/DBManager.h"
#include "tests/persistence/Poster.h"

#include <glog/logging.h>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    const QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 3)
        return 2;

    DBManager store(args[1]);
    Poster poster(storeTask([&store]() -> UserSettings& { return store; }));
    for (int n = 0; n < 5000; ++n)
        emit poster.addTask(u"saveDB"_s, {args[2] + QString::number(n), n, store.currentSignIn()});
    return QCoreApplication::exec();
}
