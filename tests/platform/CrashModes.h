#pragma once

// Crashes that differ between the systems.

/// Writes to inaccessible memory.
void touchForbiddenPage();

/// Reads mapped memory beyond the end of its file. Does nothing on Windows.
void touchBeyondEnd();

/// Installs a signal handler that prints "earlier handler" and ends the process.
void installEarlierHandler();
