<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>Profiel van %1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profiel</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>Slimme BYOD-wissel</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>De microfoon, camera en luidsprekers van het VORN-apparaat worden automatisch geactiveerd zodra een BYOD-vergadering begint.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>Schakel uw camera in een willekeurige app in
om aanpassingen te doen</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>Werk de K4V Windows-firmware bij naar versie %1 om de VORN-app te gebruiken.
Werk eerst de firmware bij.</translation>
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
        <translation>Verbinding mislukt. Sluit het apparaat opnieuw aan.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>Microfoon wordt verbonden</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>Luidspreker wordt verbonden</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>Camera wordt verbonden</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>Account maken</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>Hebt u al een account?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Aanmelden</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Account maken</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Voornaam</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>De notatie is onjuist</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Achternaam</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>Registreer u met een zakelijk e-mailadres.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Wachtwoord bevestigen</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>De wachtwoorden komen niet overeen</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>Huidige versie: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>Nieuwe versie: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>U bent up-to-date.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>Gebruiksvoorwaarden en privacybeleid</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>Bijwerken</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Zoeken naar update</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>Nieuwe versie (%1) gevonden</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>Later</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Nu bijwerken</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>Uw VORN-app wordt bijgewerkt naar de nieuwe versie (%1)…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>Het bijwerken van uw VORN-app naar de nieuwe versie (%1) is mislukt!</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>Opnieuw proberen</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>Kies welke apps in uw starter staan. Alleen aangevinkte apps worden getoond.</translation>
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
        <translation>Account verifiëren</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>We hebben een verificatielink gestuurd naar %1
Open de e-mail om uw account te verifiëren.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Aanmelden</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>Wachtwoord herstellen</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>We hebben een e-mail gestuurd naar %1
Open de e-mail om uw wachtwoord te herstellen.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>Vergaderingen</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>Pagina’s</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>Hallo!
Welkom bij VORN!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>Apparaatbediening</translation>
    </message>
    <message>
        <source>VORN K4V
Volume</source>
        <translation>VORN K4V
Volume</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Device Source Mode</source>
        <extracomment>Heading above the two things that the display can show.</extracomment>
        <translation>Bronmodus van het apparaat</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>Smart Connect-modus</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>Gebruik de camera, microfoon en touch van VORN
als randapparatuur van de laptop</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>Scherm delen</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>Spiegel het scherm van uw desktop naar
het scherm van de Zoom Room</translation>
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
        <translation>Verbonden</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Niet verbonden</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Sluit de Type-C-kabel aan op uw laptop.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfoon</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Luidspreker</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>U bent klaar voor de uitzending</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>Start</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>Start uw vergadering</translation>
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
        <translation>VORN Bar gevonden</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>Instellen</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>VORN Bar wordt ingesteld...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Vergaderingen</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>Het monitorvenster kan niet worden geopend.</translation>
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
        <translation>Verbinding wordt gemaakt, even geduld.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>Verbinding mislukt, maak opnieuw verbinding.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>Instellen voltooid. U kunt deze pagina nu sluiten.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>Het scherm van het display</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>Het aanmelden duurde te lang.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>Het registreren duurde te lang.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>Het herstellen van het wachtwoord duurde te lang.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>De afbeelding is te groot.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>Het bijwerken van het profiel duurde te lang.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>Gebruikers-ID of token ontbreekt</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>Het ophalen van het profiel duurde te lang.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>Er is een onbekende fout opgetreden.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>De verbinding met de server is mislukt.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>Leeg antwoord van de server.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>Ongeldig JSON-antwoord: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>Ongeldige antwoordnotatie.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>De aanvraag is om onbekende reden mislukt.</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>De verbinding met de server is mislukt. De proxy vraagt om een wachtwoord.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>Slim kadreren</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>Stelt automatisch scherp op meerdere personen en brengt ze samen in één kader (maximaal 6 personen)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>Handmatig</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>Automatisch kader</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Camera</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Omhoog bewegen</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Omlaag bewegen</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Naar links bewegen</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Naar rechts bewegen</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>Positie %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>Ingedrukt houden om de positie op te slaan</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>Opslaan</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>Het bestand moet kleiner zijn dan 2&#xa0;MB.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>Afbeelding kiezen</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>Afbeeldingsbestand</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Afmelden</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>Digitaal visitekaartje: </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>binnenkort</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Profielfoto wijzigen</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>Kies een jpg-, jpeg- of png-bestand kleiner dan 2&#xa0;MB. Het wordt geüpload en bijgesneden tot uw profielfoto.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>Bestand kiezen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>De afbeelding kan niet worden gelezen.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Profielfoto wijzigen</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG, JPEG of PNG.
Maximaal 2&#xa0;MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Voornaam</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>Voornaam is verplicht</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Achternaam</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>Achternaam is verplicht</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Bedrijf</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>Bedrijf is verplicht</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Functie</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>Functie is verplicht</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Bedrijf</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Functie</translation>
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
        <translation>Tonen</translation>
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
        <translation>Dit veld is verplicht.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>Wachtwoord herstellen</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>Voer hieronder uw e-mailadres in en we sturen u een link om uw wachtwoord te herstellen.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>Versturen</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>E-mail is verplicht</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Apps in de starter</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>BYOD-wissel</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>Aanmelden</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>Hebt u geen account?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>Account maken</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>De notatie is onjuist</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>Wachtwoord vergeten?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>Even geduld</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>Voortgang van de update</translation>
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
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp blijft actief</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>Klik op het pictogram in het systeemvak om het venster weer te openen.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>Dubbelklik op het pictogram in het systeemvak om het venster weer te openen.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>Start VORNApp opnieuw om het venster te openen.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>Kan geen verbinding maken met de VORNApp die al actief is</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>Fout bij het laden van de interface (QQmlApplicationEngine)!</translation>
    </message>
</context>
</TS>
