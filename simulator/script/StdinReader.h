#pragma once

#include <QByteArray>
#include <QObject>

#include <memory>

namespace simulator
{

/// Standard input line by line, without holding up the event loop. The end of the input is no
/// event: a simulator started in the background has none.
class StdinReader : public QObject
{
    Q_OBJECT

public:
    explicit StdinReader(QObject* parent = nullptr);
    ~StdinReader() override;

signals:
    /// Without its newline.
    void lineRead(const QByteArray& line);

private:
    struct Private;
    std::unique_ptr<Private> m_private;
};

} // namespace simulator
