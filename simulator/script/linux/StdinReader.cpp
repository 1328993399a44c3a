#include "simulator/script/StdinReader.h"

#include "portalhub/LineReader.h"

#include <QSocketNotifier>

#include <array>

#include <cerrno>
#include <unistd.h>

using namespace simulator;

namespace
{

constexpr qsizetype MaxLineLength = qsizetype{8} * 1024 * 1024;

} // namespace

struct StdinReader::Private {
    channel::LineReader reader{MaxLineLength};
    QSocketNotifier notifier{STDIN_FILENO, QSocketNotifier::Read};

    void readTo(StdinReader& receiver)
    {
        std::array<char, 4096> bytes;
        const ssize_t count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
        if (count < 0 && (errno == EINTR || errno == EAGAIN))
            return;
        if (count <= 0)
            notifier.setEnabled(false);
        // The last line may have no newline.
        reader.append(count > 0 ? QByteArrayView(bytes.data(), count) : QByteArrayView("\n"));
        while (const auto line = reader.next())
            emit receiver.lineRead(*line);
    }
};

StdinReader::StdinReader(QObject* parent)
    : QObject(parent)
    , m_private(std::make_unique<Private>())
{
    connect(&m_private->notifier, &QSocketNotifier::activated, this,
            [this] { m_private->readTo(*this); });
}

StdinReader::~StdinReader() = default;
