#include "window/dispatch_table.h"

#include "core/flights_folder.h"
#include "core/literals.h"
#include "ground/ground_generation.h"
#include "ground/ground_sets.h"
#include "ground/screens/ground_colour_screen.h"
#include "night/night_sets.h"
#include "night/screens/night_colour_screen.h"
#include "sheets/screens/set_sheet_screen.h"
#include "simulator/backup_files.h"
#include "simulator/backup_restore.h"
#include "simulator/screens/base_install_screen.h"
#include "simulator/screens/kept_screen.h"
#include "simulator/screens/simulator_check_screen.h"
#include "simulator/set_matching.h"
#include "simulator/simulator_launch.h"
#include "simulator/undo_install.h"
#include "sky/screens/sky_colour_screen.h"
#include "sky/sky_generation.h"
#include "sky/sky_sets.h"
#include "ui/dialog_form.h"
#include "weather/cover_choice.h"
#include "weather/report_filter.h"
#include "weather/screens/cover_report_screen.h"
#include "weather/screens/weather_screen.h"
#include "weather/weather_refresh.h"
#include "window/window_shell.h"

#include <algorithm>
#include <array>

namespace morvane {

namespace {

// Sets ---------------------------------------------------------------------------------------------------

/// One key, two directions: the state tells which.
template <class Kind>
void activateSet(WindowShell& shell, SkinnedButton& button) {
    if (button.state() == ButtonState::deactivate)
        Kind::remove(shell.session(), true);
    else
        Kind::activate(shell.session());
}

template <class Kind>
void deleteSet(WindowShell& shell, SkinnedButton&) {
    Kind::remove(shell.session(), false);
}

template <class Kind>
void installSet(WindowShell& shell, SkinnedButton&) {
    if (Kind::install(shell.session())) offerSimulatorStart(shell.session());
}

/// `method` is one of the page of that name.
template <class Page, const char16_t* name, auto method>
void onColours(WindowShell& shell, SkinnedButton&) {
    (shell.screen<Page>(QString::fromUtf16(name)).*method)();
}

void createGroundSets(WindowShell& shell, SkinnedButton& button) {
    GroundGeneration(shell.session()).createTextureSets(Form::of(&button)->formName() == u"frm_Main");
}

void createSkySets(WindowShell& shell, SkinnedButton& button) {
    SkyGeneration(shell.session()).createSkySets(Form::of(&button)->formName() == u"frm_Main");
}

// Flights ------------------------------------------------------------------------------------------------

void selectFlight(WindowShell& shell, SkinnedButton&) {
    startSavedFlight(shell.session());
}

// Weather ------------------------------------------------------------------------------------------------

void processReport(WindowShell& shell, SkinnedButton&) {
    shell.screen<frm_CC_From_Metar_String>(u"frm_CC_From_Metar_String"_s).processMetarString();
}

void findWeather(WindowShell& shell, SkinnedButton&) {
    showWxFinder(shell.session());
}

void flyNowKey(WindowShell& shell, SkinnedButton&) {
    flyNow(shell.session());
}

void clearFilter(WindowShell& shell, SkinnedButton&) {
    shell.screen<frm_WxControl>(u"frm_WxControl"_s).ClearFilter();
}

void refreshWeatherCycle(WindowShell& shell, SkinnedButton&) {
    refreshWeather(shell.session());
}

// Base install and options -------------------------------------------------------------------------------

void installBase(WindowShell& shell, SkinnedButton&) {
    shell.screen<frm_Config>(u"frm_Config"_s).install();
}

void makeBackup(WindowShell& shell, SkinnedButton&) {
    backupOnRequest(shell.session());
}

void bringBackupBack(WindowShell& shell, SkinnedButton&) {
    restoreBackupOnRequest(shell.session());
}

void undoInstall(WindowShell& shell, SkinnedButton&) {
    undoLastInstall(shell.session());
    shell.refreshMainStatus();
}

template <DifferenceChoice choice>
void settleTicked(WindowShell&, SkinnedButton& button) {
    static_cast<frm_InSimulator*>(Form::of(&button))->settle(choice);
}

template <void (frm_SetSheet::*action)()>
void onSheet(WindowShell&, SkinnedButton& button) {
    (static_cast<frm_SetSheet*>(Form::of(&button))->*action)();
}

void getReady(WindowShell& shell, SkinnedButton&) {
    shell.session().user.showModal(Screen::frm_Ready);
}

void removeKeptThing(WindowShell& shell, SkinnedButton&) {
    shell.screen<frm_WhatIsKept>(u"frm_WhatIsKept"_s).removeChosen();
}

void openUpdatePage(WindowShell& shell, SkinnedButton&) {
    shell.openUpdatePage();
}

void chooseFlightsFolder(WindowShell& shell, SkinnedButton&) {
    setNonEnglishRegVal(shell.session());
}

// Windows and pages --------------------------------------------------------------------------------------

void exitProgram(WindowShell& shell, SkinnedButton&) {
    shell.exitProgram();
}

void minimiseProgram(WindowShell& shell, SkinnedButton&) {
    shell.minimiseProgram();
}

void goHome(WindowShell& shell, SkinnedButton&) {
    shell.goHome();
}

void openHelp(WindowShell& shell, SkinnedButton&) {
    shell.openHelp();
}

void leaveHost(WindowShell& shell, SkinnedButton& button) {
    shell.leaveHost(Form::of(&button)->formName());
}

void showList(WindowShell& shell, SkinnedButton& button) {
    shell.showList(Form::of(&button)->formName());
}

template <const char16_t* page>
void goTo(WindowShell& shell, SkinnedButton&) {
    shell.goToPage(QString::fromUtf16(page));
}

template <const char16_t* host>
void showHost(WindowShell& shell, SkinnedButton&) {
    shell.showHost(QString::fromUtf16(host));
}

// Dialogs ------------------------------------------------------------------------------------------------

void confirmDialog(WindowShell&, SkinnedButton& button) {
    if (auto* dialog = qobject_cast<DialogForm*>(Form::of(&button))) dialog->ok();
}

void cancelDialog(WindowShell&, SkinnedButton& button) {
    if (auto* dialog = qobject_cast<DialogForm*>(Form::of(&button))) dialog->cancel();
}

// The table ----------------------------------------------------------------------------------------------

constexpr auto large = ButtonFamily::LargeButton;
constexpr auto small = ButtonFamily::smallButton;
constexpr auto standard = ButtonFamily::StandardButton;
constexpr auto medium = ButtonFamily::MediumButton;

constexpr char16_t main[] = u"frm_Main", ground[] = u"frm_MVTextures", sky[] = u"frm_KMTextures",
                   night[] = u"frm_NightTextures", groundColours[] = u"frm_GroundColorize",
                   skyColours[] = u"frm_SkyColorize", nightColours[] = u"frm_NightColorize",
                   wxControl[] = u"frm_WxControl", coverReport[] = u"frm_CC_From_Metar_String",
                   switcher[] = u"frm_Switcher", config[] = u"frm_Config", kept[] = u"frm_WhatIsKept",
                   moreSettings[] = u"frm_MoreSettings", sheet[] = u"frm_SetSheet", links[] = u"frm_Links",
                   about[] = u"frm_About", inSimulator[] = u"frm_InSimulator";
constexpr char16_t anyForm[] = u"*"; ///< small keys mean the same wherever they lie, and so do a dialog's

struct Entry {
    ButtonFamily family;
    const char16_t* form;
    const char16_t* key;
    ButtonAction action;
};

constexpr Entry entries[] = {
    {small, anyForm, u"exit", exitProgram},
    {small, anyForm, u"minimize", minimiseProgram},

    {medium, main, u"home", goHome},
    {medium, main, u"mv textures", showHost<ground>},
    {medium, main, u"km textures", showHost<sky>},
    {medium, main, u"night textures", showHost<night>},
    {medium, main, u"flight config", goTo<wxControl>},
    {medium, main, u"switcher info", goTo<switcher>},
    {medium, main, u"mv config", goTo<config>},
    {medium, main, u"links", goTo<links>},
    {medium, main, u"help", openHelp},
    {medium, main, u"about", goTo<about>},
    {large, main, u"main ground install", createGroundSets},
    {large, main, u"main sky install", createSkySets},
    {large, main, u"main mv config", goTo<config>},
    {large, main, u"undo install", undoInstall},

    {medium, ground, u"home", leaveHost},
    {medium, ground, u"texture sets", showList},
    {medium, ground, u"ground", goTo<groundColours>},
    {large, ground, u"delete ts", deleteSet<GroundKind>},
    {large, ground, u"create ts", createGroundSets},
    {large, ground, u"activate ts", activateSet<GroundKind>},
    {large, ground, u"install ts", installSet<GroundKind>},

    {large, groundColours, u"random advanced",
     onColours<frm_GroundColorize, groundColours, &frm_GroundColorize::drawValues>},
    {large, groundColours, u"open texture",
     onColours<frm_GroundColorize, groundColours, &frm_GroundColorize::openTexture>},
    {large, groundColours, u"add fav",
     onColours<frm_GroundColorize, groundColours, &frm_GroundColorize::addFavourite>},

    {large, wxControl, u"selectflight", selectFlight},
    {large, wxControl, u"wxfinder", findWeather},
    {large, coverReport, u"process metar string", processReport},
    {large, wxControl, u"flynow", flyNowKey},
    {standard, wxControl, u"clearfilter", clearFilter},
    {large, wxControl, u"wxrefresh", refreshWeatherCycle},

    {large, config, u"mvinstall", installBase},
    {large, config, u"backup", makeBackup},
    {large, config, u"restore", bringBackupBack},
    {large, config, u"update", openUpdatePage},
    {large, inSimulator, u"take as mine", settleTicked<DifferenceChoice::takeAsMine>},
    {large, inSimulator, u"put ours back", settleTicked<DifferenceChoice::putOursBack>},
    {large, inSimulator, u"put own back", settleTicked<DifferenceChoice::putOwnBack>},
    {large, sheet, u"base beside", onSheet<&frm_SetSheet::turnBeside>},
    {large, sheet, u"save sheet", onSheet<&frm_SetSheet::savePicture>},
    {standard, switcher, u"regupdate", chooseFlightsFolder},
    {large, kept, u"remove kept", removeKeptThing},
    {large, moreSettings, u"get ready", getReady},

    {medium, sky, u"home", leaveHost},
    {medium, sky, u"sky texture sets", showList},
    {medium, sky, u"sky", goTo<skyColours>},
    {large, sky, u"delete sts", deleteSet<SkyKind>},
    {large, sky, u"create sts", createSkySets},
    {large, sky, u"activate sts", activateSet<SkyKind>},
    {large, sky, u"install sts", installSet<SkyKind>},

    {large, skyColours, u"random sky",
     onColours<frm_SkyColorize, skyColours, &frm_SkyColorize::randomizeSky>},
    {large, skyColours, u"open sky",
     onColours<frm_SkyColorize, skyColours, &frm_SkyColorize::openBaseSkyImage>},
    {large, skyColours, u"add fav sky",
     onColours<frm_SkyColorize, skyColours, &frm_SkyColorize::addFavourite>},

    {medium, night, u"home", leaveHost},
    {medium, night, u"texture sets", showList},
    {medium, night, u"ground", goTo<nightColours>},
    {large, night, u"delete ts", deleteSet<NightKind>},
    {large, night, u"activate ts", activateSet<NightKind>},
    {large, night, u"install ts", installSet<NightKind>},

    {large, nightColours, u"random night",
     onColours<frm_NightColorize, nightColours, &frm_NightColorize::drawValues>},
    {large, nightColours, u"open texture",
     onColours<frm_NightColorize, nightColours, &frm_NightColorize::openTexture>},
    {large, nightColours, u"add fav",
     onColours<frm_NightColorize, nightColours, &frm_NightColorize::addFavourite>},

    {standard, anyForm, u"ok", confirmDialog},
    {standard, anyForm, u"cancel", cancelDialog},
};

} // namespace

ButtonAction actionOf(ButtonFamily family, const QString& form, const QString& key) {
    const QString wanted = key.toLower();
    const auto entry = std::find_if(std::begin(entries), std::end(entries), [&](const Entry& candidate) {
        return candidate.family == family && QStringView(candidate.key) == wanted &&
               (candidate.form == anyForm || QStringView(candidate.form) == form);
    });
    return entry == std::end(entries) ? nullptr : entry->action;
}

} // namespace morvane
