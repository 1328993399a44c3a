<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>%1 的個人檔案</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>個人檔案</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>智慧 BYOD 切換</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>開始 BYOD 會議時，VORN 裝置的麥克風、攝影機和喇叭會自動啟用。</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>請在任一應用程式中開啟攝影機
以進行調整</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>請將 K4V Windows 韌體更新至 %1 版，才能使用 VORN 應用程式。
請先更新韌體。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>ConnectionStaging</name>
    <message>
        <source>Connection failed. Please reconnect the device.</source>
        <translation>連線失敗。請重新連接裝置。</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>正在連接麥克風</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>正在連接喇叭</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>正在連接攝影機</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>建立帳戶</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>已經有帳戶了嗎？</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>建立帳戶</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>名字</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>格式不正確</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>姓氏</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>請使用公司電子郵件地址註冊。</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>確認密碼</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>兩次輸入的密碼不一致</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>目前版本：%1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>新版本：%1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>已是最新版本。</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>使用條款與隱私權政策</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>找到新版本 (%1)</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>稍後</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>立即更新</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>正在將 VORN 應用程式更新至新版本 (%1)…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>無法將 VORN 應用程式更新至新版本 (%1)！</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>重試更新</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>選擇要在啟動器中顯示的應用程式。只會顯示已勾選的應用程式。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Teams</source>
        <translation>Teams</translation>
    </message>
    <message>
        <source>Google</source>
        <translation>Google</translation>
    </message>
</context>
<context>
    <name>LoginPage</name>
    <message>
        <source>Verify Account</source>
        <translation>驗證帳戶</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>我們已將驗證連結傳送至 %1
請查看郵件以驗證您的帳戶。</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>重設密碼</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>我們已將郵件傳送至 %1
請查看郵件以重設您的密碼。</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>會議</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>攝影機控制</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>頁面</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>您好！
歡迎使用 VORN！</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>裝置控制</translation>
    </message>
    <message>
        <source>VORN K4V
Volume</source>
        <translation>VORN K4V
音量</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Device Source Mode</source>
        <extracomment>Heading above the two things that the display can show.</extracomment>
        <translation>裝置來源模式</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>智慧連線模式</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>將 VORN 的攝影機、麥克風和觸控
當作筆記型電腦的周邊裝置</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>螢幕分享</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>將桌面畫面鏡像到
Zoom Room 螢幕</translation>
    </message>
    <message>
        <source>hh:mm AP</source>
        <extracomment>Form of the time in the way of Qt: HH or hh hours, mm minutes, AP morning or afternoon.</extracomment>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>ddd, MMM dd, yyyy</source>
        <extracomment>Form of the date in the way of Qt: ddd name of the day, MMM name of the month.</extracomment>
        <translation>yyyy年M月d日 ddd</translation>
    </message>
</context>
<context>
    <name>Meetings</name>
    <message>
        <source>Connected</source>
        <extracomment>State of the microphone, speaker or camera, for screen readers.</extracomment>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>請將 Type-C 纜線插入您的筆記型電腦。</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麥克風</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>喇叭</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>攝影機</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>一切就緒，可以開始</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>啟動會議</translation>
    </message>
    <message>
        <source>ZOOM</source>
        <translation>ZOOM</translation>
    </message>
    <message>
        <source>Teams</source>
        <translation>Teams</translation>
    </message>
    <message>
        <source>Google
  Meet</source>
        <translation>Google
  Meet</translation>
    </message>
    <message>
        <source>VORN Bar detected</source>
        <translation>偵測到 VORN Bar</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>開始設定</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>正在設定 VORN Bar...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>會議</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>無法開啟監看視窗。</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>VORN Bar</source>
        <extracomment>Title of the window: the name of a product.</extracomment>
        <translation>VORN Bar</translation>
    </message>
    <message>
        <source>Connecting, please wait.</source>
        <translation>正在連線，請稍候。</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>連線失敗，請重新連線。</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>設定完成。您現在可以關閉此頁面。</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>顯示器畫面</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>登入要求逾時。</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>註冊要求逾時。</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>重設密碼要求逾時。</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>圖片太大。</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>更新個人檔案要求逾時。</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>缺少使用者 ID 或權杖</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>個人檔案要求逾時。</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>發生未知的錯誤。</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>無法連線至伺服器。</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>伺服器回應為空白。</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>無效的 JSON 回應：%1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>回應格式無效。</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>要求因不明原因失敗。</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>無法連線至伺服器。Proxy 要求輸入密碼。</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>智慧取景</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>自動對焦多人並合併到同一個畫面中（最多 6 人）</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>手動</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>自動取景</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>攝影機控制</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>向上移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>向下移動</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>向左移動</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>向右移動</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>預設位置 %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>長按可儲存位置</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>儲存位置</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>檔案必須小於 2&#xa0;MB。</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>選擇圖片</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>圖片檔案</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>登出</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>電子名片服務 </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>即將推出</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>變更個人檔案圖片</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>請選擇小於 2&#xa0;MB 的 jpg、jpeg 或 png 圖片檔案，上傳並裁剪後作為您的個人檔案圖片。</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>選擇檔案</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>無法讀取圖片。</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>變更個人檔案圖片</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG、JPEG 或 PNG
最大 2&#xa0;MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>名字</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>請輸入名字</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>姓氏</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>請輸入姓氏</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>公司</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>請輸入公司</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>職稱</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>請輸入職稱</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>公司</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>職稱</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>隱藏</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>as in Show Password</comment>
        <extracomment>Name of that button, for screen readers: its text and the name of the field.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <extracomment>Error of a text field, for screen readers.</extracomment>
        <translation>此欄位為必填。</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>重設密碼</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>請在下方輸入您的電子郵件，我們會將重設密碼的連結傳送給您。</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>傳送</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>請輸入電子郵件</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>一般</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>啟動器應用程式清單</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>BYOD 切換</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>還沒有帳戶嗎？</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>建立帳戶</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>格式不正確</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>忘記密碼了嗎？</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>請稍候</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>更新進度</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>WindowManager</name>
    <message>
        <source>Quit</source>
        <extracomment>Entry of the menu of the tray icon: ends the program.</extracomment>
        <translation>結束</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp 仍在執行</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>按一下系統匣中的圖示即可重新開啟視窗。</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>按兩下系統匣中的圖示即可重新開啟視窗。</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>再次啟動 VORNApp 即可開啟視窗。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>無法連線至執行中的 VORNApp</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>介面 (QQmlApplicationEngine) 載入錯誤！</translation>
    </message>
</context>
</TS>
