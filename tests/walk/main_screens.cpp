#include "sets/options_in_force.h"
#include "walk/walk_tables.h"

namespace morvane::test {

WalkRows mainWindowRows(const QString& deadKey) {
    const WalkRows rows{{u"btn_Home"_s, shows(u"frm_Main"_s)},
                        {u"btn_MVTextures"_s, shows(u"frm_MVTextures"_s)},
                        {u"btn_KMTextures"_s, shows(u"frm_KMTextures"_s)},
                        {u"btn_NightTextures"_s, shows(u"frm_NightTextures"_s)},
                        {u"btn_FlightConfig"_s, shows(u"frm_Main/frm_WxControl"_s)},
                        {u"btn_Switcher"_s, shows(u"frm_Main/frm_Switcher"_s)},
                        {u"btn_Config"_s, shows(u"frm_Main/frm_Config"_s)},
                        {u"btn_MainLinks"_s, shows(u"frm_Main/frm_Links"_s)},
                        {u"btn_Help"_s, opensHelp()},
                        {u"btn_About"_s, shows(u"frm_Main/frm_About"_s)},
                        {u"btn_Minimize"_s, shows(u"minimised"_s)},
                        {u"btn_Exit"_s, ends()},
                        {u"(F1)"_s, opensHelp()},
                        {u"(Escape)"_s, nothing("a window has nothing to cancel")}};
    WalkRows alive;
    std::ranges::copy_if(rows, std::back_inserter(alive),
                         [&](const WalkRow& row) { return row.control != deadKey; });
    return alive;
}

namespace {

std::function<void(Walk&)> page(const QString& name) {
    return [=](Walk& walk) {
        openHome(walk);
        walk.program().shell.goToPage(name);
    };
}

Effect takesOption(bool OptionsInForce::*flag) {
    return becomes([flag](Session& session) {
               return session.state<OptionsInForce>().*flag ? u"on"_s : u"off"_s;
           })
        .lasting();
}

/// Behind the message that says so.
Effect option(bool OptionsInForce::*flag) {
    return takesOption(flag).after({Qt::Key_Return});
}

} // namespace

std::vector<WalkScreen> mainScreens() {
    return {
        {"status", u"frm_Main"_s, openHome, false,
         mainWindowRows(u"btn_Home"_s) + WalkRows{{u"btn_GroundInstall"_s, shows(u"frm_TsRequired"_s)},
                                                  {u"btn_SkyInstall"_s, shows(u"frm_SelectSkyTexture"_s)},
                                                  {u"btn_MVConfig"_s, shows(u"frm_Main/frm_Config"_s)},
                                                  {u"btn_Undo"_s, shows(u"message Undo Last Install"_s)},
                                                  {u"cmdCheckFiles"_s, shows(u"frm_InSimulator"_s)}}},
        {"options", u"frm_Switcher"_s, page(u"frm_Switcher"_s), false,
         mainWindowRows(u"btn_Switcher"_s) +
             WalkRows{{u"chkWideFS"_s, option(&OptionsInForce::IsWideClient)},
                      {u"chkDutch"_s, takesOption(&OptionsInForce::IsDutch)},
                      {u"chkNonTropical"_s, takesOption(&OptionsInForce::IsTropical)},
                      {u"chkHalo"_s, option(&OptionsInForce::IsHalo)},
                      {u"chkFastExit"_s, option(&OptionsInForce::IsFastExit)},
                      {u"chkCustomSplash"_s, option(&OptionsInForce::InhibitCustomSplash)},
                      {u"cmdMoreSettings"_s, shows(u"frm_MoreSettings"_s)},
                      {u"btn_RegOK"_s, shows(u"box Please select a folder..."_s)}}},
        {"base_install", u"frm_Config"_s, page(u"frm_Config"_s), false,
         mainWindowRows(u"btn_Config"_s) +
             WalkRows{{u"lstMVMain"_s, label(u"lblMVDescription"_s, u"About Golf"_s)},
                      {u"cmdPutOwnBack"_s, shows(u"message Put My Own Files Back"_s)},
                      {u"cmdUseSimulator"_s, shows(u"message Use My Simulator's Textures"_s)},
                      {u"btn_MVInstall"_s, shows(u"message No Options Selected"_s)},
                      {u"btn_backup"_s, shows(u"message Create New Backup?"_s)},
                      {u"btn_Restore_Backup"_s, shows(u"frm_BackupList"_s)},
                      {u"btn_Update"_s, opens(u"https://updateserver.example/updates.asp"_s)}}},
        {"links", u"frm_Links"_s, page(u"frm_Links"_s), false,
         mainWindowRows(u"btn_MainLinks"_s) +
             WalkRows{{u"cmdOpen0"_s, opens(u"https://homepage.example/"_s)},
                      {u"cmdOpen1"_s, opens(u"https://updateserver.example/"_s)},
                      {u"cmdOpen2"_s, opens(u"https://activeskypage.example/"_s)},
                      {u"cmdOpen3"_s, opens(u"https://aviationweather.gov/"_s)},
                      {u"cmdOpen4"_s, opens(u"https://ourairports.com/"_s)},
                      {u"cmdOpen5"_s, opens(u"https://www.flightsim.com/"_s)},
                      {u"cmdOpen6"_s, opens(u"https://www.fsdeveloper.com/"_s)}}},
        {"about", u"frm_About"_s, page(u"frm_About"_s), false,
         mainWindowRows(u"btn_About"_s) + WalkRows{{u"txtNews"_s, nothing("it is there to be read")},
                                                   {u"cmdSaveReport"_s, shows(u"box Save a Report"_s)}}},
    };
}

} // namespace morvane::test
