<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>%1 のプロフィール</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>プロフィール</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>スマート BYOD 切り替え</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>BYOD 会議を開始すると、VORN デバイスのマイク、カメラ、スピーカーが自動的に有効になります。</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>調整するには、いずれかのアプリで
カメラをオンにしてください</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>VORN アプリを使用するには、K4V Windows ファームウェアをバージョン %1 に更新する必要があります。
先にファームウェアを更新してください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ConnectionStaging</name>
    <message>
        <source>Connection failed. Please reconnect the device.</source>
        <translation>接続に失敗しました。デバイスを接続し直してください。</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>マイクを接続しています</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>スピーカーを接続しています</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>カメラを接続しています</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>アカウントの作成</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>アカウントをお持ちですか?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>アカウントを作成</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>名</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>形式が正しくありません</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>姓</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>登録には仕事用のメールアドレスを使用してください。</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>パスワードの確認</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>パスワードが一致しません</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>現在のバージョン: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>新しいバージョン: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>最新の状態です。</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>利用規約とプライバシーポリシー</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>更新を確認</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>新しいバージョン (%1) が見つかりました</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>後で</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>今すぐ更新</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>VORN アプリを新しいバージョン (%1) に更新しています…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>VORN アプリを新しいバージョン (%1) に更新できませんでした。</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>更新を再試行</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>ランチャーに表示するアプリを選択してください。選択したアプリだけが表示されます。</translation>
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
        <translation>アカウントの確認</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>%1 に確認用のリンクを送信しました。
メールを開いてアカウントを確認してください。</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>パスワードの再設定</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>%1 にメールを送信しました。
メールを開いてパスワードを再設定してください。</translation>
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
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>会議</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>カメラ操作</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>こんにちは!
VORN へようこそ!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>デバイスの操作</translation>
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
        <translation>デバイスのソースモード</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>スマート接続モード</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>VORN のカメラ、マイク、タッチを
ノート PC の周辺機器として使用します</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>画面共有</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>デスクトップの画面を
Zoom Room の画面にミラーリングします</translation>
    </message>
    <message>
        <source>hh:mm AP</source>
        <extracomment>Form of the time in the way of Qt: HH or hh hours, mm minutes, AP morning or afternoon.</extracomment>
        <translation>H:mm</translation>
    </message>
    <message>
        <source>ddd, MMM dd, yyyy</source>
        <extracomment>Form of the date in the way of Qt: ddd name of the day, MMM name of the month.</extracomment>
        <translation>yyyy年M月d日 (ddd)</translation>
    </message>
</context>
<context>
    <name>Meetings</name>
    <message>
        <source>Connected</source>
        <extracomment>State of the microphone, speaker or camera, for screen readers.</extracomment>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Type-C ケーブルをノート PC に接続してください。</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>スピーカー</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>準備が整いました</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>会議を開始</translation>
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
        <translation>VORN Bar が見つかりました</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>セットアップを開始</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>VORN Bar をセットアップしています...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>会議</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>モニターウィンドウを開けません。</translation>
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
        <translation>接続しています。お待ちください。</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>接続に失敗しました。再接続してください。</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>セットアップが完了しました。このページを閉じてかまいません。</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>ディスプレイの画面</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>サインインの要求がタイムアウトしました。</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>登録の要求がタイムアウトしました。</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>パスワード再設定の要求がタイムアウトしました。</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>画像が大きすぎます。</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>プロフィール更新の要求がタイムアウトしました。</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>ユーザー ID またはトークンがありません</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>プロフィールの要求がタイムアウトしました。</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>不明なエラーが発生しました。</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>サーバーへの接続に失敗しました。</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>サーバーからの応答が空です。</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>無効な JSON 応答: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>応答の形式が無効です。</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>不明な理由により要求が失敗しました。</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>サーバーへの接続に失敗しました。プロキシがパスワードを要求しています。</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>スマートフレーミング</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>複数の人物に自動でフォーカスし、1 つのフレームにまとめます (最大 6 人)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>手動</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>自動フレーミング</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>カメラ操作</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>左へ移動</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>右へ移動</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>位置 %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>長押しすると位置を保存できます</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>位置を保存</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>ファイルは 2&#xa0;MB 未満である必要があります。</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>画像の選択</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>画像ファイル</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>サインアウト</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>デジタル名刺サービス </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>近日公開</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>プロフィール画像の変更</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>2&#xa0;MB 未満の jpg、jpeg、png 画像ファイルを選択してください。アップロードして切り抜き、プロフィール画像として使用します。</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>ファイルを選択</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>画像を読み込めません。</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>プロフィール画像の変更</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG、JPEG、PNG
最大 2&#xa0;MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>名</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>名は必須です</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>姓</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>姓は必須です</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>会社</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>会社は必須です</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>役職</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>役職は必須です</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>編集</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>会社</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>役職</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>as in Show Password</comment>
        <extracomment>Name of that button, for screen readers: its text and the name of the field.</extracomment>
        <translation>%2: %1</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <extracomment>Error of a text field, for screen readers.</extracomment>
        <translation>この項目は必須です。</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>パスワードの再設定</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>メールアドレスを入力してください。パスワードを再設定するためのリンクをお送りします。</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>送信</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>メールアドレスは必須です</translation>
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
        <translation>全般</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>ランチャーのアプリ一覧</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>BYOD 切り替え</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>アカウントをお持ちでない場合は</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>アカウントを作成</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>形式が正しくありません</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>パスワードをお忘れですか?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>お待ちください</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>更新の進行状況</translation>
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
        <translation>終了</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp は引き続き実行中です</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>ウィンドウを再び開くには、トレイのアイコンをクリックしてください。</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>ウィンドウを再び開くには、トレイのアイコンをダブルクリックしてください。</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>ウィンドウを開くには、VORNApp をもう一度起動してください。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>実行中の VORNApp に接続できません</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>画面 (QQmlApplicationEngine) の読み込みエラーです。</translation>
    </message>
</context>
</TS>
