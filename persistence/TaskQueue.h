#pragma once

#include <QDeadlineTimer>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariantList>

#include <functional>
#include <optional>
#include <vector>

/// Runs slow jobs one at a time, in posting order, each in its own turn of the event loop of the
/// thread it was moved to, so that the user interface never waits for disk, registry or process
/// start. The slots run on that thread only; other threads post through a queued connection to
/// addTask().
class TaskQueue : public QObject
{
    Q_OBJECT

public:
    enum class Kind {
        Write,
        /// A write whose last argument is the new value of what the others name. It takes the place
        /// of one for the same value that still waits.
        ValueWrite,
        /// The only kind that finish() discards.
        Launch,
    };
    enum class Outcome { Done, TryAgain };
    struct Action {
        QString name;
        /// May return TryAgain, unless isLastAttempt.
        std::function<Outcome(const QVariantList& args, bool isLastAttempt)> perform;
        Kind kind = Kind::Write;
    };
    using Actions = std::vector<Action>;
    struct Timing {
        std::chrono::milliseconds retryInterval = std::chrono::milliseconds(100);
        /// Time after its first attempt within which a task is tried again.
        std::chrono::milliseconds retryPatience = std::chrono::seconds(3);
        /// Time that finish() spends on the tasks of one name.
        std::chrono::milliseconds finishPatience = std::chrono::milliseconds(500);
    };

    explicit TaskQueue(Actions actions = {});
    TaskQueue(Actions actions, Timing timing);
    /// Discards the tasks still waiting.
    ~TaskQueue() override;

    /// Before the first task is added.
    void setActions(Actions actions) { m_actions = std::move(actions); }

public slots:
    void addTask(QString task, QVariantList args);
    void processTask();
    /// Performs the waiting writes at once and discards the rest, which one log line names.
    void finish();

private:
    struct Task {
        QString task;
        QVariantList args;
        std::optional<QDeadlineTimer> patience; ///< from the first attempt on
    };

    const Action* actionOf(const QString& task) const;
    bool replaceWaiting(const QString& task, const QVariantList& args);
    void attempt(Task task, qsizetype position);

    // All on the queue's thread, once it runs.
    Actions m_actions;
    const Timing m_timing;
    QList<Task> m_tasks;
    bool m_isProcessing = false;
    /// Name of the task that is to be tried again. Those of the same name wait behind it.
    std::optional<QString> m_delayed;
    QTimer m_retryTimer{this};
};
