<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AvatarButton</name>
    <message>
        <source>Profile of %1</source>
        <extracomment>Name of the button with the picture, for screen readers. %1 is the first name.</extracomment>
        <translation>Perfil de %1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
</context>
<context>
    <name>ByodSwitch</name>
    <message>
        <source>Smart BYOD Switch</source>
        <translation>Cambio BYOD inteligente</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>El micrófono, la cámara y los altavoces del dispositivo VORN se activan automáticamente al iniciar una reunión BYOD.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>Encienda la cámara en cualquier aplicación
para hacer ajustes</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>Actualice el firmware de Windows del K4V a la versión %1 para usar la aplicación VORN.
Actualice primero el firmware.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>ConnectionStaging</name>
    <message>
        <source>Connection failed. Please reconnect the device.</source>
        <translation>Error de conexión. Vuelva a conectar el dispositivo.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>Conectando el micrófono</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>Conectando el altavoz</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>Conectando la cámara</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>Crear una cuenta</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>¿Ya tiene una cuenta?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Crear cuenta</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>El formato no es correcto</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>Use una dirección de correo del trabajo para registrarse.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Confirmar contraseña</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>Las contraseñas no coinciden</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>Versión actual: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>Nueva versión: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>Está al día.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>Condiciones de uso y política de privacidad</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Buscar actualización</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>Se encontró una nueva versión (%1)</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>Actualizando la aplicación VORN a la nueva versión (%1)…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>¡Error al actualizar la aplicación VORN a la nueva versión (%1)!</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>Reintentar</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>Elija las aplicaciones que aparecen en el iniciador. Solo se muestran las marcadas.</translation>
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
        <translation>Verificar cuenta</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>Hemos enviado un enlace de verificación a %1
Revise el correo para verificar su cuenta.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>Nueva contraseña</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>Hemos enviado un correo a %1
Revise el correo para restablecer su contraseña.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Minimise</source>
        <extracomment>Button of the window, for screen readers.</extracomment>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button of the window, for screen readers: hides it to the tray.</extracomment>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>Reuniones</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Name of the navigation, for screen readers.</extracomment>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>MeetingControl</name>
    <message>
        <source>Hello!
Welcome to VORN!</source>
        <translation>¡Hola!
¡Le damos la bienvenida a VORN!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>Control del dispositivo</translation>
    </message>
    <message>
        <source>VORN K4V
Volume</source>
        <translation>VORN K4V
Volumen</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>A percentage.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Device Source Mode</source>
        <extracomment>Heading above the two things that the display can show.</extracomment>
        <translation>Modo de fuente del dispositivo</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>Modo de conexión inteligente</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>Use la cámara, el micrófono y la pantalla táctil de
VORN como periféricos del portátil</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>Compartir pantalla</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>Duplique la pantalla de su escritorio en la
pantalla de Zoom Room</translation>
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
        <translation>Conexión establecida</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Conecte el cable Type-C a su portátil.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Altavoz</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>Todo listo para entrar en directo</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>Inicie su reunión</translation>
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
        <translation>VORN Bar detectada</translation>
    </message>
    <message>
        <source>Start Setup</source>
        <extracomment>Button that begins the first set-up of the display.</extracomment>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>VORN Bar is being set up...</source>
        <translation>Configurando la VORN Bar...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Reuniones</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>No se puede abrir la ventana del monitor.</translation>
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
        <translation>Conectando, espere.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>Error de conexión, vuelva a conectarse.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>Configuración completada. Ya puede cerrar esta página.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>Pantalla del dispositivo</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>Se agotó el tiempo de espera del inicio de sesión.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>Se agotó el tiempo de espera del registro.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>Se agotó el tiempo de espera del restablecimiento de la contraseña.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>La imagen es demasiado grande.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>Se agotó el tiempo de espera de la actualización del perfil.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>Falta el identificador de usuario o el token</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>Se agotó el tiempo de espera de la solicitud del perfil.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>Se produjo un error desconocido.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>Error de conexión con el servidor.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>Respuesta vacía del servidor.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>Respuesta JSON no válida: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>Formato de respuesta no válido.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>La solicitud falló por un motivo desconocido.</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>Error de conexión con el servidor. El proxy pide una contraseña.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>Encuadre inteligente</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>Enfoca automáticamente a varias personas y las combina en un encuadre (hasta 6 personas)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>Encuadre automático</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Cámara</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Mover hacia arriba</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Mover hacia abajo</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Mover a la izquierda</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Mover a la derecha</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>Posición %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>Mantenga pulsado para guardar la posición</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>El archivo debe ocupar menos de 2&#xa0;MB.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>Elegir imagen</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>Archivo de imagen</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>Tarjeta de visita digital: </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>próximamente</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Cambiar la foto de perfil</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>Elija un archivo jpg, jpeg o png de menos de 2&#xa0;MB. Se subirá y recortará para usarlo como foto de perfil.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>Elegir archivo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>No se puede leer la imagen.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Cambiar la foto de perfil</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG, JPEG o PNG.
Máximo 2&#xa0;MB</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>First Name is required</source>
        <translation>El nombre es obligatorio</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>Los apellidos son obligatorios</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>La empresa es obligatoria</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Cargo</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>El cargo es obligatorio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Edit</source>
        <extracomment>Link that lets the user change the profile.</extracomment>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Cargo</translation>
    </message>
</context>
<context>
    <name>QuickTextField</name>
    <message>
        <source>Hide</source>
        <extracomment>Button in a password field: hides or shows the password.</extracomment>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
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
        <translation>Este campo es obligatorio.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>Nueva contraseña</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>Introduzca su correo electrónico y le enviaremos un enlace para restablecer la contraseña.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>El correo electrónico es obligatorio</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>General</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Lista de aplicaciones</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Cambio BYOD</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>¿No tiene una cuenta?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>Crear una cuenta</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>El formato no es correcto</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>¿Olvidó su contraseña?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>Espere</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>Progreso de la actualización</translation>
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
        <translation>Salir</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>VORNApp sigue en ejecución</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>Haga clic en su icono de la bandeja para volver a abrir la ventana.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>Haga doble clic en su icono de la bandeja para volver a abrir la ventana.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>Vuelva a iniciar VORNApp para abrir la ventana.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>Error</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>No se puede conectar con la instancia de VORNApp que ya está en ejecución</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>¡No se pudo cargar la interfaz (QQmlApplicationEngine)!</translation>
    </message>
</context>
</TS>
