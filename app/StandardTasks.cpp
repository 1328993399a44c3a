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

/// Collects the values of one change and stores them together with the last one.
class UserDataTask
{
public:
    explicit UserDataTask(UserSettings& store)
        : m_store(store)
    {
    }

    Outcome operator()(const QVariantList& args, bool isLastAttempt)
    {
        using OnLock = UserSettings::OnLock;
        m_values.append({args.value(0).toString(), args.value(1)});
        if (args.value(3).toBool())
            return Outcome::Done;
        const quint64 signIn = args.size() > 2 ? args.at(2).toULongLong() : m_store.currentSignIn();
        const auto saved =
            m_store.saveUserData(m_values, signIn, isLastAttempt ? OnLock::Fail : OnLock::Report);
        if (saved == UserSettings::Saved::Locked) {
            m_values.removeLast(); // comes again with the next attempt
            return Outcome::TryAgain;
        }
        m_values.clear();
        return Outcome::Done;
    }

private:
    UserSettings& m_store;
    QList<UserSettings::Value> m_values; // task thread
};

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
        {keys::task::SaveUserData, UserDataTask(userSettings)},
        {keys::task::LaunchZoom, once([&launcher](const QVariantList&) { launcher.startZoom(); }),
         Kind::Launch},
        {keys::task::LaunchTeams, once([&launcher](const QVariantList&) { launcher.startTeams(); }),
         Kind::Launch},
        {keys::task::LaunchGoogleMeeting,
         once([&launcher](const QVariantList&) { launcher.openGoogleMeeting(); }), Kind::Launch},
    };
}
