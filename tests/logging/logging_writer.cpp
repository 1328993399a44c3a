// Writes to a fresh log in the way its first argument names; the tests look at what it left.
//
//     logging_writer forms|threads|crash|nested-crash LOGDIR BACKUPDIR NAME
#include "app/LogInit.h"
#include "logging/Log.h"

#include <QString>

#include <glog/logging.h>

#include <csignal>
#include <cstdio>
#include <limits>
#include <map>
#include <string>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

// The long-lived objects of the program write when they go, after main() and after the thread's own
// objects.
struct LastWords {
    ~LastWords() { Log::info("LastWords::~LastWords") << "gone"; }
};

std::string valueOfNestedCall()
{
    Log::warning("Inner::call") << "inner";
    return "outer";
}

void writeForms()
{
    static const LastWords lastWords;
    Log::info("Sample::method") << "filepath:" << u"C:/Müller"_s << ", count:" << 42
                                << ", flag:" << true << ", ratio:" << 0.5 << ", char:" << 'x'
                                << ", low:" << std::numeric_limits<qint64>::min()
                                << ", null:" << static_cast<const char*>(nullptr);
    Log::warning("Sample::method") << "careful";
    Log::error("Sample::method") << "broken";
    Log::info("Sample::empty") << "";
    Log::info("Sample::lines") << "first\nsecond\n\nfourth";
    Log::info("Sample::newline") << "ends itself\n";
    Log::info("Sample::utf16") << QString(QChar(0xD800)) << "|" << QString(QChar(0xDC00));
    Log::info("Sample::bytes") << QByteArrayView("a\0b", 3).toByteArray();
    Log::info("Outer::call") << valueOfNestedCall();
    LOG(WARNING) << "of a library";
    Log::info("Sample::longText") << std::string(100'000, 'y');
    Log::info("Sample::afterwards") << "still here";
}

void writeFromThreads()
{
    FLAGS_max_log_size = 1;
    const std::string padding(200, '.');
    constexpr int threadCount = 4;
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back([number, &padding] {
            for (int count = 0; count < 3000; ++count)
                Log::info("Worker::run") << number << ' ' << count << padding;
        });
    }
    for (auto& thread : threads)
        thread.join();
}

void crash()
{
    Log::info("Sample::crash") << "last line before";
    std::raise(SIGSEGV);
}

// A crash below glog, while this thread holds its lock.
class CrashingSink final : public google::LogSink
{
public:
    void send(google::LogSeverity, const char*, const char*, int, const google::LogMessageTime&,
              const char*, std::size_t) override
    {
        std::raise(SIGSEGV);
    }
};

void crashInsideLog()
{
    CrashingSink sink;
    google::AddLogSink(&sink);
    Log::info("Sample::crash") << "the line being written";
}

} // namespace

int main(int argc, char* argv[])
{
    const std::map<std::string, void (*)()> modes{{"forms", writeForms},
                                                  {"threads", writeFromThreads},
                                                  {"crash", crash},
                                                  {"nested-crash", crashInsideLog}};
    const auto mode = modes.find(argc == 5 ? argv[1] : "");
    if (mode == modes.end()) {
        std::fputs("usage: logging_writer forms|threads|crash|nested-crash LOGDIR BACKUPDIR NAME\n",
                   stderr);
        return 2;
    }
    InitLog(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]),
            QString::fromLocal8Bit(argv[4]), 5);
    mode->second();
    return 0;
}
