; The setup program and the uninstaller, for Windows 98 to 11. Given by the packager: VERSION, FILES (the folder of the
; files), OUTPUT, ICON, REMOVAL (the uninstaller's steps for those files).
;
;   /S             silent
;   /AllUsers, /CurrentUser
;   /NoDesktop     without the desktop link
; The uninstaller: /S silent; /Settings removes the settings and the keep lists too.
Unicode false            ; the other kind does not start on Windows 98
SetCompressor /SOLID lzma
SetDateSave off
ManifestDPIAware true
RequestExecutionLevel highest
Name "Zubrane"
OutFile "${OUTPUT}"
BrandingText "Zubrane ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Zubrane"
VIAddVersionKey "FileDescription" "Zubrane Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The Zubrane maintainers"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "Zubrane"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zubrane"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "UninstallString"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zubrane"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!include "MultiUser.nsh"
!include "MUI2.nsh"
!include "LogicLib.nsh"
!include "FileFunc.nsh"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zubrane"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\zub.exe"
!insertmacro MUI_PAGE_LICENSE "${FILES}/License.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Asks the running program to end, as its close box does, and waits until its files are free.
!macro EndProgram UN
Function ${UN}EndProgram
  StrCpy $R0 0
  ${Do}
    FindWindow $R1 "ZubraneForm" "Zubrane"
    ${If} $R1 <> 0
      System::Call 'user32::PostMessageA(i R1, i 0x10, i 0, i 0)'
    ${EndIf}
    ClearErrors
    ${If} ${FileExists} "$INSTDIR\zub.exe"
      FileOpen $R2 "$INSTDIR\zub.exe" a
    ${EndIf}
    ${IfNot} ${Errors}
      FileClose $R2
      Return
    ${EndIf}
    Sleep 250
    IntOp $R0 $R0 + 1
  ${LoopUntil} $R0 = 40
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Zubrane is running. Choose Exit in the tray, then try again." /SD IDCANCEL IDRETRY again
  Abort "Zubrane is running."
again:
  Call ${UN}EndProgram
FunctionEnd
!macroend
!insertmacro EndProgram ""
!insertmacro EndProgram "un."

Function .onInit
  !insertmacro MULTIUSER_INIT
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/NoDesktop" $R1
  ${IfNot} ${Errors}
    SectionSetFlags 2 0
  ${EndIf}
FunctionEnd

Section "Zubrane" program
  SectionIn RO
  Call EndProgram
  SetOutPath "$INSTDIR"
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Zubrane"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "The Zubrane maintainers"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\zub.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe" /$MultiUser.InstallMode'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Start menu" startMenu
  CreateDirectory "$SMPROGRAMS\Zubrane"
  CreateShortCut "$SMPROGRAMS\Zubrane\Zubrane.lnk" "$INSTDIR\zub.exe"
  CreateShortCut "$SMPROGRAMS\Zubrane\User guide.lnk" "$INSTDIR\help\Zubrane User Guide.htm"
  CreateShortCut "$SMPROGRAMS\Zubrane\Uninstall.lnk" "$INSTDIR\Uninstall.exe" "/$MultiUser.InstallMode"
SectionEnd

Section "Desktop link" desktop
  CreateShortCut "$DESKTOP\Zubrane.lnk" "$INSTDIR\zub.exe"
SectionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/Settings" $R1
  ${IfNot} ${Errors}
    SectionSetFlags 1 1
  ${EndIf}
FunctionEnd

; What the program itself made: its entry in the Run keys and their parked twins, and its task. Those that it has no rights to
; stay.
Section "un.Zubrane" unProgram
  SectionIn RO
  Call un.EndProgram
  DeleteRegValue HKCU "${RUN_KEY}" "Zubrane"
  DeleteRegValue HKCU "${RUN_KEY}-" "Zubrane"
  DeleteRegValue HKLM "${RUN_KEY}" "Zubrane"
  DeleteRegValue HKLM "${RUN_KEY}-" "Zubrane"
  ; ITaskScheduler: release is call 2, Delete is call 6.
  System::Call 'ole32::CoCreateInstance(g "{148BD52A-A2AB-11CE-B11F-00AA00530503}", i 0, i 1, g "{148BD527-A2AB-11CE-B11F-00AA00530503}", *i .R1) i .R0'
  ${If} $R0 = 0
  ${AndIf} $R1 <> 0
    System::Call '$R1->6(w "ZUB") i .R0'
    System::Call '$R1->2()'
  ${EndIf}
  Delete "$SMPROGRAMS\Zubrane\Zubrane.lnk"
  Delete "$SMPROGRAMS\Zubrane\User guide.lnk"
  Delete "$SMPROGRAMS\Zubrane\Uninstall.lnk"
  RMDir "$SMPROGRAMS\Zubrane"
  Delete "$DESKTOP\Zubrane.lnk"
  ; The user's own plugins stay, and with them their folder.
  !include "${REMOVAL}"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd

Section /o "un.Settings and keep lists" unSettings
  ReadRegStr $R0 HKCU "Software\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders" "Cookies"
  ${If} $R0 != ""
    Delete "$R0\ZUBKeep.inf"
  ${EndIf}
  ${un.Locate} "$APPDATA\Mozilla" "/L=F /M=ZUBKeepNS6.inf" "un.DeleteFound"
  StrCpy $R0 $WINDIR 3
  Delete "$R0ZUBKeepNS6.inf"
  DeleteRegKey HKCU "Software\ZUB"
SectionEnd

Function un.DeleteFound
  Delete $R9
  Push ""
FunctionEnd
