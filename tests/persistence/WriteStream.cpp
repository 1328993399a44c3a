// Posts a long stream of database writes, during which the test kills this program.
//
//     write_stream <userdata.db>
//
// Task n stores n under eight keys as one change. Every fourth task clears the store as a sign-out
// does. The log goes to standard error.

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
    if (args.size() != 2)
        return 2;

    DBManager store(args[1]);
    Poster poster({{keys::task::SaveUserData, [&store](const QVariantList& task, bool) {
                        if (task[0].toInt() % 4 == 3) {
                            store.clearUserData();
                            return TaskQueue::Outcome::Done;
                        }
                        QList<UserSettings::Value> change;
                        for (const QChar key : u"abcdefgh"_s)
                            change.append({key, task[0]});
                        store.saveUserData(change, store.currentSignIn(), DBManager::OnLock::Fail);
                        return TaskQueue::Outcome::Done;
                    }}});
    for (int n = 0; n < 5000; ++n)
        emit poster.addTask(keys::task::SaveUserData, {n});
    return QCoreApplication::exec();
}
