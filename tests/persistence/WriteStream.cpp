// Posts an endless stream of database writes until it is killed.
//
//     write_stream <userdata.db> <prefix>
//
// Write number n stores n under the key <prefix>n; the log goes to standard error.

#include "launch/MeetingLauncher.h"
#include "persistence/DBManager.h"
#include "persistence/FileInfo.h"
#include "persistence/StandardTasks.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QThread>

using namespace Qt::StringLiterals;

namespace
{

class NoLauncher : public MeetingLauncher
{
public:
    bool startZoom() override { return false; }
    bool startTeams() override { return false; }
    bool openGoogleMeeting() override { return true; }
};

} // namespace

class Stream : public QObject
{
    Q_OBJECT

public:
    void post(const QString& prefix, int count)
    {
        for (int n = 0; n < count; ++n)
            emit addTask(u"saveDB"_s, {prefix + QString::number(n), n});
    }

signals:
    void addTask(QString task, QVariantList args);
};

int main(int argc, char* argv[])
{
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    const QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 3)
        return 2;

    NoLauncher launcher;
    FileInfo fileInfo(args[1] + u".ini"_s);
    DBManager store(args[1]);
    TaskQueue queue(standardTasks(
        fileInfo, [&store]() -> UserSettings& { return store; }, launcher));
    QThread thread;
    queue.moveToThread(&thread);
    Stream stream;
    QObject::connect(&stream, &Stream::addTask, &queue, &TaskQueue::addTask);
    thread.start();
    stream.post(args[2], 5000);
    const int result = QCoreApplication::exec();
    thread.quit();
    thread.wait();
    return result;
}

#include "WriteStream.moc"
