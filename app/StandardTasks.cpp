#include "app/StandardTasks.h"

#include "launch/MeetingLauncher.h"
#include "persistence/FileInfo.h"
#include "persistence/Keys.h"
#include "persistence/UserSettings.h"

namespace
{

using Kind = TaskQueue::Kind;
using Outcome = TaskQueue::Outcome;

/// For actions that are done with their first attempt.
auto once(std::function<void(const QVariantList& args)> work)
{
    return [work = std::move(work)](const QVariantList& args, bool) {
        work(args);
        return Outcome::Done;
    };
}

Outcome saveToStore(UserSettings& store, const QVariantList& args, bool isLastAttempt)
{
    const QString key = args.value(0).toString();
    const QVariant value = args.value(1);
    const quint64 signIn = args.size() > 2 ? args.at(2).toULongLong() : store.currentSignIn();
    if (!isLastAttempt && store.trySaveUserData(key, value, signIn) == UserSettings::Saved::Locked)
        return Outcome::TryAgain;
    if (isLastAttempt)
        store.saveUserData(key, value, signIn);
    return Outcome::Done;
}

} // namespace

TaskQueue::Actions standardTasks(FileInfo& fileInfo, UserSettings& userSettings,
                                 MeetingLauncher& launcher)
{
    return {
        {keys::task::SaveRegistry, once([&fileInfo](const QVariantList& args) {
             fileInfo.saveRegistry(args.value(0).toString(), args.value(1).toString(),
                                   args.value(2));
         }),
         Kind::ValueWrite},
        {keys::task::SaveConfig, once([&fileInfo](const QVariantList& args) {
             fileInfo.saveConfig(args.value(0).toString(), args.value(1).toString(), args.value(2));
         })},
        {keys::task::SaveUserData,
         [&userSettings](const QVariantList& args, bool isLastAttempt) {
             return saveToStore(userSettings, args, isLastAttempt);
         }},
        {keys::task::LaunchZoom, once([&launcher](const QVariantList&) { launcher.startZoom(); }),
         Kind::Launch},
        {keys::task::LaunchTeams, once([&launcher](const QVariantList&) { launcher.startTeams(); }),
         Kind::Launch},
        {keys::task::LaunchGoogleMeeting,
         once([&launcher](const QVariantList&) { launcher.openGoogleMeeting(); }), Kind::Launch},
    };
}
