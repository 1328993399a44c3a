#pragma once

// Ways to crash that differ between the systems.

/// Writes to memory that no process may touch.
void touchForbiddenPage();

/// Reads memory that has lost its backing; does nothing where there is no such thing.
void touchBeyondEnd();

/// A handler as another library would have installed it before: it says "earlier handler" and ends
/// the process.
void installEarlierHandler();
