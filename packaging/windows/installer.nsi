; The installer for Windows: for one user, without an administrator, since the settings stand beside the program.
; makensis -DVERSION=... -DSOURCE=folder-with-the-files -DREMOVAL=list.nsh -DOUTPUT=installer.exe installer.nsi
; REMOVAL names a file with a Delete line for each file of SOURCE.
Unicode true
ManifestDPIAware true
SetCompressor /SOLID lzma
RequestExecutionLevel user
Name "Tarnwick"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tarnwick"
InstallDirRegKey HKCU "Software\Tarnwick" "InstallFolder"
ShowInstDetails nevershow
ShowUninstDetails nevershow

!include MUI2.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\Tarnwick.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick"
!define PROGRAM "Software\Classes\Applications\Tarnwick.exe"

Section
  SetOutPath "$INSTDIR"
  File /r "${SOURCE}\*"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Tarnwick.lnk" "$INSTDIR\Tarnwick.exe"
  WriteRegStr HKCU "Software\Tarnwick" "InstallFolder" "$INSTDIR"
  ; "Open with" offers it for projects. What opens them, or sources, by a double click is the user's own choice.
  WriteRegStr HKCU "${PROGRAM}\shell\open\command" "" '"$INSTDIR\Tarnwick.exe" "%1"'
  WriteRegStr HKCU "${PROGRAM}" "FriendlyAppName" "Tarnwick"
  WriteRegStr HKCU "${PROGRAM}\SupportedTypes" ".twp" ""
  WriteRegStr HKCU "Software\Classes\.twp\OpenWithList\Tarnwick.exe" "" ""
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Tarnwick"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\Tarnwick.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Tarnwick authors"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

; Only what the installer has brought goes, name by name: the settings beside the program are the user's, and so is
; whatever else was put there.
Section Uninstall
  !include "${REMOVAL}"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Tarnwick.lnk"
  DeleteRegKey HKCU "${PROGRAM}"
  DeleteRegKey HKCU "Software\Classes\.twp\OpenWithList\Tarnwick.exe"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegKey HKCU "Software\Tarnwick"
SectionEnd
