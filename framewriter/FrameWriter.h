#pragma once

#include "framewriter/FrameLayout.h"

#include <QByteArray>
#include <QSize>
#include <QStringList>

#include <random>

class FrameObjects;

/// Writes frames into the shared memory and announces them. A frame can be faulty in ways that a
/// reader must survive.
class FrameWriter
{
public:
    /// Names of the faults, in the order of Fault.
    static const QStringList& faultNames();
    enum class Fault {
        Index,
        Zero,
        NegativeLength,
        LongLength,
        WrongLength,
        HugeSize,
        Noise, ///< a header of random bytes
        Torn,  ///< correct when announced, overwritten while it is read
    };

    /// @p objects must outlive the writer, and their memory must have room for the frames.
    explicit FrameWriter(FrameObjects& objects)
        : m_objects(objects)
    {
    }

    /// Stores NV12 data, tightly packed, and announces it. False when it does not fit.
    bool write(quint32 number, const QSize& size, const QByteArray& data);
    /// Announces a frame with the fault given. Only a torn frame carries the data.
    bool writeFaulty(Fault fault, quint32 number, const QSize& size, const QByteArray& data);

private:
    void storeNoise();
    framelayout::Header faultyHeader(Fault fault, framelayout::Header header);

    FrameObjects& m_objects;
    std::mt19937 m_random;
};
