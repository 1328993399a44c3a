// logging_writer forms|crash|nested-crash LOGDIR BACKUPDIR NAME
//
// Writes a new log for the tests to read.
#include "app/LogInit.h"
#include "logging/Log.h"

#include <QString>

#include <glog/logging.h>

#include <csignal>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace
{

// Logs after main() and after the destruction of thread-local objects, as the singletons do.
struct LateRecord {
    ~LateRecord() { Log::info("LateRecord::~LateRecord") << "gone"; }
};

std::string valueOfNestedCall()
{
    Log::warning("Inner::call") << "inner";
    return "outer";
}

void writeForms()
{
    static const LateRecord s_lateRecord;
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
    Log::info("Sample::foreign") << u"a\nb\r\t\u001b[31m\u0085\u2028ä"_s << std::string("\x7f")
                                 << QByteArrayView("a\0b", 3).toByteArray();
    Log::info("Outer::call") << valueOfNestedCall();
    LOG(WARNING) << "of a library";
    Log::info("Sample::longText") << std::string(100'000, 'y');
    Log::info("Sample::afterwards") << "still here";
}

void crash()
{
    Log::info("Sample::crash") << "last line before";
    std::raise(SIGSEGV);
}

// Crashes inside glog while this thread holds its lock.
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
    if (argc != 5)
        return 2;
    InitLog(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]),
            QString::fromLocal8Bit(argv[4]), 5);
    const std::string_view mode = argv[1];
    if (mode == "forms")
        writeForms();
    else if (mode == "crash")
        crash();
    else
        crashInsideLog();
    return 0;
}
