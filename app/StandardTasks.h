#pragma once

#include "persistence/TaskQueue.h"

class FileInfo;
class MeetingLauncher;
class UserSettings;

/// The program's tasks. Missing arguments count as empty values.
///
/// | task                               | arguments                                            |
/// |------------------------------------|------------------------------------------------------|
/// | saveRegistry                       | registry path, value name, value                     |
/// | saveConfig                         | INI file, key, value                                 |
/// | saveDB                             | key, value, number of the sign-in (absent: current), |
/// |                                    | whether further values of this change follow         |
/// | launchZoom, launchTeams,           | none                                                 |
/// | launchGoogleMeeting                |                                                      |
///
/// Everything given here has to outlive the queue's thread.
TaskQueue::Actions standardTasks(FileInfo& fileInfo, UserSettings& userSettings,
                                 MeetingLauncher& launcher);
