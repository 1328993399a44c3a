#pragma once

#include <QtGlobal>

/// Page faults so far: those of the calling thread on Linux, those of the process on Windows.
qint64 pageFaults();

/// Resident memory of this process in bytes.
qint64 residentBytes();
