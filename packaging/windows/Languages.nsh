; The installer's own texts in every language that it speaks. NSIS takes the language of the user's Windows,
; and the first one here where it has no translation. To be included after the pages. UTF-8.

!macro TEXTS LANGUAGE RUNNING USER_DATA HOLDS_STAND_IN
  !insertmacro MUI_LANGUAGE "${LANGUAGE}"
  LangString RUNNING ${LANG_${LANGUAGE}} "${RUNNING}"
  LangString USER_DATA ${LANG_${LANGUAGE}} "${USER_DATA}"
  LangString HOLDS_STAND_IN ${LANG_${LANGUAGE}} "${HOLDS_STAND_IN}"
!macroend

!insertmacro TEXTS English \
  "VORNApp is running. Quit it from its tray icon first." \
  "My settings, account data and logs" \
  "This installer contains a stand-in for the channel library of the display’s maker. It talks to the simulated display only."
!insertmacro TEXTS German \
  "VORNApp läuft. Beenden Sie das Programm zuerst über sein Symbol im Infobereich." \
  "Meine Einstellungen, Kontodaten und Protokolle" \
  "Dieses Installationsprogramm enthält einen Ersatz für die Kanalbibliothek des Display-Herstellers. Er spricht nur mit dem simulierten Display."
!insertmacro TEXTS French \
  "VORNApp est en cours d’exécution. Quittez-le d’abord depuis son icône de la zone de notification." \
  "Mes paramètres, données de compte et journaux" \
  "Ce programme d’installation contient un substitut de la bibliothèque de canal du fabricant de l’écran. Il ne communique qu’avec l’écran simulé."
!insertmacro TEXTS Spanish \
  "VORNApp está en ejecución. Ciérrelo primero desde su icono del área de notificación." \
  "Mis ajustes, datos de la cuenta y registros" \
  "Este instalador contiene un sustituto de la biblioteca de canal del fabricante de la pantalla. Solo se comunica con la pantalla simulada."
!insertmacro TEXTS PortugueseBR \
  "O VORNApp está em execução. Encerre-o primeiro pelo ícone da bandeja." \
  "Minhas configurações, dados da conta e logs" \
  "Este instalador contém um substituto da biblioteca de canal do fabricante da tela. Ele se comunica somente com a tela simulada."
!insertmacro TEXTS Italian \
  "VORNApp è in esecuzione. Chiudilo prima dalla sua icona nell’area di notifica." \
  "Le mie impostazioni, i dati dell’account e i log" \
  "Questo programma di installazione contiene un sostituto della libreria di canale del produttore dello schermo. Comunica solo con lo schermo simulato."
!insertmacro TEXTS Dutch \
  "VORNApp is actief. Sluit het eerst af via het pictogram in het systeemvak." \
  "Mijn instellingen, accountgegevens en logboeken" \
  "Dit installatieprogramma bevat een vervanging voor de kanaalbibliotheek van de fabrikant van het scherm. Die werkt alleen met het gesimuleerde scherm."
!insertmacro TEXTS Polish \
  "Program VORNApp jest uruchomiony. Najpierw zakończ go z ikony w zasobniku." \
  "Moje ustawienia, dane konta i dzienniki" \
  "Ten instalator zawiera zamiennik biblioteki kanału producenta ekranu. Łączy się on tylko z ekranem symulowanym."
!insertmacro TEXTS Swedish \
  "VORNApp körs. Avsluta programmet först från ikonen i meddelandefältet." \
  "Mina inställningar, kontouppgifter och loggar" \
  "Det här installationsprogrammet innehåller en ersättning för kanalbiblioteket från skärmens tillverkare. Den talar bara med den simulerade skärmen."
!insertmacro TEXTS Japanese \
  "VORNApp が実行中です。先に通知領域のアイコンから終了してください。" \
  "設定、アカウントのデータ、ログ" \
  "このインストーラーには、ディスプレイのメーカーのチャネルライブラリの代替が含まれています。シミュレートされたディスプレイとのみ通信します。"
!insertmacro TEXTS Korean \
  "VORNApp이 실행 중입니다. 먼저 알림 영역의 아이콘에서 종료하세요." \
  "내 설정, 계정 데이터 및 로그" \
  "이 설치 프로그램에는 디스플레이 제조사의 채널 라이브러리를 대신하는 구성 요소가 들어 있습니다. 시뮬레이션된 디스플레이와만 통신합니다."
!insertmacro TEXTS SimpChinese \
  "VORNApp 正在运行。请先通过托盘图标退出。" \
  "我的设置、账户数据和日志" \
  "此安装程序包含显示屏制造商通道库的替代品，仅能与模拟显示屏通信。"
!insertmacro TEXTS TradChinese \
  "VORNApp 正在執行。請先從系統匣圖示結束程式。" \
  "我的設定、帳戶資料和記錄" \
  "此安裝程式包含顯示器製造商通道程式庫的替代品，僅能與模擬顯示器通訊。"
!insertmacro TEXTS Arabic \
  "VORNApp قيد التشغيل. أنهِه أولًا من أيقونته في منطقة الإعلام." \
  "إعداداتي وبيانات الحساب والسجلات" \
  "يحتوي برنامج التثبيت هذا على بديل لمكتبة القناة الخاصة بالشركة المصنّعة للشاشة، ولا يتصل إلا بالشاشة المُحاكاة."
