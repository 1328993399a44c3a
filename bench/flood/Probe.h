#pragma once

#include "bench/Measure.h"

#include <QString>

#include <atomic>
#include <mutex>
#include <thread>

/// Measures again and again how long the program's main thread takes to answer: connects to the
/// local socket of the single instance, asks for activation, and waits until the program closes the
/// connection, which its main thread does. Runs on a thread of its own.
class Probe
{
public:
    /// @p home is the home folder of the program, below which its socket lies.
    explicit Probe(QString home);
    ~Probe();
    Q_DISABLE_COPY_MOVE(Probe)

    /// Takes the durations in milliseconds since the last call. A question that has not been
    /// answered yet counts with its duration so far.
    bench::Values take();
    int answerCount() const { return m_answers; }

private:
    void run(const std::stop_token& stop);

    const QString m_home;
    std::mutex m_mutex;
    bench::Values m_durations; // guarded by m_mutex
    double m_asked = 0;        // guarded by m_mutex; time of the open question, otherwise 0
    std::atomic_int m_answers = 0;
    std::jthread m_thread;
};
