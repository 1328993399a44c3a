#include "platform/DeviceEnumeration.h"
#include "platform/Folders.h"
#include "platform/MemoryGuard.h"
#include "platform/Processes.h"
#include "platform/Shortcuts.h"
#include "platform/ThreadName.h"
#include "platform/TrayKeys.h"
#include "platform/VersionResource.h"
#include "platform/windows/ChildCommand.h"
#include "rig/HelperProcess.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <qt_windows.h>

#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include <future>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The services of Windows for which Linux has stand-ins with their own tests.
class tst_WindowsServices : public QObject
{
    Q_OBJECT

private slots:
    void findsTheFolders();
    void readsVersionResources();
    void listsDevices();
    void resolvesShortcuts();
    void leavesAnUnansweredQuestion();
    void namesThreads();
    void leavesAnAccessToALostPage();
    void tellsKeysFromClicksOnTheTrayIcon();
};

namespace
{

bool isWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

bool makeShortcut(const QString& path, const QString& target)
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    IShellLinkW* link = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                reinterpret_cast<void**>(&link))))
        return false;
    link->SetPath(QDir::toNativeSeparators(target).toStdWString().c_str());
    IPersistFile* file = nullptr;
    bool saved = false;
    if (SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)))) {
        const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
        saved = SUCCEEDED(file->Save(name.c_str(), TRUE));
        file->Release();
    }
    link->Release();
    CoUninitialize();
    return saved;
}

} // namespace

void tst_WindowsServices::findsTheFolders()
{
    QCOMPARE(platform::programDataFolder(), u"C:\\ProgramData\\VORNApp"_s);
    QVERIFY(QFileInfo(platform::programDataFolder()).isDir());
    QCOMPARE(platform::logBackupFolder(), u"C:\\ProgramData\\vorn_temp\\log\\"_s);
    QCOMPARE(platform::settingsFolder(), QCoreApplication::applicationDirPath());
    QVERIFY(platform::startMenuFolder().endsWith("/Start Menu/Programs"_L1));
    QVERIFY(QFileInfo(platform::desktopFolder()).isDir());
    QVERIFY(platform::localDataFolder().endsWith("/AppData/Local"_L1));
    QCOMPARE(platform::executableFileName(u"Zoom.exe"_s), u"Zoom.exe"_s);
    QCOMPARE(platform::programBesideApplication(u"platform_helper.exe"_s),
             HelperProcess::path(u"platform_helper"_s));
}

void tst_WindowsServices::readsVersionResources()
{
    // A bare name is looked up like a library.
    const auto byName = platform::fileVersions(u"kernel32.dll"_s);
    QVERIFY(byName.has_value());
    QVERIFY(byName->file[0] >= 6);
    const QString folder = QDir::fromNativeSeparators(qEnvironmentVariable("SystemRoot"));
    const auto byPath = platform::fileVersions(folder + "/system32/kernel32.dll"_L1);
    QVERIFY(byPath.has_value());
    QCOMPARE(byPath->file, byName->file);
    for (const QString& none :
         {HelperProcess::path(u"platform_helper"_s), u"C:/missing.exe"_s, QString()})
        QVERIFY2(!platform::fileVersions(none), qPrintable(none));
}

void tst_WindowsServices::listsDevices()
{
    using platform::DeviceClass;
    for (const auto deviceClass :
         {DeviceClass::Media, DeviceClass::Camera, DeviceClass::AudioEndpoint}) {
        QList<platform::DeviceRecord> records{{u"first"_s, {}}};
        quint32 error = 1;
        QVERIFY(platform::scanDevices(deviceClass, records, error));
        QCOMPARE(error, 0U);
        QCOMPARE(records.first().instanceId, u"first"_s); // results are appended
        for (qsizetype i = 1; i < records.size(); ++i)
            QVERIFY(records[i].instanceId.contains(u'\\'));
    }

    QTemporaryFile list;
    QVERIFY(list.open());
    list.write("Media\tUSB\\M\tA card\r\nCamera\tUSB\\C\tA camera\nCamera\n");
    list.close();
    qputenv("VORN_DEVICE_LIST", list.fileName().toUtf8());
    QList<platform::DeviceRecord> listed;
    quint32 error = 1;
    QVERIFY(platform::scanDevices(DeviceClass::Camera, listed, error));
    qunsetenv("VORN_DEVICE_LIST");
    QCOMPARE(listed, (QList<platform::DeviceRecord>{{u"USB\\C"_s, u"A camera"_s}}));
}

void tst_WindowsServices::resolvesShortcuts()
{
    QCOMPARE(platform::shortcutFileName(u"Zoom Workplace"_s), u"Zoom Workplace.lnk"_s);
    QVERIFY(platform::packagedShortcut({u"Zoom"_s}).isEmpty());

    const QTemporaryDir folder;
    const QString target = HelperProcess::path(u"platform_helper"_s);
    const QString shortcut = folder.filePath(u"it's the children\u2019s $program.lnk"_s);
    QVERIFY(makeShortcut(shortcut, target));
    if (isWine())
        QSKIP("Wine has no PowerShell to read a shortcut with.");
    const auto result = platform::shortcutTarget(shortcut, 20s);
    QVERIFY2(result.finished, qPrintable(result.processError));
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(QDir::fromNativeSeparators(result.output).toLower(), target.toLower());
}

void tst_WindowsServices::leavesAnUnansweredQuestion()
{
    // The call stands for a start that waits for the user's permission.
    std::promise<void> answer;
    std::stop_source stop;
    stop.request_stop();
    QVERIFY(!platform::runAside(
        [answered = answer.get_future().share()] { return answered.wait(), true; },
        stop.get_token()));
    answer.set_value();
    QVERIFY(platform::runAside([] { return true; }, {}));
}

void tst_WindowsServices::namesThreads()
{
    platform::nameCurrentThread("a thread");
    ULONG reserved = 0;
    QVERIFY(SetThreadStackGuarantee(&reserved));
    QVERIFY(reserved >= 64 * 1024);
}

void tst_WindowsServices::leavesAnAccessToALostPage()
{
    // A page cannot be lost on purpose, so the system's exception for it is raised. A handler that
    // comes later takes those that nobody has taken.
    static std::atomic_int s_passedOn = 0;
    platform::installMemoryGuard();
    void* const later = AddVectoredExceptionHandler(0, [](EXCEPTION_POINTERS* pointers) -> LONG {
        if (pointers->ExceptionRecord->ExceptionCode != EXCEPTION_IN_PAGE_ERROR)
            return EXCEPTION_CONTINUE_SEARCH;
        ++s_passedOn;
        return EXCEPTION_CONTINUE_EXECUTION;
    });
    const auto losePage = [] { RaiseException(EXCEPTION_IN_PAGE_ERROR, 0, 0, nullptr); };
    const auto access = [&](int times) {
        volatile int lost = 0;
        for (int i = 0; i < times; ++i) {
            bool beyond = false;
            if (!platform::guarded([&] { losePage(), beyond = true; }) && !beyond)
                lost = lost + 1;
        }
        return int(lost);
    };
    int lostElsewhere = 0;
    std::thread([&] { lostElsewhere = access(1000); }).join();
    QCOMPARE(lostElsewhere, 1000);
    QCOMPARE(access(3), 3);
    QCOMPARE(s_passedOn.load(), 0);
    QVERIFY(platform::guarded([] {}));
    losePage();
    QCOMPARE(s_passedOn.load(), 1);
    RemoveVectoredExceptionHandler(later);
}

void tst_WindowsServices::tellsKeysFromClicksOnTheTrayIcon()
{
    static QList<bool> s_keys; // answers during messages, as Qt's window would ask
    WNDCLASSW windowClass{};
    windowClass.lpszClassName = L"vorn test";
    windowClass.lpfnWndProc = [](HWND window, UINT message, WPARAM place, LPARAM what) {
        if (message == WM_APP + 101)
            s_keys << platform::isTrayKeyPress();
        return DefWindowProcW(window, message, place, what);
    };
    RegisterClassW(&windowClass);
    for (int i = 0; i < 2; ++i) { // the window of an icon that is hidden and shown again is another
        const HWND window = CreateWindowExW(0, windowClass.lpszClassName, L"QTrayIconMessageWindow",
                                            0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
        QVERIFY(window);
        platform::watchTrayKeys();
        platform::watchTrayKeys();
        for (const LPARAM what : {NIN_SELECT, NIN_KEYSELECT, WM_LBUTTONDBLCLK})
            SendMessageW(window, WM_APP + 101, 0, what);
        QVERIFY(!platform::isTrayKeyPress());
        DestroyWindow(window);
    }
    QCOMPARE(s_keys, (QList{false, true, false, false, true, false}));
}

QTEST_GUILESS_MAIN(tst_WindowsServices)
#include "tst_WindowsServices.moc"
