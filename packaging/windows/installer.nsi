; makensis -DVERSION=.. -DFOLDER=.. -DICON=.. -DFILES=.. -DOUTPUT=.. installer.nsi
; FOLDER is what `cmake --install` laid down, FILES a list with a Delete and an RMDir for each of it: nothing else is ever
; removed. Signing, where there is a certificate: !finalize and !uninstfinalize take the command.
Unicode true
Target amd64-unicode
!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh

!define NAME Morvane
!define OWN_KEY "Software\Orrinsoft\Morvane"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Morvane"

Name "${NAME} ${VERSION}"
OutFile "${OUTPUT}"
Icon "${ICON}"
UninstallIcon "${ICON}"
SetCompressor /SOLID lzma
; An administrator is needed for /ALLUSERS only; who asks for that starts the installer as one.
RequestExecutionLevel user
ShowInstDetails nevershow
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs ${NAME}"
VIAddVersionKey LegalCopyright "MIT license"

Var DataFolder
Var IsForAll
Var HasEarlier

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\morvane.exe"
!insertmacro MUI_PAGE_LICENSE "${FOLDER}\licences\LICENSE"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!define MUI_DIRECTORYPAGE_VARIABLE $DataFolder
!define MUI_PAGE_HEADER_TEXT "Data folder"
!define MUI_PAGE_HEADER_SUBTEXT "Where the base images, your sets and your backups go."
!define MUI_DIRECTORYPAGE_TEXT_TOP "Morvane keeps its base images, your texture sets and the backups of your simulator here: half a gigabyte at first, more with each set."
!define MUI_DIRECTORYPAGE_TEXT_DESTINATION "Data folder"
!define MUI_PAGE_CUSTOMFUNCTION_PRE skipForEarlier
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; Reads and writes of the program's own key, for this user or for all.
!macro readOwn VARIABLE KEY VALUE
    ${If} $IsForAll == 1
        ReadRegStr ${VARIABLE} HKLM "${KEY}" "${VALUE}"
    ${Else}
        ReadRegStr ${VARIABLE} HKCU "${KEY}" "${VALUE}"
    ${EndIf}
!macroend
!macro writeOwn KEY VALUE TEXT
    ${If} $IsForAll == 1
        WriteRegStr HKLM "${KEY}" "${VALUE}" `${TEXT}`
    ${Else}
        WriteRegStr HKCU "${KEY}" "${VALUE}" `${TEXT}`
    ${EndIf}
!macroend
; What the desktop opens with Morvane. Plans belong to the simulator and its planners: for them Morvane is one of those
; that "Open with" offers. Its own files it opens, unless another program has them.
!macro writeClass KEY VALUE TEXT
    ${If} $IsForAll == 1
        WriteRegStr HKLM "Software\Classes\${KEY}" "${VALUE}" `${TEXT}`
    ${Else}
        WriteRegStr HKCU "Software\Classes\${KEY}" "${VALUE}" `${TEXT}`
    ${EndIf}
!macroend
!macro readClass VARIABLE KEY
    ${If} $IsForAll == 1
        ReadRegStr ${VARIABLE} HKLM "Software\Classes\${KEY}" ""
    ${Else}
        ReadRegStr ${VARIABLE} HKCU "Software\Classes\${KEY}" ""
    ${EndIf}
!macroend
!macro deleteClass KEY
    ${If} $IsForAll == 1
        DeleteRegKey HKLM "Software\Classes\${KEY}"
    ${Else}
        DeleteRegKey HKCU "Software\Classes\${KEY}"
    ${EndIf}
!macroend
!macro writeKindOfFile CLASS MEANING
    !insertmacro writeClass "${CLASS}" "" "${MEANING}"
    !insertmacro writeClass "${CLASS}\DefaultIcon" "" "$INSTDIR\morvane.exe,0"
    !insertmacro writeClass "${CLASS}\shell\open\command" "" '"$INSTDIR\morvane.exe" "%1"'
!macroend
!macro offerToOpen ENDING CLASS
    !insertmacro writeClass "${ENDING}\OpenWithProgids" "${CLASS}" ""
    !insertmacro writeClass "Applications\morvane.exe\SupportedTypes" "${ENDING}" ""
!macroend
; What others have put there stays, and so does a key with anything left in it.
!macro withdrawOffer ENDING CLASS
    ${If} $IsForAll == 1
        DeleteRegValue HKLM "Software\Classes\${ENDING}\OpenWithProgids" "${CLASS}"
        DeleteRegKey /ifempty HKLM "Software\Classes\${ENDING}\OpenWithProgids"
        DeleteRegKey /ifempty HKLM "Software\Classes\${ENDING}"
    ${Else}
        DeleteRegValue HKCU "Software\Classes\${ENDING}\OpenWithProgids" "${CLASS}"
        DeleteRegKey /ifempty HKCU "Software\Classes\${ENDING}\OpenWithProgids"
        DeleteRegKey /ifempty HKCU "Software\Classes\${ENDING}"
    ${EndIf}
!macroend
!macro tellDesktop
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend
!macro findPlaces
    SetRegView 32 ; the simulator and its companions are 32-bit programs
    ${If} $IsForAll == 1
        SetShellVarContext all
    ${Else}
        SetShellVarContext current
    ${EndIf}
!macroend

Function .onInit
    StrCpy $IsForAll 0
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/ALLUSERS" $1
    ${IfNot} ${Errors}
        StrCpy $IsForAll 1
    ${EndIf}
    !insertmacro findPlaces
    ${If} $IsForAll == 1
        UserInfo::GetAccountType
        Pop $1
        ${If} $1 != "admin"
            MessageBox MB_ICONSTOP "Only an administrator can install Morvane for all users." /SD IDOK
            SetErrorLevel 5
            Abort
        ${EndIf}
    ${EndIf}
    ${GetOptions} $0 "/DATA=" $DataFolder
    ; An earlier one of ours stays where it is, and so do its data.
    !insertmacro readOwn $1 "${UNINSTALL_KEY}" "InstallLocation"
    !insertmacro readOwn $2 "${OWN_KEY}" "DataFolder"
    StrCpy $HasEarlier 0
    ${If} $1 != ""
        StrCpy $HasEarlier 1
        StrCpy $INSTDIR $1
    ${EndIf}
    ${If} $2 != ""
        StrCpy $DataFolder $2
    ${EndIf}
    ${If} $INSTDIR == ""
        ${If} $IsForAll == 1
            StrCpy $INSTDIR "$PROGRAMFILES64\Morvane"
        ${Else}
            StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Morvane"
        ${EndIf}
    ${EndIf}
    ${If} $DataFolder == ""
        StrCpy $DataFolder "$LOCALAPPDATA\Morvane"
        ${If} $IsForAll == 1
            ReadEnvStr $DataFolder ProgramData
            StrCpy $DataFolder "$DataFolder\Morvane"
        ${EndIf}
    ${EndIf}
FunctionEnd

Function skipForEarlier
    ${If} $HasEarlier == 1
        Abort
    ${EndIf}
FunctionEnd

Section "Morvane"
    SectionIn RO
    ClearErrors
    SetOutPath "$INSTDIR"
    SetOverwrite on
    File /r "${FOLDER}\*"
    ${If} ${Errors}
        MessageBox MB_ICONSTOP "The programs could not be written into $INSTDIR. Please end Morvane and try again." /SD IDOK
        SetErrorLevel 2
        Abort
    ${EndIf}
    WriteUninstaller "$INSTDIR\uninstall.exe"
    !insertmacro writeOwn "${OWN_KEY}" "DataFolder" "$DataFolder"
    ${If} $HasEarlier == 0
        !insertmacro writeOwn "${OWN_KEY}" "FirstTime" "True"
        ${If} $IsForAll == 1
            ; What a first start gives its own user alone (app/first_values.cpp), for those that come later.
            WriteRegStr HKLM "${OWN_KEY}" "WeatherServer" "https://tgftp.nws.noaa.gov"
            WriteRegStr HKLM "${OWN_KEY}" "WeatherPath" "/data/observations/metar/cycles/"
            WriteRegStr HKLM "${OWN_KEY}" "WeatherFormat" "noaa"
        ${EndIf}
    ${EndIf}
    ${If} $IsForAll == 1
        ; One data folder, in which all users write.
        CreateDirectory "$DataFolder"
        nsExec::Exec 'icacls "$DataFolder" /grant *S-1-5-32-545:(OI)(CI)M'
        Pop $0
    ${EndIf}
    CreateDirectory "$SMPROGRAMS\Morvane"
    CreateShortcut "$SMPROGRAMS\Morvane\Morvane.lnk" "$INSTDIR\morvane.exe"
    CreateShortcut "$SMPROGRAMS\Morvane\Uninstall Morvane.lnk" "$INSTDIR\uninstall.exe"
    !insertmacro writeOwn "${UNINSTALL_KEY}" "DisplayName" "Morvane"
    !insertmacro writeOwn "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    !insertmacro writeOwn "${UNINSTALL_KEY}" "Publisher" "The Morvane developers"
    !insertmacro writeOwn "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\morvane.exe"
    !insertmacro writeOwn "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    !insertmacro writeOwn "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    !insertmacro writeOwn "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
SectionEnd

Section "Open flight plans and shared sets"
    SetRegView 64 ; where the desktop reads
    !insertmacro writeKindOfFile "Morvane.FlightPlan" "Flight plan"
    !insertmacro writeKindOfFile "Morvane.SharedSet" "Morvane texture set"
    !insertmacro writeClass "Applications\morvane.exe\shell\open\command" "" '"$INSTDIR\morvane.exe" "%1"'
    !insertmacro offerToOpen ".pln" "Morvane.FlightPlan"
    !insertmacro offerToOpen ".lnmpln" "Morvane.FlightPlan"
    !insertmacro offerToOpen ".morvaneset" "Morvane.SharedSet"
    ReadRegStr $0 HKCR ".morvaneset" ""
    ${If} $0 == ""
        !insertmacro writeClass ".morvaneset" "" "Morvane.SharedSet"
    ${EndIf}
    !insertmacro tellDesktop
    SetRegView 32
SectionEnd

Function un.onInit
    ; Installed for whom? The one whose entry names this folder.
    StrCpy $IsForAll 0
    SetRegView 32
    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 == $INSTDIR
        StrCpy $IsForAll 1
    ${EndIf}
    !insertmacro findPlaces
    !insertmacro readOwn $DataFolder "${OWN_KEY}" "DataFolder"
FunctionEnd

Section Uninstall
    MessageBox MB_YESNO|MB_ICONQUESTION "Shall your own textures, as they were before Morvane, be put back into the simulator first?" /SD IDNO IDNO keep
    nsExec::Exec '"$INSTDIR\morvane-cli.exe" --answer yes originals restore'
    Pop $0
    ${If} $0 != 0
        MessageBox MB_YESNO|MB_ICONEXCLAMATION "Not all of them could be put back. Nothing was lost: they are kept in $DataFolder. Shall Morvane be removed all the same?" /SD IDNO IDYES keep
        SetErrorLevel 1
        Abort
    ${EndIf}
keep:
    !include "${FILES}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Morvane\Morvane.lnk"
    Delete "$SMPROGRAMS\Morvane\Uninstall Morvane.lnk"
    RMDir "$SMPROGRAMS\Morvane"
    ${If} $IsForAll == 1
        DeleteRegKey HKLM "${UNINSTALL_KEY}"
    ${Else}
        DeleteRegKey HKCU "${UNINSTALL_KEY}"
    ${EndIf}
    SetRegView 64
    !insertmacro readClass $0 ".morvaneset"
    ${If} $0 == "Morvane.SharedSet"
        ${If} $IsForAll == 1
            DeleteRegValue HKLM "Software\Classes\.morvaneset" ""
        ${Else}
            DeleteRegValue HKCU "Software\Classes\.morvaneset" ""
        ${EndIf}
    ${EndIf}
    !insertmacro withdrawOffer ".pln" "Morvane.FlightPlan"
    !insertmacro withdrawOffer ".lnmpln" "Morvane.FlightPlan"
    !insertmacro withdrawOffer ".morvaneset" "Morvane.SharedSet"
    !insertmacro deleteClass "Morvane.FlightPlan"
    !insertmacro deleteClass "Morvane.SharedSet"
    !insertmacro deleteClass "Applications\morvane.exe"
    !insertmacro tellDesktop
    SetRegView 32
    ; The value that says where they are stays, so that a later install finds them.
    MessageBox MB_ICONINFORMATION "Your backups, originals and texture sets are left where they are: $DataFolder" /SD IDOK
SectionEnd
