#pragma once

#include <QtGlobal>

/// Page faults taken so far, by the calling thread where the system counts them so.
qint64 pageFaults();

/// Bytes of this process that are in memory.
qint64 residentBytes();
