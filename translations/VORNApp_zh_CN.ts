<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>%1 的个人资料</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>个人资料</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>智能 BYOD 切换</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>开始 BYOD 会议时，VORN 设备的麦克风、摄像头和扬声器将自动启用。</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>请在任意应用中打开摄像头
以进行调整</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>请将 K4V Windows 固件更新到版本 %1 以使用 VORN 应用。
请先更新固件。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ConnectionStaging</name>
    <message>
        <source>Connection failed. Please reconnect the device.</source>
        <translation>连接失败。请重新连接设备。</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>正在连接麦克风</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>正在连接扬声器</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>正在连接摄像头</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>创建账户</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>已有账户？</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>创建账户</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>名字</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>格式不正确</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>姓氏</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>电子邮箱</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>请使用工作邮箱注册。</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>确认密码</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>两次输入的密码不一致</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>当前版本：%1</translation>
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
        <translation>使用条款和隐私政策</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>发现新版本 (%1)</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>立即更新</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>正在将 VORN 应用更新到新版本 (%1)…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>将 VORN 应用更新到新版本 (%1) 失败！</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>重试更新</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>选择启动器中显示的应用。仅显示已勾选的应用。</translation>
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
        <translation>验证账户</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>我们已将验证链接发送到 %1
请查看邮件以验证您的账户。</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>重置密码</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>我们已将邮件发送到 %1
请查看邮件以重置您的密码。</translation>
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
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>会议</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>摄像头控制</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>您好！
欢迎使用 VORN！</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>设备控制</translation>
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
        <translation>设备信号源模式</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>智能连接模式</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>将 VORN 的摄像头、麦克风和触控
用作笔记本电脑的外设</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>屏幕共享</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>将桌面屏幕镜像到
Zoom Room 屏幕</translation>
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
        <translation>已连接</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>请将 Type-C 线缆插入您的笔记本电脑。</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>扬声器</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像头</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>一切就绪，可以开始</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>开始</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>启动会议</translation>
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
        <translation>检测到 VORN Bar</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>开始设置</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>正在设置 VORN Bar...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>会议</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>无法打开监视窗口。</translation>
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
        <translation>正在连接，请稍候。</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>连接失败，请重新连接。</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>设置完成。您现在可以关闭此页面。</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>显示屏画面</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>登录请求超时。</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>注册请求超时。</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>重置密码请求超时。</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>图片过大。</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>更新个人资料请求超时。</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>缺少用户 ID 或令牌</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>个人资料请求超时。</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>发生未知错误。</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>连接服务器失败。</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>服务器响应为空。</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>无效的 JSON 响应：%1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>响应格式无效。</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>请求因未知原因失败。</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>连接服务器失败。代理要求输入密码。</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>智能取景</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>自动对焦多人并合并到一个画面中（最多 6 人）</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>手动</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>自动取景</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>摄像头控制</translation>
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
        <translation>缩小</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>向上移动</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>向下移动</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>向左移动</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>向右移动</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>预置位 %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>长按可保存位置</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>保存位置</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>文件必须小于 2&#xa0;MB。</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>选择图片</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>图片文件</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>退出登录</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>电子名片服务 </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>即将推出</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>更改头像</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>请选择小于 2&#xa0;MB 的 jpg、jpeg 或 png 图片文件，上传并裁剪后用作您的头像。</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>无法读取图片。</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>更改头像</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG、JPEG 或 PNG
最大 2&#xa0;MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>电子邮箱</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>名字</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>请输入名字</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>姓氏</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>请输入姓氏</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>公司</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>请输入公司</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>职位</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>请输入职位</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>电子邮箱</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>公司</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>职位</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
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
        <translation>此字段为必填项。</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>重置密码</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>请在下方输入您的电子邮箱，我们将向您发送重置密码的链接。</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>发送</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>电子邮箱</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>请输入电子邮箱</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>常规</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>启动器应用列表</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>BYOD 切换</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>没有账户？</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>创建账户</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>电子邮箱</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>格式不正确</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>忘记密码？</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>请稍候</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>更新进度</translation>
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
        <translation>退出</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp 仍在运行</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>单击托盘中的图标可重新打开窗口。</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>双击托盘中的图标可重新打开窗口。</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>再次启动 VORNApp 即可打开窗口。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>错误</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>无法连接到正在运行的 VORNApp</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>界面 (QQmlApplicationEngine) 加载错误！</translation>
    </message>
</context>
</TS>
