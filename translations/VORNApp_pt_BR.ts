<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
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
        <translation>Troca BYOD inteligente</translation>
    </message>
    <message>
        <source>The VORN device’s microphone, camera, and speakers will automatically activate 
when start a BYOD meeting.</source>
        <translation>O microfone, a câmera e os alto-falantes do dispositivo VORN são ativados automaticamente ao iniciar uma reunião BYOD.</translation>
    </message>
</context>
<context>
    <name>CameraControl</name>
    <message>
        <source>Please turn on your camera in any app
to make adjustments</source>
        <translation>Ligue a câmera em qualquer aplicativo
para fazer ajustes</translation>
    </message>
</context>
<context>
    <name>CheckRemoteVersion</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Update the K4V Windows firmware to version %1 to use the VORN App.
Please update the firmware first.</source>
        <translation>Atualize o firmware Windows do K4V para a versão %1 para usar o aplicativo VORN.
Atualize o firmware primeiro.</translation>
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
        <translation>Falha na conexão. Reconecte o dispositivo.</translation>
    </message>
    <message>
        <source>Connecting Microphone</source>
        <translation>Conectando o microfone</translation>
    </message>
    <message>
        <source>Connecting Speaker</source>
        <translation>Conectando o alto-falante</translation>
    </message>
    <message>
        <source>Connecting Camera</source>
        <translation>Conectando a câmera</translation>
    </message>
</context>
<context>
    <name>CreateAccountForm</name>
    <message>
        <source>Create an Account</source>
        <translation>Criar uma conta</translation>
    </message>
    <message>
        <source>Already have an account?</source>
        <translation>Já tem uma conta?</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Create Account</source>
        <translation>Criar conta</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>O formato está incorreto</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Sobrenome</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Please use a work email address to register.</source>
        <translation>Use um e-mail corporativo para se cadastrar.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Confirm Password</source>
        <translation>Confirmar senha</translation>
    </message>
    <message>
        <source>Password do not match</source>
        <translation>As senhas não coincidem</translation>
    </message>
</context>
<context>
    <name>General</name>
    <message>
        <source>Current Version:  %1</source>
        <translation>Versão atual: %1</translation>
    </message>
    <message>
        <source>New Version:  %1</source>
        <translation>Nova versão: %1</translation>
    </message>
    <message>
        <source>You&apos;re up to date.</source>
        <translation>Você está em dia.</translation>
    </message>
    <message>
        <source>Term of Use and Privacy Policy</source>
        <translation>Termos de uso e política de privacidade</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>Button: offers the update, or looks for one.</extracomment>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Check for Update</source>
        <translation>Buscar atualização</translation>
    </message>
    <message>
        <source>New Version (%1) Found</source>
        <translation>Nova versão (%1) encontrada</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>Button that closes the offer of an update.</extracomment>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1)…</source>
        <translation>Atualizando o aplicativo VORN para a nova versão (%1)…</translation>
    </message>
    <message>
        <source>Updating your VORN APP to New Version (%1) failed!</source>
        <translation>Falha ao atualizar o aplicativo VORN para a nova versão (%1)!</translation>
    </message>
    <message>
        <source>Retry Update Now</source>
        <translation>Tentar de novo</translation>
    </message>
</context>
<context>
    <name>LauncherAppList</name>
    <message>
        <source>Select which apps appear on your launcher. Only checked apps will be shown.</source>
        <translation>Escolha os aplicativos exibidos no iniciador. Só os marcados aparecem.</translation>
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
        <translation>Verificar conta</translation>
    </message>
    <message>
        <source>We’ve sent a verification link to %1
Please check the email to verify your account.</source>
        <translation>Enviamos um link de verificação para %1
Confira o e-mail para verificar sua conta.</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Password Reset</source>
        <translation>Redefinir senha</translation>
    </message>
    <message>
        <source>We sent an email to %1
Please check the email to reset your password.</source>
        <translation>Enviamos um e-mail para %1
Confira o e-mail para redefinir sua senha.</translation>
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
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Meetings</source>
        <translation>Reuniões</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Câmera</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
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
        <translation>Olá!
Boas-vindas à VORN!</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>Controle do dispositivo</translation>
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
        <translation>Modo de fonte do dispositivo</translation>
    </message>
    <message>
        <source>Smart Connect Mode</source>
        <translation>Modo de conexão inteligente</translation>
    </message>
    <message>
        <source>Utilize VORN’s Camera, Mic, Touch as
laptop’s peripherals</source>
        <translation>Use a câmera, o microfone e o toque do VORN
como periféricos do notebook</translation>
    </message>
    <message>
        <source>Screen Share</source>
        <translation>Compartilhar tela</translation>
    </message>
    <message>
        <source>Mirror screen from your desktop to the
Zoom Room screen</source>
        <translation>Espelhe a tela do seu computador na
tela do Zoom Room</translation>
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
        <translation>Conexão estabelecida</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Sem conexão</translation>
    </message>
    <message>
        <source>Plug in the Type-C cable into your laptop.</source>
        <translation>Conecte o cabo Type-C ao seu notebook.</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfone</translation>
    </message>
    <message>
        <source>Speaker</source>
        <translation>Alto-falante</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Câmera</translation>
    </message>
    <message>
        <source>You are ready on Air</source>
        <extracomment>All devices of the display are connected.</extracomment>
        <translation>Tudo pronto para entrar no ar</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>Button that begins the use of the display&apos;s devices.</extracomment>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Launch your meeting</source>
        <translation>Inicie sua reunião</translation>
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
        <translation>Configurando a VORN Bar...</translation>
    </message>
    <message>
        <source>Meetings</source>
        <translation>Reuniões</translation>
    </message>
    <message>
        <source>The monitor window cannot be opened.</source>
        <translation>Não é possível abrir a janela do monitor.</translation>
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
        <translation>Conectando, aguarde.</translation>
    </message>
    <message>
        <source>Connection failed, please reconnect.</source>
        <translation>Falha na conexão, reconecte.</translation>
    </message>
    <message>
        <source>Setup complete. You may now close this page.</source>
        <extracomment>The page is this window, which closes by itself too.</extracomment>
        <translation>Configuração concluída. Você já pode fechar esta página.</translation>
    </message>
</context>
<context>
    <name>MonitorPointer</name>
    <message>
        <source>The display&apos;s screen</source>
        <extracomment>Name of the picture of that screen, for screen readers.</extracomment>
        <translation>Tela do dispositivo</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <source>Login request timed out.</source>
        <translation>O tempo do login esgotou.</translation>
    </message>
    <message>
        <source>Registration request timed out.</source>
        <translation>O tempo do cadastro esgotou.</translation>
    </message>
    <message>
        <source>Password reset request timed out.</source>
        <translation>O tempo da redefinição de senha esgotou.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>A imagem é grande demais.</translation>
    </message>
    <message>
        <source>Profile update request timed out.</source>
        <translation>O tempo da atualização do perfil esgotou.</translation>
    </message>
    <message>
        <source>Missing user ID or token</source>
        <translation>ID de usuário ou token ausente</translation>
    </message>
    <message>
        <source>Profile request timed out.</source>
        <translation>O tempo da solicitação do perfil esgotou.</translation>
    </message>
    <message>
        <source>Unknown error occurred.</source>
        <translation>Ocorreu um erro desconhecido.</translation>
    </message>
    <message>
        <source>Connection to server failed.</source>
        <translation>Falha na conexão com o servidor.</translation>
    </message>
    <message>
        <source>Empty response from server.</source>
        <translation>Resposta vazia do servidor.</translation>
    </message>
    <message>
        <source>Invalid JSON response: %1</source>
        <translation>Resposta JSON inválida: %1</translation>
    </message>
    <message>
        <source>Invalid response format.</source>
        <translation>Formato de resposta inválido.</translation>
    </message>
    <message>
        <source>Request failed with unknown reason.</source>
        <translation>A solicitação falhou por motivo desconhecido.</translation>
    </message>
    <message>
        <source>Connection to server failed. The proxy asks for a password.</source>
        <translation>Falha na conexão com o servidor. O proxy pede uma senha.</translation>
    </message>
</context>
<context>
    <name>PTZ</name>
    <message>
        <source>Smart-Framing</source>
        <translation>Enquadramento inteligente</translation>
    </message>
    <message>
        <source>Auto focus on multiple individuals and combine 
in a frame (up to 6 individuals)</source>
        <translation>Foca automaticamente várias pessoas e as reúne em um só quadro (até 6 pessoas)</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Titles of two tabs: the camera is moved by hand, or follows the people by itself.</extracomment>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Auto-Framing</source>
        <translation>Enquadramento auto</translation>
    </message>
    <message>
        <source>Camera Control</source>
        <translation>Câmera</translation>
    </message>
</context>
<context>
    <name>PTZManual</name>
    <message>
        <source>Zoom in</source>
        <translation>Aproximar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Afastar</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Mover para a esquerda</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Mover para a direita</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <extracomment>Button that moves the camera to a saved position. %1 is a number from 1 to 3.</extracomment>
        <translation>Posição %1</translation>
    </message>
    <message>
        <source>Hold to save the position</source>
        <extracomment>Description of a preset button, for screen readers.</extracomment>
        <translation>Mantenha pressionado para salvar a posição</translation>
    </message>
    <message>
        <source>Save Position</source>
        <extracomment>Button above a preset: keeps the present position of the camera in it.</extracomment>
        <translation>Salvar</translation>
    </message>
</context>
<context>
    <name>Personal</name>
    <message>
        <source>The file must be under 2MB.</source>
        <translation>O arquivo deve ter menos de 2&#xa0;MB.</translation>
    </message>
    <message>
        <source>select picture</source>
        <extracomment>Title of the file dialog.</extracomment>
        <translation>Selecionar imagem</translation>
    </message>
    <message>
        <source>picture file</source>
        <extracomment>Name of the kind of files in the file dialog.</extracomment>
        <translation>Arquivo de imagem</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Digital Namecard Service </source>
        <extracomment>Followed by &quot;coming soon&quot;.</extracomment>
        <translation>Cartão de visita digital: </translation>
    </message>
    <message>
        <source>coming soon</source>
        <translation>em breve</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Alterar foto do perfil</translation>
    </message>
    <message>
        <source>Please select a jpg, jpeg or png image file with
size smaller than 2M to upload and crop an
image to be your profile picture.</source>
        <translation>Selecione um arquivo jpg, jpeg ou png com menos de 2&#xa0;MB. Ele será enviado e recortado para ser sua foto de perfil.</translation>
    </message>
    <message>
        <source>Choose File</source>
        <extracomment>Button that opens the file dialog.</extracomment>
        <translation>Escolher arquivo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>The picture cannot be read.</source>
        <translation>Não é possível ler a imagem.</translation>
    </message>
</context>
<context>
    <name>ProfileEdit</name>
    <message>
        <source>Change Profile Picture</source>
        <translation>Alterar foto do perfil</translation>
    </message>
    <message>
        <source>JPG, JPEG or PNG.
Max size of 2M</source>
        <translation>JPG, JPEG ou PNG.
Máximo de 2&#xa0;MB</translation>
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
        <translation>O nome é obrigatório</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Sobrenome</translation>
    </message>
    <message>
        <source>Last Name is required</source>
        <translation>O sobrenome é obrigatório</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Company is required</source>
        <translation>A empresa é obrigatória</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Cargo</translation>
    </message>
    <message>
        <source>Job Title is required</source>
        <translation>O cargo é obrigatório</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
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
        <translation>E-mail</translation>
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
        <translation>Este campo é obrigatório.</translation>
    </message>
</context>
<context>
    <name>ResetPasswordForm</name>
    <message>
        <source>Password Reset</source>
        <translation>Redefinir senha</translation>
    </message>
    <message>
        <source>Enter your email below and we&apos;ll send you a link to 
reset your password.</source>
        <translation>Digite seu e-mail abaixo e enviaremos um link para redefinir sua senha.</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that asks for the link.</extracomment>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Email is required</source>
        <translation>O e-mail é obrigatório</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>General</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Launcher App List</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Lista de aplicativos</translation>
    </message>
    <message>
        <source>BYOD Switch</source>
        <extracomment>Title of a tab.</extracomment>
        <translation>Troca BYOD</translation>
    </message>
</context>
<context>
    <name>SignInForm</name>
    <message>
        <source>Sign In</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Don’t have an account?</source>
        <translation>Não tem uma conta?</translation>
    </message>
    <message>
        <source>Create an account</source>
        <translation>Criar uma conta</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The format is incorrect</source>
        <translation>O formato está incorreto</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Forgot Password?</source>
        <translation>Esqueceu a senha?</translation>
    </message>
</context>
<context>
    <name>SubmitButton</name>
    <message>
        <source>Please wait</source>
        <extracomment>State of a button while a request runs, for screen readers.</extracomment>
        <translation>Aguarde</translation>
    </message>
</context>
<context>
    <name>UpdatePanel</name>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the panel, for screen readers.</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>UpdateProgress</name>
    <message>
        <source>Update progress</source>
        <extracomment>Name of the progress bar, for screen readers.</extracomment>
        <translation>Progresso da atualização</translation>
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
        <translation>Encerrar</translation>
    </message>
    <message>
        <source>VORNApp is still running</source>
        <extracomment>Title of a message of the tray, shown when the window is closed for the first time.</extracomment>
        <translation>O VORNApp continua em execução</translation>
    </message>
    <message>
        <source>Click its icon in the tray to open the window again.</source>
        <translation>Clique no ícone na bandeja para abrir a janela novamente.</translation>
    </message>
    <message>
        <source>Double-click its icon in the tray to open the window again.</source>
        <translation>Clique duas vezes no ícone na bandeja para abrir a janela novamente.</translation>
    </message>
    <message>
        <source>Start VORNApp again to open the window.</source>
        <extracomment>Message shown when the window is closed for the first time, on a desktop without a tray.</extracomment>
        <translation>Inicie o VORNApp novamente para abrir a janela.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Error</source>
        <extracomment>Title of a message box.</extracomment>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Existing VORNApp cannot be connected</source>
        <translation>Não é possível conectar à instância do VORNApp já em execução</translation>
    </message>
    <message>
        <source>QQmlApplicationEngine load error!</source>
        <translation>Falha ao carregar a interface (QQmlApplicationEngine)!</translation>
    </message>
</context>
</TS>
