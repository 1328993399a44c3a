#pragma once

class QTemporaryDir;

/// Runs the event loop for this time.
void waitFor(int milliseconds);

/// Compares the program with the bare window: time from the start to the first frame, and memory.
void compareStarts(const QTemporaryDir& home);
