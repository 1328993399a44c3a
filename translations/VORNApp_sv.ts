<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>Profil för %1</translation>
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
        <translation>Smart BYOD-växling</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>VORN-enhetens mikrofon, kamera och högtalare aktiveras automatiskt när ett BYOD-möte startar.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>Slå på kameran i valfri app
för att göra justeringar</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>Uppdatera K4V Windows-firmware till version %1 för att använda VORN-appen.
Uppdatera firmware först.</translation>
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
        <translation>Anslutningen misslyckades. Anslut enheten igen.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>Ansluter mikrofonen</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>Ansluter högtalaren</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>Ansluter kameran</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>Skapa ett konto</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>Har du redan ett konto?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Logga in</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Skapa konto</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Förnamn</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Formatet är felaktigt</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Efternamn</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>Använd en e-postadress från arbetet för att registrera dig.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Bekräfta lösenord</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>Lösenorden stämmer inte överens</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>Nuvarande version: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>Ny version: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>Du har den senaste versionen.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>Användarvillkor och integritetspolicy</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Sök uppdatering</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>Ny version (%1) hittades</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>Senare</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Uppdatera nu</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>VORN-appen uppdateras till den nya versionen (%1)…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>Uppdateringen av VORN-appen till den nya versionen (%1) misslyckades!</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>Försök igen</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>Välj vilka appar som visas i startlistan. Bara markerade appar visas.</translation>
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
        <translation>Verifiera kontot</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>Vi har skickat en verifieringslänk till %1
Öppna mejlet för att verifiera ditt konto.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Logga in</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>Återställ lösenord</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>Vi har skickat ett mejl till %1
Öppna mejlet för att återställa ditt lösenord.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>Minimera</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>Möten</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Kamerastyrning</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>Sidor</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>Hej!
Välkommen till VORN!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>Enhetsstyrning</translation>
    </message>
    <message>
        <source>VORN K4V
Volume</source>
        <translation>VORN K4V
Volym</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Device Source Mode</source>
        <extracomment>Heading above the two things that the display can show.</extracomment>
        <translation>Enhetens källäge</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>Smart anslutningsläge</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>Använd VORN:s kamera, mikrofon och pekskärm
som tillbehör till datorn</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>Skärmdelning</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>Spegla skärmen från din dator till
Zoom Room-skärmen</translation>
    </message>
    <message>
        <source>hh:mm AP</source>
        <extracomment>Form of the time in the way of Qt: HH or hh hours, mm minutes, AP morning or afternoon.</extracomment>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>ddd, MMM dd, yyyy</source>
        <extracomment>Form of the date in the way of Qt: ddd name of the day, MMM name of the month.</extracomment>
        <translation>ddd d MMM yyyy</translation>
    </message>
</context>
<context>
    <name>Meetings</name>
    <message>
        <source>Connected</source>
        <extracomment>State of the microphone, speaker or camera, for screen readers.</extracomment>
        <translation>Ansluten</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Inte ansluten</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Anslut Type-C-kabeln till din dator.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Högtalare</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>Du är redo att sända</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>Kör</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>Starta ditt möte</translation>
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
        <translation>VORN Bar hittades</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>Konfigurera</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>VORN Bar konfigureras...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Möten</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>Monitorfönstret kan inte öppnas.</translation>
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
        <translation>Ansluter, vänta.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>Anslutningen misslyckades, anslut igen.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>Konfigurationen är klar. Du kan nu stänga den här sidan.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>Displayens skärm</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>Inloggningen tog för lång tid.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>Registreringen tog för lång tid.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>Återställningen av lösenordet tog för lång tid.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>Bilden är för stor.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>Uppdateringen av profilen tog för lång tid.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>Användar-id eller token saknas</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>Hämtningen av profilen tog för lång tid.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>Ett okänt fel har inträffat.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>Det gick inte att ansluta till servern.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>Tomt svar från servern.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>Ogiltigt JSON-svar: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>Ogiltigt svarsformat.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>Begäran misslyckades av okänd anledning.</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>Det gick inte att ansluta till servern. Proxyn kräver ett lösenord.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>Smart inramning</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>Fokuserar automatiskt på flera personer och samlar dem i en bild (upp till 6 personer)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>Autoinramning</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Kamerastyrning</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>Zooma in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Flytta uppåt</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Flytta nedåt</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Flytta åt vänster</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Flytta åt höger</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>Läge %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>Håll intryckt för att spara läget</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>Spara läget</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>Filen måste vara mindre än 2&#xa0;MB.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>Välj bild</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>Bildfil</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Logga ut</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>Digitalt visitkort: </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>kommer snart</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Byt profilbild</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>Välj en jpg-, jpeg- eller png-fil som är mindre än 2&#xa0;MB. Den laddas upp och beskärs till din profilbild.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>Välj fil</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>Bilden kan inte läsas.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Byt profilbild</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG, JPEG eller PNG.
Högst 2&#xa0;MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Förnamn</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>Förnamn krävs</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Efternamn</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>Efternamn krävs</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Företag</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>Företag krävs</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Befattning</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>Befattning krävs</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Företag</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Befattning</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>Dölj</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Visa</translation>
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
        <translation>Fältet måste fyllas i.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>Återställ lösenord</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>Ange din e-postadress nedan så skickar vi en länk för att återställa lösenordet.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>Skicka</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>E-post krävs</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Appar i startlistan</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>BYOD-växling</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>Logga in</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>Har du inget konto?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>Skapa ett konto</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Formatet är felaktigt</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>Glömt lösenordet?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>Vänta</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>Uppdateringens förlopp</translation>
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
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp körs fortfarande</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>Klicka på ikonen i systemfältet för att öppna fönstret igen.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>Dubbelklicka på ikonen i systemfältet för att öppna fönstret igen.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>Starta VORNApp igen för att öppna fönstret.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>Det går inte att ansluta till VORNApp som redan körs</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>Gränssnittet (QQmlApplicationEngine) kunde inte läsas in!</translation>
    </message>
</context>
</TS>
