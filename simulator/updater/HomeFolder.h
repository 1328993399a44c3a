#pragma once

#include <QString>

class QObject;

namespace simulator
{

/// Ends the program when @p folder is removed, so that a detached program does not outlive the test
/// or the tour that started it. Needs the application object. Main thread only.
/// @param owner  lifetime of the watch
void quitWithFolder(const QString& folder, QObject* owner);

/// Closes the standard streams. A program that reads the streams of the starter would otherwise
/// wait for the end of this program too.
void closeStandardStreams();

} // namespace simulator
