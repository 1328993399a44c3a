#pragma once

#include "persistence/Keys.h"
#include "persistence/TaskQueue.h"
#include "persistence/UserSettings.h"

#include <QThread>

#include <memory>

/// Stores one value of the sign-in; false when that fails.
inline bool save(UserSettings& store, const QString& key, const QVariant& value, quint64 signIn)
{
    return store.saveUserData({{key, value}}, signIn, UserSettings::OnLock::Fail) ==
           UserSettings::Saved::Done;
}

/// The task that writes to a store. The store is asked for when the task runs.
inline TaskQueue::Actions storeTask(std::function<UserSettings&()> store)
{
    return {{keys::task::SaveUserData, [store = std::move(store)](const QVariantList& args, bool) {
                 save(store(), args.value(0).toString(), args.value(1),
                      args.value(2).toULongLong());
                 return TaskQueue::Outcome::Done;
             }}};
}

/// Owns a queue and its thread and posts to it, as the device control does.
class Poster : public QObject
{
    Q_OBJECT

public:
    explicit Poster(TaskQueue::Actions actions)
    {
        actions.push_back({QStringLiteral("drained"), [this](const QVariantList&, bool) {
                               QMetaObject::invokeMethod(this, &Poster::drained,
                                                         Qt::QueuedConnection);
                               return TaskQueue::Outcome::Done;
                           }});
        m_queue = std::make_unique<TaskQueue>(std::move(actions));
        m_queue->moveToThread(&m_thread);
        connect(this, &Poster::addTask, m_queue.get(), &TaskQueue::addTask);
        m_thread.start();
    }
    ~Poster() override
    {
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY_MOVE(Poster)

    const QThread* queueThread() const { return &m_thread; }

signals:
    void addTask(QString task, QVariantList args);
    /// The queue has run a task "drained". Emitted on the thread of this object.
    void drained();

private:
    QThread m_thread;
    std::unique_ptr<TaskQueue> m_queue;
};
