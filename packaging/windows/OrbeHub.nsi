; The installer: for one user, without an administrator, into the user's own programs folder, which the hub may write
; to. Everything the user makes lies there too (macro, work, config/device.ini), so removing and updating leave what
; isn't known to be the program's own.
;
; packaging/windows/build passes VERSION, STAGE (the laid out program), LISTS (folder of lay.nsh and delete.nsh, made
; of what is there), ICON, PANEL (a picture) and OUTPUT.
;
;   setup /S [/D=folder]        installs silently; ends with 2 while the hub runs, with 3 if the folder can't hold it
;   uninstall /S [/REMOVEDATA]  removes silently, on demand with macros, light works and settings
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave on
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user

!include FileFunc.nsh
!include MUI2.nsh
!include WinVer.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\OrbeHub"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define SHORTCUT "$SMPROGRAMS\OrbeHub.lnk"

Name OrbeHub
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\OrbeHub"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" InstallLocation
BrandingText " "
AllowSkipFiles off

VIProductVersion "${VERSION}.0"
VIAddVersionKey CompanyName Orbe
VIAddVersionKey FileDescription "OrbeHub Setup"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey LegalCopyright ""
VIAddVersionKey ProductName OrbeHub
VIAddVersionKey ProductVersion "${VERSION}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PANEL}"
!define MUI_PAGE_CUSTOMFUNCTION_PRE skipKnownFolder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\OrbeHub.exe"
!insertmacro MUI_PAGE_FINISH
!define MUI_COMPONENTSPAGE_NODESC
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!include languages.nsh

; The program's file can't be opened for writing while it runs.
!macro DefineWaitUntilClosed prefix
Function ${prefix}waitUntilClosed
    retry:
    IfFileExists "$INSTDIR\OrbeHub.exe" 0 closed
    ClearErrors
    FileOpen $0 "$INSTDIR\OrbeHub.exe" a
    IfErrors running
    FileClose $0
    Goto closed
    running:
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(HubIsRunning)" /SD IDCANCEL IDRETRY retry
    SetErrorLevel 2
    Quit
    closed:
FunctionEnd
!macroend
!insertmacro DefineWaitUntilClosed ""
!insertmacro DefineWaitUntilClosed "un."

Function .onInit
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP "$(NeedsWindows10)" /SD IDOK
        SetErrorLevel 1
        Quit
    ${EndIf}
FunctionEnd

; An update goes where the program is.
Function skipKnownFolder
    ReadRegStr $0 HKCU "${UNINSTALL_KEY}" InstallLocation
    ${If} $0 != ""
    ${AndIf} ${FileExists} "$0\uninstall.exe"
        Abort
    ${EndIf}
FunctionEnd

; Files for the user to edit. One that is still there was edited; of a new one the time is kept, to tell later.
!macro LayEditable name
    ${IfNot} ${FileExists} "$INSTDIR\config\${name}"
        File "${STAGE}/config/${name}"
        GetFileTime "$INSTDIR\config\${name}" $0 $1
        WriteRegStr HKCU "${UNINSTALL_KEY}" "${name}" "$0 $1"
    ${EndIf}
!macroend

!macro DeleteUntouched name
    GetFileTime "$INSTDIR\config\${name}" $0 $1
    ReadRegStr $2 HKCU "${UNINSTALL_KEY}" "${name}"
    ${If} "$0 $1" == $2
        Delete "$INSTDIR\config\${name}"
    ${EndIf}
!macroend

Section OrbeHub program
    Call waitUntilClosed
    Call checkRoom
    ; What only the former version had goes with its own uninstaller; it works in place, so that it can be waited for.
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ExecWait '"$INSTDIR\uninstall.exe" /S /UPDATE _?=$INSTDIR' $0
    ${EndIf}

    SetOutPath "$INSTDIR"
    !include "${LISTS}/lay.nsh"
    SetOutPath "$INSTDIR\config"
    !insertmacro LayEditable enumsetting.ini
    !insertmacro LayEditable CustomDeviceList.json
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortCut "${SHORTCUT}" "$INSTDIR\OrbeHub.exe"

    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayName OrbeHub
    WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\OrbeHub.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" Publisher Orbe
    WriteRegStr HKCU "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" EstimatedSize $0
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoRepair 1
SectionEnd

; Before anything is changed: a former version is not exchanged for half of a new one.
Function checkRoom
    ClearErrors
    CreateDirectory "$INSTDIR"
    FileOpen $0 "$INSTDIR\uninstall.new" w
    IfErrors unfit
    FileClose $0
    Delete "$INSTDIR\uninstall.new"
    SectionGetSize ${program} $0 ; KB
    System::Call 'kernel32::GetDiskFreeSpaceExW(w "$INSTDIR", *l .r1, p 0, p 0) i .r2'
    ${If} $2 = 0
        Return
    ${EndIf}
    System::Int64Op $1 / 1024
    Pop $1
    System::Int64Op $1 < $0
    Pop $2
    IntCmp $2 0 fit
    unfit:
    RMDir "$INSTDIR" ; goes only if it is new
    MessageBox MB_OK|MB_ICONSTOP "$(^CantWrite)$INSTDIR" /SD IDOK
    SetErrorLevel 3
    Quit
    fit:
FunctionEnd

Section "un.OrbeHub"
    SectionIn RO
    Call un.waitUntilClosed
    SetOutPath "$TEMP" ; a folder that is the working folder can't be removed
    !insertmacro DeleteUntouched enumsetting.ini
    !insertmacro DeleteUntouched CustomDeviceList.json
    !include "${LISTS}/delete.nsh"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/UPDATE" $1
    IfErrors 0 updating
    Delete "${SHORTCUT}"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    ReadRegStr $0 HKCU "${RUN_KEY}" OrbeHub
    ${If} $0 == '"$INSTDIR\OrbeHub.exe"'
        DeleteRegValue HKCU "${RUN_KEY}" OrbeHub
    ${EndIf}
    updating:
SectionEnd

; By name: the folder may be one that holds more than the hub.
!macro DeleteData folder
    Delete "${folder}\macro\macroheader.txt*"
    Delete "${folder}\macro\macroevent*.txt*"
    RMDir "${folder}\macro"
    Delete "${folder}\work\ledwork.json*"
    RMDir "${folder}\work"
    Delete "${folder}\config\device.ini"
    Delete "${folder}\config\enumsetting.ini"
    Delete "${folder}\config\CustomDeviceList.json"
    RMDir "${folder}\config"
    RMDir "${folder}"
!macroend

Section /o "un.$(UserData)" userData
    !insertmacro DeleteData "$INSTDIR"
    !insertmacro DeleteData "$LOCALAPPDATA\OrbeHub"
    DeleteRegKey HKCU "Software\Orbe"
SectionEnd

Function un.onInit
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/REMOVEDATA" $1
    ${IfNot} ${Errors}
        !insertmacro SelectSection ${userData}
    ${EndIf}
FunctionEnd
