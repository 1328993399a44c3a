#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <numeric>
#include <vector>

/// Tools shared by the benchmarks.
namespace bench
{

using Values = std::vector<double>;

/// The value below which the fraction @p part of the values lies. There must be at least one value.
inline double quantile(Values values, double part)
{
    const auto at = values.begin() + std::ptrdiff_t(part * double(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

inline double median(const Values& values)
{
    return quantile(values, 0.5);
}

inline double mean(const Values& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / double(values.size());
}

/// Duration of one call of @p work in microseconds.
template <typename Work>
double microsecondsOf(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
        .count();
}

inline void printRatio(const char* what, double value, double baseline, const char* unit,
                       double aim)
{
    std::printf("%s: ratio %.2f (%.1f %s against %.1f; aim at most %.2f)\n", what, value / baseline,
                value, unit, baseline, aim);
    std::fflush(stdout);
}

/// A child process that is controlled by lines on its standard input and answers with lines.
class Child
{
public:
    Child(const QString& program, const QStringList& arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(program, arguments);
    }
    ~Child()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(Patience))
            m_process.kill();
    }
    Q_DISABLE_COPY_MOVE(Child)

    /// @p line includes its newline.
    void write(const QByteArray& line)
    {
        m_process.write(line);
        m_process.waitForBytesWritten();
    }

    /// Waits for the next line. Empty if the child has ended or does not answer.
    QByteArray readLine()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(Patience))
                return {};
        }
        return m_process.readLine().trimmed();
    }

private:
    static constexpr int Patience = 60'000; // milliseconds

    QProcess m_process;
};

} // namespace bench
