#pragma once

#include "simulator/video/FrameLayout.h"

#include <QByteArray>
#include <QSize>
#include <QStringList>

#include <random>

namespace simulator
{

class FrameObjects;

/// Puts frames into the shared memory, right ones and wrong ones.
class FrameWriter
{
public:
    /// Wrong in ways that a program must survive.
    static const QStringList& hostileKinds();

    /// @p objects must outlive the writer and be of frame::MappingSize.
    explicit FrameWriter(FrameObjects& objects)
        : m_objects(objects)
    {
    }

    /// Puts NV12 data there, tightly packed, and announces it.
    void write(quint32 number, const QSize& size, const QByteArray& data);
    /// The same with what @p kind, an index of hostileKinds(), says is wrong.
    void writeHostile(int kind, quint32 number, const QSize& size, const QByteArray& data);

private:
    void putHeader(const frame::Header& header);
    void putNoise();
    frame::Header hostileHeader(int kind, const frame::Header& right);

    FrameObjects& m_objects;
    std::mt19937 m_random;
};

} // namespace simulator
