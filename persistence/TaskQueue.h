#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <functional>
#include <utility>
#include <vector>

/// Runs slow jobs one at a time, in posting order, each in its own turn of the event loop of the
/// thread it was moved to, so that the user interface never waits for disk, registry or process
/// start. Both slots run on that thread only; other threads post through a queued connection to
/// addTask().
class TaskQueue : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void(const QVariantList& args)>;
    /// Task name and what it does, compared in this order.
    using Actions = std::vector<std::pair<QString, Action>>;

    explicit TaskQueue(Actions actions = {}, QObject* parent = nullptr);
    /// Discards the tasks still waiting.
    ~TaskQueue() override;

    /// Before the first task is added.
    void setActions(Actions actions) { m_actions = std::move(actions); }

public slots:
    void addTask(QString task, QVariantList args);
    void processTask();

private:
    struct Task {
        QString task;
        QVariantList args;
    };

    void perform(const Task& task) const;

    Actions m_actions;
    QList<Task> m_tasks;
    bool m_isProcessing = false;
};
