<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>الملف الشخصي لـ %1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>الملف الشخصي</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>التبديل الذكي إلى BYOD</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>يتم تفعيل ميكروفون جهاز VORN وكاميرته ومكبرات صوته تلقائيًا عند بدء اجتماع BYOD.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>يُرجى تشغيل الكاميرا في أي تطبيق
لإجراء التعديلات</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>حدِّث البرنامج الثابت K4V Windows إلى الإصدار %1 لاستخدام تطبيق VORN.
يُرجى تحديث البرنامج الثابت أولًا.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>ConnectionStaging</name>
    <message>
        <source>Connection failed. Please reconnect the device.</source>
        <translation>فشل الاتصال. يُرجى إعادة توصيل الجهاز.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>جارٍ توصيل الميكروفون</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>جارٍ توصيل مكبر الصوت</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>جارٍ توصيل الكاميرا</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>إنشاء حساب</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>هل لديك حساب بالفعل؟</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>إنشاء الحساب</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>الاسم الأول</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>التنسيق غير صحيح</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>اسم العائلة</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>يُرجى استخدام بريد إلكتروني للعمل عند التسجيل.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>تأكيد كلمة المرور</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>كلمتا المرور غير متطابقتين</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>الإصدار الحالي: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>الإصدار الجديد: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>لديك أحدث إصدار.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>شروط الاستخدام وسياسة الخصوصية</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>البحث عن تحديث</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>تم العثور على إصدار جديد (%1)</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>تحديث الآن</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>جارٍ تحديث تطبيق VORN إلى الإصدار الجديد (%1)…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>فشل تحديث تطبيق VORN إلى الإصدار الجديد (%1)!</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>إعادة المحاولة</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>اختر التطبيقات التي تظهر في المشغِّل. ستظهر التطبيقات المحددة فقط.</translation>
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
        <translation>التحقق من الحساب</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>أرسلنا رابط التحقق إلى %1
يُرجى مراجعة البريد الإلكتروني للتحقق من حسابك.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>إعادة تعيين كلمة المرور</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>أرسلنا رسالة إلى %1
يُرجى مراجعة البريد الإلكتروني لإعادة تعيين كلمة المرور.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>الاجتماعات</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>الكاميرا</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>الصفحات</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>مرحبًا!
أهلًا بك في VORN!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>التحكم في الجهاز</translation>
    </message>
    <message>
        <source>VORN K4V
Volume</source>
        <translation>VORN K4V
مستوى الصوت</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Device Source Mode</source>
        <extracomment>Heading above the two things that the display can show.</extracomment>
        <translation>وضع مصدر الجهاز</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>وضع الاتصال الذكي</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>استخدم كاميرا VORN وميكروفونه وشاشته اللمسية
كأجهزة طرفية للكمبيوتر المحمول</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>مشاركة الشاشة</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>اعرض شاشة سطح المكتب على
شاشة Zoom Room</translation>
    </message>
    <message>
        <source>hh:mm AP</source>
        <extracomment>Form of the time in the way of Qt: HH or hh hours, mm minutes, AP morning or afternoon.</extracomment>
        <translation>h:mm AP</translation>
    </message>
    <message>
        <source>ddd, MMM dd, yyyy</source>
        <extracomment>Form of the date in the way of Qt: ddd name of the day, MMM name of the month.</extracomment>
        <translation>ddd، d MMM yyyy</translation>
    </message>
</context>
<context>
    <name>Meetings</name>
    <message>
        <source>Connected</source>
        <extracomment>State of the microphone, speaker or camera, for screen readers.</extracomment>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>وصِّل كابل Type-C بالكمبيوتر المحمول.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>الميكروفون</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>مكبر الصوت</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>الكاميرا</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>أنت جاهز للبث</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>ابدأ</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>ابدأ اجتماعك</translation>
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
        <translation>تم اكتشاف VORN Bar</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>بدء الإعداد</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>جارٍ إعداد VORN Bar...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>الاجتماعات</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>يتعذر فتح نافذة العرض.</translation>
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
        <translation>جارٍ الاتصال، يُرجى الانتظار.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>فشل الاتصال، يُرجى إعادة الاتصال.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>اكتمل الإعداد. يمكنك الآن إغلاق هذه الصفحة.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>شاشة العرض</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>انتهت مهلة طلب تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>انتهت مهلة طلب التسجيل.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>انتهت مهلة طلب إعادة تعيين كلمة المرور.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>الصورة كبيرة جدًا.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>انتهت مهلة طلب تحديث الملف الشخصي.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>معرِّف المستخدم أو الرمز المميز مفقود</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>انتهت مهلة طلب الملف الشخصي.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>حدث خطأ غير معروف.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>فشل الاتصال بالخادم.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>استجابة فارغة من الخادم.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>استجابة JSON غير صالحة: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>تنسيق الاستجابة غير صالح.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>فشل الطلب لسبب غير معروف.</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>فشل الاتصال بالخادم. يطلب خادم الوكيل كلمة مرور.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>التأطير الذكي</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>تركيز تلقائي على عدة أشخاص وجمعهم في إطار واحد (حتى 6 أشخاص)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>يدوي</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>تأطير تلقائي</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>الكاميرا</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>تحريك لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>تحريك لأسفل</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>تحريك لليسار</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>تحريك لليمين</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>الموضع %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>اضغط مطولًا لحفظ الموضع</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>حفظ الموضع</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>يجب أن يكون حجم الملف أقل من 2 ميغابايت.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>اختيار صورة</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>ملف صورة</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>تسجيل الخروج</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>خدمة بطاقة العمل الرقمية: </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>قريبًا</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>تغيير صورة الملف الشخصي</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>اختر ملف صورة jpg أو jpeg أو png بحجم أقل من 2 ميغابايت لرفعه واقتصاصه ليكون صورة ملفك الشخصي.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>اختيار ملف</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>يتعذر قراءة الصورة.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>تغيير صورة الملف الشخصي</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG أو JPEG أو PNG
بحد أقصى 2 ميغابايت</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>الاسم الأول</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>الاسم الأول مطلوب</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>اسم العائلة</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>اسم العائلة مطلوب</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>الشركة</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>الشركة مطلوبة</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>المسمى الوظيفي</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>المسمى الوظيفي مطلوب</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>تعديل</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>الشركة</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>المسمى الوظيفي</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>as in Show Password</comment>
        <extracomment>Name of that button, for screen readers: its text and the name of the field.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <extracomment>Error of a text field, for screen readers.</extracomment>
        <translation>هذا الحقل مطلوب.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>إعادة تعيين كلمة المرور</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>أدخل بريدك الإلكتروني أدناه وسنرسل إليك رابطًا لإعادة تعيين كلمة المرور.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>البريد الإلكتروني مطلوب</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>عام</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>تطبيقات المشغِّل</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>تبديل BYOD</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>ليس لديك حساب؟</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>إنشاء حساب</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>التنسيق غير صحيح</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>هل نسيت كلمة المرور؟</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>يُرجى الانتظار</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>تقدُّم التحديث</translation>
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
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>لا يزال VORNApp قيد التشغيل</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>انقر فوق أيقونته في علبة النظام لفتح النافذة مرة أخرى.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>انقر نقرًا مزدوجًا فوق أيقونته في علبة النظام لفتح النافذة مرة أخرى.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>شغّل VORNApp مرة أخرى لفتح النافذة.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>يتعذر الاتصال بتطبيق VORNApp قيد التشغيل</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>حدث خطأ في تحميل الواجهة (QQmlApplicationEngine)!</translation>
    </message>
</context>
</TS>
