; The installer's own texts in every language that it speaks. NSIS takes the language of the user's Windows,
; and the first one here where it has no translation. To be included after the pages. UTF-8.

!macro TEXTS LANGUAGE RUNNING USER_DATA
  !insertmacro MUI_LANGUAGE "${LANGUAGE}"
  LangString RUNNING ${LANG_${LANGUAGE}} "${RUNNING}"
  LangString USER_DATA ${LANG_${LANGUAGE}} "${USER_DATA}"
!macroend

!insertmacro TEXTS English \
  "VORNApp is running. Quit it from its tray icon first." \
  "My settings, account data and logs"
!insertmacro TEXTS German \
  "VORNApp läuft. Beenden Sie das Programm zuerst über sein Symbol im Infobereich." \
  "Meine Einstellungen, Kontodaten und Protokolle"
!insertmacro TEXTS French \
  "VORNApp est en cours d’exécution. Quittez-le d’abord depuis son icône de la zone de notification." \
  "Mes paramètres, données de compte et journaux"
!insertmacro TEXTS Spanish \
  "VORNApp está en ejecución. Ciérrelo primero desde su icono del área de notificación." \
  "Mis ajustes, datos de la cuenta y registros"
!insertmacro TEXTS PortugueseBR \
  "O VORNApp está em execução. Encerre-o primeiro pelo ícone da bandeja." \
  "Minhas configurações, dados da conta e logs"
!insertmacro TEXTS Italian \
  "VORNApp è in esecuzione. Chiudilo prima dalla sua icona nell’area di notifica." \
  "Le mie impostazioni, i dati dell’account e i log"
!insertmacro TEXTS Dutch \
  "VORNApp is actief. Sluit het eerst af via het pictogram in het systeemvak." \
  "Mijn instellingen, accountgegevens en logboeken"
!insertmacro TEXTS Polish \
  "Program VORNApp jest uruchomiony. Najpierw zakończ go z ikony w zasobniku." \
  "Moje ustawienia, dane konta i dzienniki"
!insertmacro TEXTS Swedish \
  "VORNApp körs. Avsluta programmet först från ikonen i meddelandefältet." \
  "Mina inställningar, kontouppgifter och loggar"
!insertmacro TEXTS Japanese \
  "VORNApp が実行中です。先に通知領域のアイコンから終了してください。" \
  "設定、アカウントのデータ、ログ"
!insertmacro TEXTS Korean \
  "VORNApp이 실행 중입니다. 먼저 알림 영역의 아이콘에서 종료하세요." \
  "내 설정, 계정 데이터 및 로그"
!insertmacro TEXTS SimpChinese \
  "VORNApp 正在运行。请先通过托盘图标退出。" \
  "我的设置、账户数据和日志"
!insertmacro TEXTS TradChinese \
  "VORNApp 正在執行。請先從系統匣圖示結束程式。" \
  "我的設定、帳戶資料和記錄"
!insertmacro TEXTS Arabic \
  "VORNApp قيد التشغيل. أنهِه أولًا من أيقونته في منطقة الإعلام." \
  "إعداداتي وبيانات الحساب والسجلات"
