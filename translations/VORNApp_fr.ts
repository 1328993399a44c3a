<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>Profil de %1</translation>
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
        <translation>Bascule BYOD intelligente</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>Le micro, la caméra et les haut-parleurs de l’appareil VORN s’activent automatiquement au démarrage d’une réunion BYOD.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>Activez votre caméra dans n’importe quelle application
pour effectuer des réglages</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>Mettez à jour le micrologiciel K4V Windows vers la version %1 pour utiliser l’application VORN.
Veuillez d’abord mettre à jour le micrologiciel.</translation>
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
        <translation>Échec de la connexion. Veuillez reconnecter l’appareil.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>Connexion du micro</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>Connexion du haut-parleur</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>Connexion de la caméra</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>Créer un compte</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>Vous avez déjà un compte&#xa0;?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Créer le compte</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Le format est incorrect</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>Veuillez utiliser une adresse e-mail professionnelle pour vous inscrire.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Confirmer le mot de passe</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>Les mots de passe ne correspondent pas</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>Version actuelle&#xa0;: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>Nouvelle version&#xa0;: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>Vous êtes à jour.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>Conditions d’utilisation et politique de confidentialité</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Rechercher une mise à jour</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>Nouvelle version (%1) disponible</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>Mise à jour de votre application VORN vers la nouvelle version (%1)…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>La mise à jour de votre application VORN vers la nouvelle version (%1) a échoué&#xa0;!</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>Choisissez les applications de votre lanceur. Seules les applications cochées sont affichées.</translation>
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
        <translation>Vérification du compte</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>Nous avons envoyé un lien de vérification à %1
Consultez cet e-mail pour vérifier votre compte.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>Nous avons envoyé un e-mail à %1
Consultez cet e-mail pour réinitialiser votre mot de passe.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>Réunions</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>Bonjour&#xa0;!
Bienvenue chez VORN&#xa0;!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>Commande de l’appareil</translation>
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
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Device Source Mode</source>
        <extracomment>Heading above the two things that the display can show.</extracomment>
        <translation>Mode source de l’appareil</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>Mode Connexion intelligente</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>Utiliser la caméra, le micro et l’écran tactile de
VORN comme périphériques du portable</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>Partage d’écran</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>Recopier l’écran de votre ordinateur sur
l’écran Zoom Room</translation>
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
        <translation>Connexion établie</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Aucune connexion</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Branchez le câble Type-C sur votre ordinateur portable.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micro</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Haut-parleur</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>Tout est prêt, à vous l’antenne</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>Lancez votre réunion</translation>
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
        <translation>VORN Bar détectée</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>Configurer</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>Configuration de la VORN Bar en cours...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Réunions</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>Impossible d’ouvrir la fenêtre du moniteur.</translation>
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
        <translation>Connexion en cours, veuillez patienter.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>Échec de la connexion, veuillez vous reconnecter.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>Configuration terminée. Vous pouvez maintenant fermer cette page.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>Écran de l’appareil</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>La demande de connexion a expiré.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>La demande d’inscription a expiré.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>La demande de réinitialisation du mot de passe a expiré.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>L’image est trop volumineuse.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>La demande de mise à jour du profil a expiré.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>Identifiant d’utilisateur ou jeton manquant</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>La demande de profil a expiré.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>Une erreur inconnue s’est produite.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>La connexion au serveur a échoué.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>Réponse vide du serveur.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>Réponse JSON non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>Format de réponse non valide.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>La demande a échoué pour une raison inconnue.</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>La connexion au serveur a échoué. Le serveur proxy demande un mot de passe.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>Cadrage intelligent</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>Mise au point automatique sur plusieurs personnes réunies dans un même cadre (6 personnes au maximum)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>Cadrage auto</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Caméra</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Déplacer vers le haut</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Déplacer vers le bas</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Déplacer vers la gauche</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Déplacer vers la droite</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>Position %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>Maintenez enfoncé pour enregistrer la position</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>Le fichier doit faire moins de 2&#xa0;Mo.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>Choisir une image</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>Fichier image</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>Carte de visite numérique&#xa0;: </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>bientôt disponible</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Modifier la photo de profil</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>Choisissez un fichier jpg, jpeg ou png de moins de 2&#xa0;Mo. Il sera envoyé et recadré pour devenir votre photo de profil.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>Impossible de lire l’image.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Modifier la photo de profil</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG, JPEG ou PNG.
2&#xa0;Mo au maximum</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>Le prénom est obligatoire</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>Le nom est obligatoire</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Société</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>La société est obligatoire</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>La fonction est obligatoire</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Société</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Fonction</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>as in Show Password</comment>
        <extracomment>Name of that button, for screen readers: its text and the name of the field.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <extracomment>Error of a text field, for screen readers.</extracomment>
        <translation>Ce champ est obligatoire.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>Saisissez votre adresse e-mail ci-dessous. Nous vous enverrons un lien pour réinitialiser votre mot de passe.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>L’e-mail est obligatoire</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Général</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Applis du lanceur</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Bascule BYOD</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>Vous n’avez pas de compte&#xa0;?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>Créer un compte</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>Le format est incorrect</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>Mot de passe oublié&#xa0;?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>Veuillez patienter</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>Progression de la mise à jour</translation>
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
        <translation>Quitter</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp reste actif</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>Cliquez sur son icône dans la zone de notification pour rouvrir la fenêtre.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>Double-cliquez sur son icône dans la zone de notification pour rouvrir la fenêtre.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>Relancez VORNApp pour ouvrir la fenêtre.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>Impossible de joindre l’instance de VORNApp déjà en cours d’exécution</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>Échec du chargement de l’interface (QQmlApplicationEngine)&#xa0;!</translation>
    </message>
</context>
</TS>
