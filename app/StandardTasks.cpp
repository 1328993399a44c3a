#include "app/StandardTasks.h"

#include "launch/MeetingLauncher.h"
#include "persistence/FileInfo.h"
#include "persistence/Keys.h"
#include "persistence/UserSettings.h"

namespace
{

void saveToStore(UserSettings& store, const QVariantList& args)
{
    const quint64 signIn = args.size() > 2 ? args.at(2).toULongLong() : store.currentSignIn();
    store.saveUserData(args.value(0).toString(), args.value(1), signIn);
}

} // namespace

TaskQueue::Actions standardTasks(FileInfo& fileInfo, UserSettings& userSettings,
                                 MeetingLauncher& launcher)
{
    return {
        {keys::task::SaveRegistry,
         [&fileInfo](const QVariantList& args) {
             fileInfo.saveRegistry(args.value(0).toString(), args.value(1).toString(),
                                   args.value(2));
         }},
        {keys::task::SaveConfig,
         [&fileInfo](const QVariantList& args) {
             fileInfo.saveConfig(args.value(0).toString(), args.value(1).toString(), args.value(2));
         }},
        {keys::task::SaveUserData,
         [&userSettings](const QVariantList& args) { saveToStore(userSettings, args); }},
        {keys::task::LaunchZoom, [&launcher](const QVariantList&) { launcher.startZoom(); }},
        {keys::task::LaunchTeams, [&launcher](const QVariantList&) { launcher.startTeams(); }},
        {keys::task::LaunchGoogleMeeting,
         [&launcher](const QVariantList&) { launcher.openGoogleMeeting(); }},
    };
}
