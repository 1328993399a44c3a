#pragma once

#include <QString>

#include <atomic>
#include <thread>

/// An account service that attacks the program with its reply to the first request. Works on a
/// thread of its own, since it sends without a pause.
class BadService
{
public:
    enum class Reply {
        LargeMessage, ///< a refusal with a message of 60 MB
        EndlessHead,  ///< headers without an end
    };

    explicit BadService(Reply reply);
    ~BadService();
    Q_DISABLE_COPY_MOVE(BadService)

    QString url() const;
    bool hasRequest() const { return m_hasRequest; }
    /// Starts the reply to the request.
    void answer() { m_mayAnswer = true; }
    /// Whether the program has closed the connection, or has read the whole reply.
    bool isDone() const { return m_isDone; }
    double sentMegabytes() const { return double(m_sent) / 1e6; }

private:
    void run(const std::stop_token& stop, Reply reply);
    bool send(int connection, const QByteArray& bytes);

    int m_socket = -1;
    std::atomic_bool m_hasRequest = false;
    std::atomic_bool m_mayAnswer = false;
    std::atomic_bool m_isDone = false;
    std::atomic_llong m_sent = 0;
    std::jthread m_thread; // last, since it uses the others
};
