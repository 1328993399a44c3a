#include "persistence/StandardTasks.h"

#include "launch/MeetingLauncher.h"
#include "persistence/FileInfo.h"
#include "persistence/UserSettings.h"

using namespace Qt::StringLiterals;

namespace
{

void saveToStore(UserSettings& store, const QVariantList& args)
{
    const quint64 signIn = args.size() > 2 ? args.at(2).toULongLong() : store.currentSignIn();
    store.saveUserData(args.value(0).toString(), args.value(1), signIn);
}

} // namespace

TaskQueue::Actions standardTasks(FileInfo& fileInfo, std::function<UserSettings&()> userSettings,
                                 MeetingLauncher& launcher)
{
    return {
        {u"saveRegistry"_s,
         [&fileInfo](const QVariantList& args) {
             fileInfo.saveRegistry(args.value(0).toString(), args.value(1).toString(),
                                   args.value(2));
         }},
        {u"saveConfig"_s,
         [&fileInfo](const QVariantList& args) {
             fileInfo.saveConfig(args.value(0).toString(), args.value(1).toString(), args.value(2));
         }},
        {u"saveDB"_s, [userSettings = std::move(userSettings)](
                          const QVariantList& args) { saveToStore(userSettings(), args); }},
        {u"launchZoom"_s, [&launcher](const QVariantList&) { launcher.startZoom(); }},
        {u"launchTeams"_s, [&launcher](const QVariantList&) { launcher.startTeams(); }},
        {u"launchGoogleMeeting"_s,
         [&launcher](const QVariantList&) { launcher.openGoogleMeeting(); }},
    };
}
