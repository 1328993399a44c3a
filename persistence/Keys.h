#pragma once

#include <QLatin1StringView>

/// Names and fixed values that several rooms share, each written once.
namespace keys
{

/// Values that this program and the updater keep in the registry.
namespace registry
{
inline constexpr QLatin1StringView Path{
    "HKEY_CURRENT_USER\\System\\CurrentControlSet\\Control\\VORNApp"};
/// E-mail address of the account that signed in last.
inline constexpr QLatin1StringView UserName{"username"};
/// 1 while the display's devices replace the PC's own, otherwise 0.
inline constexpr QLatin1StringView DisableLocalDevices{"disable_local_dev"};
/// Version of the installed application, written by the updater.
inline constexpr QLatin1StringView InstalledVersion{"version"};
/// Version of a newer package, written by the updater when it finds one.
inline constexpr QLatin1StringView NewVersion{"newver"};
} // namespace registry

/// Keys of config.ini; config/config.ini explains them.
namespace config
{
inline constexpr QLatin1StringView LowestFirmware{"K4V/lowest_ver"};
inline constexpr QLatin1StringView RemoteDeviceInterval{"VORNApp/use_remote_device_interval"};
inline constexpr QLatin1StringView RemoteDevice{"VORNApp/use_remote_device"};
inline constexpr QLatin1StringView LaunchZoom{"VORNApp/support_launch_zoom"};
inline constexpr QLatin1StringView LaunchTeams{"VORNApp/support_launch_teams"};
inline constexpr QLatin1StringView LaunchGoogle{"VORNApp/support_launch_google"};
inline constexpr QLatin1StringView CloseExplained{"VORNApp/close_explained"};
inline constexpr QLatin1StringView ServerUrl{"Server/url"};
inline constexpr QLatin1StringView GoogleMeetingUrl{"VORNApp/google_meeting_url"};
} // namespace config

/// Keys of the signed-in user's data, in the database and in the account service's replies.
namespace user
{
inline constexpr QLatin1StringView Token{"token"};
inline constexpr QLatin1StringView UserId{"userId"};
inline constexpr QLatin1StringView Email{"email"};
inline constexpr QLatin1StringView FirstName{"firstName"};
inline constexpr QLatin1StringView LastName{"lastName"};
inline constexpr QLatin1StringView Company{"company"};
inline constexpr QLatin1StringView Title{"title"};
inline constexpr QLatin1StringView Picture{"picture"};
} // namespace user

/// Tasks of the queue; standardTasks() lists their arguments.
namespace task
{
inline constexpr QLatin1StringView SaveRegistry{"saveRegistry"};
inline constexpr QLatin1StringView SaveConfig{"saveConfig"};
inline constexpr QLatin1StringView SaveUserData{"saveDB"};
inline constexpr QLatin1StringView LaunchZoom{"launchZoom"};
inline constexpr QLatin1StringView LaunchTeams{"launchTeams"};
inline constexpr QLatin1StringView LaunchGoogleMeeting{"launchGoogleMeeting"};
} // namespace task

/// Picture of a user who has none, as an image source.
inline constexpr QLatin1StringView DefaultUserImage{"qrc:/images/user_84x84.png"};
/// Oldest supported firmware of the display where config.ini names none.
inline constexpr QLatin1StringView DefaultLowestFirmware{"3.9.6"};
/// Page opened for a Google Meet meeting where config.ini names none.
inline constexpr QLatin1StringView DefaultGoogleMeetingUrl{
    "https://meet.google.com/landing?hs=197&authuser=0"};

} // namespace keys
