<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>%1의 프로필</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>프로필</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>스마트 BYOD 전환</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>BYOD 회의를 시작하면 VORN 장치의 마이크, 카메라, 스피커가 자동으로 켜집니다.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>조정하려면 아무 앱에서나
카메라를 켜 주세요</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>VORN 앱을 사용하려면 K4V Windows 펌웨어를 버전 %1(으)로 업데이트하세요.
먼저 펌웨어를 업데이트해 주세요.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>ConnectionStaging</name>
    <message>
        <source>Connection failed. Please reconnect the device.</source>
        <translation>연결하지 못했습니다. 장치를 다시 연결해 주세요.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>마이크 연결 중</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>스피커 연결 중</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>카메라 연결 중</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>계정 만들기</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>이미 계정이 있으신가요?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>계정 만들기</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>형식이 올바르지 않습니다</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>성</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>회사 이메일 주소로 등록해 주세요.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>비밀번호</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>비밀번호 확인</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>비밀번호가 일치하지 않습니다</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>현재 버전: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>새 버전: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>최신 버전입니다.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>이용 약관 및 개인정보 처리방침</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>새 버전(%1)을 찾았습니다</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>지금 업데이트</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>VORN 앱을 새 버전(%1)으로 업데이트하는 중…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>VORN 앱을 새 버전(%1)으로 업데이트하지 못했습니다!</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>업데이트 다시 시도</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>런처에 표시할 앱을 선택하세요. 선택한 앱만 표시됩니다.</translation>
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
        <translation>계정 인증</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>%1(으)로 인증 링크를 보냈습니다.
이메일을 확인하여 계정을 인증해 주세요.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>비밀번호 재설정</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>%1(으)로 이메일을 보냈습니다.
이메일을 확인하여 비밀번호를 재설정해 주세요.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>회의</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>카메라 제어</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>페이지</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>안녕하세요!
VORN에 오신 것을 환영합니다!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>장치 제어</translation>
    </message>
    <message>
        <source>VORN K4V
Volume</source>
        <translation>VORN K4V
음량</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Device Source Mode</source>
        <extracomment>Heading above the two things that the display can show.</extracomment>
        <translation>장치 소스 모드</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>스마트 연결 모드</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>VORN의 카메라, 마이크, 터치를
노트북의 주변 장치로 사용합니다</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>화면 공유</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>데스크톱 화면을
Zoom Room 화면에 미러링합니다</translation>
    </message>
    <message>
        <source>hh:mm AP</source>
        <extracomment>Form of the time in the way of Qt: HH or hh hours, mm minutes, AP morning or afternoon.</extracomment>
        <translation>AP h:mm</translation>
    </message>
    <message>
        <source>ddd, MMM dd, yyyy</source>
        <extracomment>Form of the date in the way of Qt: ddd name of the day, MMM name of the month.</extracomment>
        <translation>yyyy년 M월 d일 (ddd)</translation>
    </message>
</context>
<context>
    <name>Meetings</name>
    <message>
        <source>Connected</source>
        <extracomment>State of the microphone, speaker or camera, for screen readers.</extracomment>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Type-C 케이블을 노트북에 연결하세요.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>마이크</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>스피커</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>방송 준비가 끝났습니다</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>시작</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>회의를 시작하세요</translation>
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
        <translation>VORN Bar를 찾았습니다</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>설정 시작</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>VORN Bar를 설정하는 중...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>회의</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>모니터 창을 열 수 없습니다.</translation>
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
        <translation>연결하는 중입니다. 잠시 기다려 주세요.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>연결하지 못했습니다. 다시 연결해 주세요.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>설정이 완료되었습니다. 이제 이 페이지를 닫아도 됩니다.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>디스플레이 화면</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>로그인 요청 시간이 초과되었습니다.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>등록 요청 시간이 초과되었습니다.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>비밀번호 재설정 요청 시간이 초과되었습니다.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>사진이 너무 큽니다.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>프로필 업데이트 요청 시간이 초과되었습니다.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>사용자 ID 또는 토큰이 없습니다</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>프로필 요청 시간이 초과되었습니다.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>알 수 없는 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>서버에 연결하지 못했습니다.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>서버의 응답이 비어 있습니다.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>잘못된 JSON 응답: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>응답 형식이 잘못되었습니다.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>알 수 없는 이유로 요청이 실패했습니다.</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>서버에 연결하지 못했습니다. 프록시에 비밀번호가 필요합니다.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>스마트 프레이밍</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>여러 사람에게 자동으로 초점을 맞추고 한 프레임에 담습니다(최대 6명)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>수동</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>자동 프레이밍</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>카메라 제어</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>위로 이동</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>아래로 이동</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>왼쪽으로 이동</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>오른쪽으로 이동</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>위치 %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>길게 누르면 위치가 저장됩니다</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>위치 저장</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>파일은 2MB보다 작아야 합니다.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>사진 선택</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>사진 파일</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>로그아웃</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>디지털 명함 서비스 </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>출시 예정</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>프로필 사진 변경</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>2MB보다 작은 jpg, jpeg 또는 png 사진 파일을 선택하세요. 업로드하고 잘라서 프로필 사진으로 사용합니다.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>파일 선택</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>사진을 읽을 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>프로필 사진 변경</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG, JPEG 또는 PNG
최대 2MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>이름은 필수입니다</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>성</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>성은 필수입니다</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>회사</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>회사는 필수입니다</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>직함</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>직함은 필수입니다</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>편집</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>회사</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>직함</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>숨기기</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>표시</translation>
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
        <translation>이 필드는 필수입니다.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>비밀번호 재설정</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>아래에 이메일을 입력하시면 비밀번호를 재설정할 수 있는 링크를 보내 드립니다.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>보내기</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>이메일은 필수입니다</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>일반</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>런처 앱 목록</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>BYOD 전환</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>계정이 없으신가요?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>계정 만들기</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>형식이 올바르지 않습니다</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>비밀번호</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>비밀번호를 잊으셨나요?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>잠시 기다려 주세요</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>업데이트 진행률</translation>
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
        <translation>종료</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp이 계속 실행 중입니다</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>창을 다시 열려면 트레이의 아이콘을 클릭하세요.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>창을 다시 열려면 트레이의 아이콘을 두 번 클릭하세요.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>창을 열려면 VORNApp을 다시 시작하세요.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>오류</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>실행 중인 VORNApp에 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>화면(QQmlApplicationEngine)을 불러오지 못했습니다!</translation>
    </message>
</context>
</TS>
