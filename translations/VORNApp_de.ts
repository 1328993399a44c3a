<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>Profil von %1</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>Intelligenter BYOD-Wechsel</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>Mikrofon, Kamera und Lautsprecher des VORN-Geräts werden beim Start eines BYOD-Meetings automatisch aktiviert.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>Schalten Sie Ihre Kamera in einer beliebigen App ein,
um Anpassungen vorzunehmen</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>Aktualisieren Sie die K4V-Windows-Firmware auf Version %1, um die VORN-App zu verwenden.
Bitte aktualisieren Sie zuerst die Firmware.</translation>
    </message>
</context>
<context>
    <name>ConnectionStaging</name>
    <message>
        <source>Connection failed. Please reconnect the device.</source>
        <translation>Verbindung fehlgeschlagen. Bitte schließen Sie das Gerät erneut an.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>Mikrofon wird verbunden</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>Lautsprecher wird verbunden</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>Kamera wird verbunden</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>Konto erstellen</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>Sie haben bereits ein Konto?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Konto erstellen</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Das Format ist ungültig</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>Bitte registrieren Sie sich mit einer geschäftlichen E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Passwort bestätigen</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>Die Passwörter stimmen nicht überein</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>Sie sind auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>Nutzungsbedingungen und Datenschutzerklärung</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>Später</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Current Version:  %1</source>
        <translation>Aktuelle Version: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>Neue Version: %1</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>Neue Version (%1) gefunden</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>Ihre VORN-App wird auf die neue Version (%1) aktualisiert…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>Die Aktualisierung Ihrer VORN-App auf die neue Version (%1) ist fehlgeschlagen!</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>Wählen Sie die Apps für Ihren Launcher aus. Nur ausgewählte Apps werden angezeigt.</translation>
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
        <translation>Konto bestätigen</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>Passwort zurücksetzen</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>Wir haben einen Bestätigungslink an %1 gesendet.
Bitte bestätigen Sie Ihr Konto über den Link in der E-Mail.</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>Wir haben eine E-Mail an %1 gesendet.
Bitte setzen Sie Ihr Passwort über den Link in der E-Mail zurück.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>Meetings</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Kamerasteuerung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>Hallo!
Willkommen bei VORN!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>Gerätesteuerung</translation>
    </message>
    <message>
        <source>VORN K4V
Volume</source>
        <translation>VORN K4V
Lautstärke</translation>
    </message>
    <message>
        <source>Device Source Mode</source>
        <extracomment>Heading above the two things that the display can show.</extracomment>
        <translation>Quellmodus des Geräts</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>Smart-Connect-Modus</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>Kamera, Mikrofon und Touch von VORN
als Peripherie des Laptops nutzen</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>Bildschirmfreigabe</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>Den Bildschirm Ihres Desktops auf den
Zoom-Room-Bildschirm spiegeln</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>hh:mm AP</source>
        <extracomment>Form of the time in the way of Qt: HH or hh hours, mm minutes, AP morning or afternoon.</extracomment>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>ddd, MMM dd, yyyy</source>
        <extracomment>Form of the date in the way of Qt: ddd name of the day, MMM name of the month.</extracomment>
        <translation>ddd, dd. MMM yyyy</translation>
    </message>
</context>
<context>
    <name>Meetings</name>
    <message>
        <source>Connected</source>
        <extracomment>State of the microphone, speaker or camera, for screen readers.</extracomment>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Schließen Sie das Type-C-Kabel an Ihren Laptop an.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Lautsprecher</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>Sie sind bereit für die Übertragung</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>Los</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>Starten Sie Ihr Meeting</translation>
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
        <translation>VORN Bar erkannt</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>VORN Bar wird eingerichtet...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Meetings</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>Das Monitorfenster kann nicht geöffnet werden.</translation>
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
        <translation>Verbindung wird hergestellt, bitte warten.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>Verbindung fehlgeschlagen, bitte erneut verbinden.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>Einrichtung abgeschlossen. Sie können diese Seite jetzt schließen.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>Bildschirm des Displays</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>Zeitüberschreitung bei der Anmeldung.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>Zeitüberschreitung bei der Registrierung.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>Zeitüberschreitung beim Zurücksetzen des Passworts.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>Das Bild ist zu groß.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>Zeitüberschreitung beim Aktualisieren des Profils.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>Benutzer-ID oder Token fehlt</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>Zeitüberschreitung beim Abrufen des Profils.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>Ein unbekannter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>Die Verbindung zum Server ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>Leere Antwort vom Server.</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>Ungültiges Antwortformat.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>Die Anfrage ist aus unbekanntem Grund fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>Ungültige JSON-Antwort: %1</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>Die Verbindung zum Server ist fehlgeschlagen. Der Proxy verlangt ein Passwort.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>Smart-Framing</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>Fokussiert automatisch auf mehrere Personen und fasst sie in einem Bild zusammen (bis zu 6 Personen)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>Auto-Framing</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Kamerasteuerung</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben bewegen</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten bewegen</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Nach links bewegen</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Nach rechts bewegen</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>Gedrückt halten, um die Position zu speichern</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>Position %1</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>Die Datei muss kleiner als 2&#xa0;MB sein.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>Bild auswählen</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>Bilddatei</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>Digitale Visitenkarte </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>in Kürze verfügbar</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Profilbild ändern</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>Wählen Sie eine jpg-, jpeg- oder png-Datei unter 2&#xa0;MB aus. Sie wird hochgeladen und als Ihr Profilbild zugeschnitten.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>Das Bild kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Profilbild ändern</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG, JPEG oder PNG.
Maximal 2&#xa0;MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>Vorname ist erforderlich</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>Nachname ist erforderlich</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>Firma ist erforderlich</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Berufsbezeichnung</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>Berufsbezeichnung ist erforderlich</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Berufsbezeichnung</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>Verbergen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
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
        <translation>Dieses Feld ist erforderlich.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>Passwort zurücksetzen</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>Geben Sie unten Ihre E-Mail-Adresse ein. Wir senden Ihnen einen Link zum Zurücksetzen Ihres Passworts.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>E-Mail ist erforderlich</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Apps im Launcher</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>BYOD-Wechsel</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>Sie haben noch kein Konto?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>Konto erstellen</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Das Format ist ungültig</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>Passwort vergessen?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>Bitte warten</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>Fortschritt der Aktualisierung</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>WindowManager</name>
    <message>
        <source>Quit</source>
        <extracomment>Entry of the menu of the tray icon: ends the program.</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp läuft weiter</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>Klicken Sie auf das Symbol im Infobereich, um das Fenster wieder zu öffnen.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>Doppelklicken Sie auf das Symbol im Infobereich, um das Fenster wieder zu öffnen.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>Starten Sie VORNApp erneut, um das Fenster zu öffnen.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>Die bereits laufende VORNApp ist nicht erreichbar</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>Die Oberfläche (QQmlApplicationEngine) konnte nicht geladen werden!</translation>
    </message>
</context>
</TS>
