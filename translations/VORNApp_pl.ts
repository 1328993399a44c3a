<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>Profil: %1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>Inteligentne przełączanie BYOD</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>Mikrofon, kamera i głośniki urządzenia VORN włączają się automatycznie po rozpoczęciu spotkania BYOD.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>Włącz kamerę w dowolnej aplikacji,
aby wprowadzić zmiany</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>Zaktualizuj oprogramowanie układowe K4V Windows do wersji %1, aby korzystać z aplikacji VORN.
Najpierw zaktualizuj oprogramowanie układowe.</translation>
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
        <translation>Połączenie nie powiodło się. Podłącz urządzenie ponownie.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>Łączenie mikrofonu</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>Łączenie głośnika</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>Łączenie kamery</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>Tworzenie konta</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>Masz już konto?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Zaloguj się</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Utwórz konto</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Imię</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Nieprawidłowy format</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nazwisko</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>Do rejestracji użyj służbowego adresu e-mail.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Potwierdź hasło</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>Hasła nie są takie same</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>Bieżąca wersja: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>Nowa wersja: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>Masz najnowszą wersję.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>Warunki użytkowania i polityka prywatności</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>Aktualizuj</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Sprawdź aktualizacje</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>Znaleziono nową wersję (%1)</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>Później</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Aktualizuj</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>Trwa aktualizacja aplikacji VORN do nowej wersji (%1)…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>Aktualizacja aplikacji VORN do nowej wersji (%1) nie powiodła się!</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>Spróbuj ponownie</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>Wybierz aplikacje, które mają być w programie uruchamiającym. Widoczne są tylko zaznaczone.</translation>
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
        <translation>Weryfikacja konta</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>Link weryfikacyjny został wysłany na adres %1
Otwórz wiadomość, aby zweryfikować konto.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Zaloguj się</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>Resetowanie hasła</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>Wiadomość została wysłana na adres %1
Otwórz ją, aby zresetować hasło.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>Minimalizuj</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>Spotkania</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>Strony</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>Cześć!
Witamy w VORN!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>Sterowanie urządzeniem</translation>
    </message>
    <message>
        <source>VORN K4V
Volume</source>
        <translation>VORN K4V
Głośność</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Device Source Mode</source>
        <extracomment>Heading above the two things that the display can show.</extracomment>
        <translation>Tryb źródła urządzenia</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>Tryb inteligentnego połączenia</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>Używaj kamery, mikrofonu i dotyku VORN
jako urządzeń peryferyjnych laptopa</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>Udostępnianie ekranu</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>Pokaż ekran swojego komputera na
ekranie Zoom Room</translation>
    </message>
    <message>
        <source>hh:mm AP</source>
        <extracomment>Form of the time in the way of Qt: HH or hh hours, mm minutes, AP morning or afternoon.</extracomment>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>ddd, MMM dd, yyyy</source>
        <extracomment>Form of the date in the way of Qt: ddd name of the day, MMM name of the month.</extracomment>
        <translation>ddd, d MMM yyyy</translation>
    </message>
</context>
<context>
    <name>Meetings</name>
    <message>
        <source>Connected</source>
        <extracomment>State of the microphone, speaker or camera, for screen readers.</extracomment>
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nie połączono</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Podłącz kabel Type-C do laptopa.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Głośnik</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>Wszystko gotowe, wchodzisz na antenę</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>Rozpocznij</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>Rozpocznij spotkanie</translation>
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
        <translation>Wykryto VORN Bar</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>Konfiguruj</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>Trwa konfigurowanie VORN Bar...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Spotkania</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>Nie można otworzyć okna monitora.</translation>
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
        <translation>Łączenie, proszę czekać.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>Połączenie nie powiodło się, połącz się ponownie.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>Konfiguracja zakończona. Możesz teraz zamknąć tę stronę.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>Ekran wyświetlacza</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>Przekroczono limit czasu logowania.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>Przekroczono limit czasu rejestracji.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>Przekroczono limit czasu resetowania hasła.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>Obraz jest za duży.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>Przekroczono limit czasu aktualizacji profilu.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>Brak identyfikatora użytkownika lub tokenu</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>Przekroczono limit czasu pobierania profilu.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>Wystąpił nieznany błąd.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>Nie udało się połączyć z serwerem.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>Pusta odpowiedź serwera.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>Nieprawidłowa odpowiedź JSON: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>Nieprawidłowy format odpowiedzi.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>Żądanie nie powiodło się z nieznanego powodu.</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>Nie udało się połączyć z serwerem. Serwer proxy wymaga hasła.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>Inteligentne kadrowanie</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>Automatycznie ustawia ostrość na kilka osób i łączy je w jednym kadrze (do 6 osób)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>Ręcznie</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>Autokadrowanie</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Kamera</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Przesuń w górę</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Przesuń w dół</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Przesuń w lewo</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Przesuń w prawo</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>Pozycja %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>Przytrzymaj, aby zapisać pozycję</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>Zapisz pozycję</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>Plik musi być mniejszy niż 2&#xa0;MB.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>Wybierz obraz</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>Plik obrazu</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Wyloguj się</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>Wizytówka cyfrowa: </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>już wkrótce</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Zmień zdjęcie profilowe</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>Wybierz plik jpg, jpeg lub png mniejszy niż 2&#xa0;MB. Zostanie przesłany i przycięty do zdjęcia profilowego.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>Wybierz plik</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>Nie można odczytać obrazu.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Zmień zdjęcie profilowe</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG, JPEG lub PNG.
Maksymalnie 2&#xa0;MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Imię</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>Imię jest wymagane</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nazwisko</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>Nazwisko jest wymagane</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>Firma jest wymagana</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Stanowisko</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>Stanowisko jest wymagane</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Stanowisko</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>Ukryj</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
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
        <translation>To pole jest wymagane.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>Resetowanie hasła</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>Podaj poniżej swój adres e-mail, a wyślemy link do zresetowania hasła.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>Wyślij</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>E-mail jest wymagany</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Lista aplikacji</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Przełączanie BYOD</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>Zaloguj się</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>Nie masz konta?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>Utwórz konto</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Nieprawidłowy format</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>Nie pamiętasz hasła?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>Proszę czekać</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>Postęp aktualizacji</translation>
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
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp nadal działa</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>Kliknij ikonę w zasobniku, aby ponownie otworzyć okno.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>Kliknij dwukrotnie ikonę w zasobniku, aby ponownie otworzyć okno.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>Uruchom ponownie VORNApp, aby otworzyć okno.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>Nie można połączyć się z uruchomioną już aplikacją VORNApp</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>Błąd ładowania interfejsu (QQmlApplicationEngine)!</translation>
    </message>
</context>
</TS>
