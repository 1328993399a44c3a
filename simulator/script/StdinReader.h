#pragma once

#include <QByteArray>
#include <QObject>

#include <memory>

namespace simulator
{

/// Reads standard input line by line without blocking the event loop. The end of the input is not
/// reported, because a simulator that runs in the background has no input.
class StdinReader : public QObject
{
    Q_OBJECT

public:
    explicit StdinReader(QObject* parent = nullptr);
    ~StdinReader() override;

signals:
    /// @p line is without its newline.
    void lineRead(const QByteArray& line);

private:
    struct Private;
    std::unique_ptr<Private> m_private;
};

} // namespace simulator
