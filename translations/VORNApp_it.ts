<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>Profilo di %1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profilo</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>Passaggio BYOD intelligente</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>Il microfono, la videocamera e gli altoparlanti del dispositivo VORN si attivano automaticamente all’avvio di una riunione BYOD.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>Attiva la videocamera in una qualsiasi app
per effettuare le regolazioni</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>Aggiorna il firmware Windows di K4V alla versione %1 per usare l’app VORN.
Aggiorna prima il firmware.</translation>
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
        <translation>Connessione non riuscita. Ricollega il dispositivo.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>Connessione del microfono</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>Connessione dell’altoparlante</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>Connessione della videocamera</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>Crea un account</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>Hai già un account?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Crea account</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Il formato non è corretto</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Cognome</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>Usa un indirizzo e-mail di lavoro per registrarti.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Conferma password</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>Le password non corrispondono</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>Versione attuale: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>Nuova versione: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>L’app è aggiornata.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>Condizioni d’uso e informativa sulla privacy</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Cerca aggiornamenti</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>Trovata una nuova versione (%1)</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Aggiorna ora</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>Aggiornamento dell’app VORN alla nuova versione (%1) in corso…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>Aggiornamento dell’app VORN alla nuova versione (%1) non riuscito!</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>Scegli le app da mostrare nel launcher. Vengono mostrate solo le app selezionate.</translation>
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
        <translation>Verifica l’account</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>Abbiamo inviato un link di verifica a %1
Controlla l’e-mail per verificare il tuo account.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>Reimposta password</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>Abbiamo inviato un’e-mail a %1
Controlla l’e-mail per reimpostare la password.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>Riunioni</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Videocamera</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>Pagine</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>Ciao!
Ti diamo il benvenuto in VORN!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>Controllo del dispositivo</translation>
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
        <translation>Modalità sorgente del dispositivo</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>Modalità connessione smart</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>Usa videocamera, microfono e touch di VORN
come periferiche del portatile</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>Condivisione schermo</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>Duplica lo schermo del computer sullo
schermo di Zoom Room</translation>
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
        <translation>Connessione attiva</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Connessione assente</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Collega il cavo Type-C al portatile.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfono</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Altoparlante</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Videocamera</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>Tutto pronto per andare in onda</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>Inizia</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>Avvia la riunione</translation>
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
        <translation>VORN Bar rilevata</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>Configura</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>Configurazione della VORN Bar in corso...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Riunioni</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>Impossibile aprire la finestra del monitor.</translation>
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
        <translation>Connessione in corso, attendi.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>Connessione non riuscita, riconnettiti.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>Configurazione completata. Ora puoi chiudere questa pagina.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>Schermo del display</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>Tempo scaduto per la richiesta di accesso.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>Tempo scaduto per la richiesta di registrazione.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>Tempo scaduto per la richiesta di reimpostazione della password.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>L’immagine è troppo grande.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>Tempo scaduto per la richiesta di aggiornamento del profilo.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>ID utente o token mancante</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>Tempo scaduto per la richiesta del profilo.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>Si è verificato un errore sconosciuto.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>Connessione al server non riuscita.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>Risposta vuota dal server.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>Risposta JSON non valida: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>Formato di risposta non valido.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>Richiesta non riuscita per un motivo sconosciuto.</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>Connessione al server non riuscita. Il proxy richiede una password.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>Inquadratura intelligente</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>Mette a fuoco automaticamente più persone e le riunisce in un’inquadratura (fino a 6 persone)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>Inquadratura auto</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Videocamera</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Sposta in alto</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta in basso</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Sposta a sinistra</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Sposta a destra</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>Posizione %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>Tieni premuto per salvare la posizione</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>Il file deve essere inferiore a 2&#xa0;MB.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>Seleziona immagine</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>File immagine</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>Biglietto da visita digitale: </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>in arrivo</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Cambia immagine del profilo</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>Seleziona un file jpg, jpeg o png inferiore a 2&#xa0;MB. Verrà caricato e ritagliato come immagine del profilo.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>Scegli file</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>Impossibile leggere l’immagine.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Cambia immagine del profilo</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG, JPEG o PNG.
Massimo 2&#xa0;MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>Il nome è obbligatorio</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Cognome</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>Il cognome è obbligatorio</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Azienda</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>L’azienda è obbligatoria</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Qualifica</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>La qualifica è obbligatoria</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Azienda</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Qualifica</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
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
        <translation>Questo campo è obbligatorio.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>Reimposta password</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>Inserisci la tua e-mail qui sotto e ti invieremo un link per reimpostare la password.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>L’e-mail è obbligatoria</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>App del launcher</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Passaggio BYOD</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>Non hai un account?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>Crea un account</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Il formato non è corretto</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>Password dimenticata?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>Attendi</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>Avanzamento dell’aggiornamento</translation>
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
        <translation>Chiudi il programma</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp è ancora in esecuzione</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>Fai clic sulla sua icona nell&apos;area di notifica per riaprire la finestra.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>Fai doppio clic sulla sua icona nell&apos;area di notifica per riaprire la finestra.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>Avvia di nuovo VORNApp per aprire la finestra.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>Impossibile connettersi all’istanza di VORNApp già in esecuzione</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>Errore di caricamento dell’interfaccia (QQmlApplicationEngine)!</translation>
    </message>
</context>
</TS>
