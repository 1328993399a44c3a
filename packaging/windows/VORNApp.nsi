; Installer of VORNApp for one user. It needs no administrator rights. Silent: setup.exe /S [/D=<folder>],
; Uninstall.exe /S [/PURGE]. A silent run ends the running program, and an update starts it again.
Unicode true
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\VORNApp"
!define SETTINGS_KEY "System\CurrentControlSet\Control\VORNApp"

Name "VORNApp"
OutFile "${OUTPUT}"
RequestExecutionLevel user
ManifestDPIAware true
InstallDir "$LOCALAPPDATA\Programs\VORNApp"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"
SetCompressor /SOLID lzma
VIProductVersion "${VERSION}"
VIAddVersionKey "ProductName" "VORNApp"
VIAddVersionKey "FileDescription" "VORNApp installer"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "2026 the VORNApp authors"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!ifdef SIGN
  !finalize '${SIGN} "%1"' = 0
  !uninstfinalize '${SIGN} "%1"' = 0
!endif

!ifdef STAND_IN
  !define MUI_WELCOMEPAGE_TEXT "$(MUI_TEXT_WELCOME_INFO_TEXT)$\r$\n$\r$\n$(HOLDS_STAND_IN)"
!endif
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!include /CHARSET=UTF8 "${LANGUAGES}"

Var WasRunning

; Sets $0 to 1 if the program's file can be replaced, to 0 while it runs. Uses $1.
!macro CHECK_PROGRAM
  StrCpy $0 1
  ${If} ${FileExists} "$INSTDIR\VORNApp.exe"
    ClearErrors
    FileOpen $1 "$INSTDIR\VORNApp.exe" a
    ${If} ${Errors}
      StrCpy $0 0
    ${Else}
      FileClose $1
    ${EndIf}
  ${EndIf}
!macroend

; The files of a running program cannot be replaced. A silent run ends it as the entry "Quit" of its tray icon does,
; and gives up after 10 s. Uses $0 to $2.
!macro END_PROGRAM
  !insertmacro CHECK_PROGRAM
  ${If} $0 == 0
  ${AndIf} ${Silent}
    ExecWait '"$INSTDIR\VORNApp.exe" --quit'
    ${For} $2 1 100
      !insertmacro CHECK_PROGRAM
      ${If} $0 == 1
        StrCpy $WasRunning 1
        ${ExitFor}
      ${EndIf}
      Sleep 100
    ${Next}
  ${EndIf}
  ${If} $0 == 0
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(RUNNING)" /SD IDOK
    SetErrorLevel 3
    Abort
  ${EndIf}
!macroend

; Sets $0 to 1 if the two files have the same content, otherwise to 0. Uses $1 to $4.
!macro COMPARE_FILES FIRST SECOND
  StrCpy $0 0
  ClearErrors
  FileOpen $1 "${FIRST}" r
  FileOpen $2 "${SECOND}" r
  ${IfNot} ${Errors}
    StrCpy $0 1
    ${Do}
      ClearErrors
      FileReadByte $1 $3
      FileReadByte $2 $4 ; an error at the end of either file
      ${If} $3 != $4
        StrCpy $0 0
        ${ExitDo}
      ${EndIf}
    ${LoopUntil} ${Errors}
  ${EndIf}
  FileClose $1
  FileClose $2
!macroend

Section "VORNApp"
  !insertmacro END_PROGRAM
  ; Remove an earlier version first, because it may have files that this version lacks.
  ${If} ${FileExists} "$INSTDIR\Uninstall.exe"
    ExecWait '"$INSTDIR\Uninstall.exe" /S _?=$INSTDIR'
  ${EndIf}
  SetOutPath "$INSTDIR"
  SetOverwrite on
  File /r /x config.ini /x config.json "${STAGE}\*.*"
  ; An update keeps the user's settings, and device rules that the user has edited: the uninstaller above
  ; removes only others. The rules of this version always lie in config.default.json.
  SetOverwrite off
  File "${STAGE}\config.ini"
  File "${STAGE}\config.json"
  SetOverwrite on
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortCut "$SMPROGRAMS\VORNApp.lnk" "$INSTDIR\VORNApp.exe"

  WriteRegStr HKCU "${KEY}" "DisplayName" "VORNApp"
  WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\VORNApp.exe"
  WriteRegStr HKCU "${KEY}" "Publisher" "VORN"
  WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${KEY}" "EstimatedSize" $0
SectionEnd

; The user goes on with the program also after an update that has failed.
Function StartAgain
  ${If} $WasRunning == 1
    SetOutPath "$INSTDIR" ; the working folder
    Exec '"$INSTDIR\VORNApp.exe"'
  ${EndIf}
FunctionEnd

Function .onInstSuccess
  Call StartAgain
FunctionEnd

Function .onInstFailed
  Call StartAgain
FunctionEnd

Section "un.VORNApp"
  SectionIn RO
  !insertmacro END_PROGRAM
  !insertmacro COMPARE_FILES "$INSTDIR\config.json" "$INSTDIR\config.default.json"
  ${If} $0 == 1
    Delete "$INSTDIR\config.json"
  ${EndIf}
  !include "${REMOVAL}"
  Delete "$SMPROGRAMS\VORNApp.lnk"
  ; Compiled pages and shaders. The program makes them again when they are missing.
  RMDir /r "$LOCALAPPDATA\VORNApp\cache"
  RMDir "$LOCALAPPDATA\VORNApp"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${KEY}"
SectionEnd

Section /o "un.$(USER_DATA)" PURGE
  Delete "$INSTDIR\config.ini"
  Delete "$INSTDIR\config.json"
  Delete "$INSTDIR\userdata.db"
  Delete "$INSTDIR\userdata.db-journal"
  Delete "$INSTDIR\userdata.db-wal"
  Delete "$INSTDIR\userdata.db-shm"
  Delete "$INSTDIR\userdata.db-cleared"
  Delete "$INSTDIR\*.dmp"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${SETTINGS_KEY}"
  ReadEnvStr $0 ProgramData
  Delete "$0\VORNApp\VORNApp*.log"
  RMDir "$0\VORNApp"
  Delete "$0\vorn_temp\log\VORNApp*.log"
  RMDir "$0\vorn_temp\log"
  RMDir "$0\vorn_temp"
SectionEnd

Function un.onInit
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/PURGE" $1
  ${IfNot} ${Errors}
    SectionGetFlags ${PURGE} $1
    IntOp $1 $1 | 1
    SectionSetFlags ${PURGE} $1
  ${EndIf}
FunctionEnd
