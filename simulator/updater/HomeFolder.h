#pragma once

#include <QString>

class QObject;

namespace simulator
{

/// Ends the program once the folder that it works in is gone: a detached program of a test or a
/// tour does not outlive its home. Needs the application object; call on the main thread.
/// @param owner  the watch lives as long as this
void liveInFolder(const QString& folder, QObject* owner);

/// Lets go of the standard streams, so that whoever reads those of the program that started this
/// one does not wait for its end too.
void leaveStandardStreams();

} // namespace simulator
