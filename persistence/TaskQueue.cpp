#include "persistence/TaskQueue.h"

#include "logging/Log.h"

#include <QTimer>

#include <algorithm>

TaskQueue::TaskQueue(Actions actions, QObject* parent)
    : QObject(parent)
    , m_actions(std::move(actions))
{
    Log::info("TaskQueue::TaskQueue") << "TaskQueue";
}

TaskQueue::~TaskQueue()
{
    Log::info("TaskQueue::~TaskQueue") << "~TaskQueue";
}

void TaskQueue::addTask(QString task, QVariantList args)
{
    m_tasks.append({std::move(task), std::move(args)});
    if (!m_isProcessing)
        processTask();
}

void TaskQueue::processTask()
{
    if (m_tasks.isEmpty()) {
        m_isProcessing = false;
        return;
    }
    m_isProcessing = true;
    const Task task = m_tasks.takeFirst();
    Log::info("TaskQueue::processTask") << task.task;
    perform(task);
    QTimer::singleShot(0, this, &TaskQueue::processTask);
}

void TaskQueue::perform(const Task& task) const
{
    const auto action = std::find_if(m_actions.cbegin(), m_actions.cend(),
                                     [&task](const auto& each) { return each.first == task.task; });
    if (action != m_actions.cend())
        action->second(task.args);
}
