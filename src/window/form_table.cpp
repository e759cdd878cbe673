#include "window/form_table.h"

#include "ground/screens/ground_colour_screen.h"
#include "ground/screens/ground_sets_screen.h"
#include "ground/screens/sample_screen.h"
#include "ground/screens/set_counts_screen.h"
#include "night/screens/night_colour_screen.h"
#include "night/screens/night_sample_screen.h"
#include "night/screens/night_sets_screen.h"
#include "sets/screens/favourite_screen.h"
#include "sets/screens/name_choice_screen.h"
#include "sheets/screens/set_sheet_screen.h"
#include "simulator/screens/backup_list_screen.h"
#include "simulator/screens/base_install_screen.h"
#include "simulator/screens/flight_screen.h"
#include "simulator/screens/kept_screen.h"
#include "simulator/screens/more_settings_screen.h"
#include "simulator/screens/options_screen.h"
#include "simulator/screens/ready_screen.h"
#include "simulator/screens/simulator_check_screen.h"
#include "sky/screens/base_sky_screen.h"
#include "sky/screens/sky_colour_screen.h"
#include "sky/screens/sky_set_counts_screen.h"
#include "sky/screens/sky_sets_screen.h"
#include "weather/screens/cover_airports_screen.h"
#include "weather/screens/cover_method_screen.h"
#include "weather/screens/cover_option_screen.h"
#include "weather/screens/cover_report_screen.h"
#include "weather/screens/decoded_report_screen.h"
#include "weather/screens/flight_plan_screen.h"
#include "weather/screens/metar_request_screen.h"
#include "weather/screens/weather_finder_screen.h"
#include "weather/screens/weather_screen.h"
#include "window/about_screen.h"
#include "window/links_screen.h"
#include "window/main_screen.h"
#include "window/message_screen.h"
#include "window/splash_screen.h"

#include <functional>

namespace morvane {

namespace {

struct FormEntry {
    QString name;
    std::function<Form*(Shell&)> make;
};

template <class Screen>
FormEntry screenEntry(const QString& name) {
    return {name, [](Shell& shell) { return new Screen(shell); }};
}

const std::vector<FormEntry>& formEntries() {
    static const std::vector<FormEntry> entries{
        screenEntry<frm_Main>(u"frm_Main"_s),
        screenEntry<frm_Splash>(u"frm_Splash"_s),
        screenEntry<frm_Msg>(u"frm_Msg"_s),
        screenEntry<frm_AddFav>(u"frm_AddFav"_s),
        screenEntry<frm_MultiDelete>(u"frm_MultiDelete"_s),
        screenEntry<frm_SelectTexture>(u"frm_SelectTexture"_s),
        screenEntry<frm_SelectSkyTexture>(u"frm_SelectSkyTexture"_s),
        screenEntry<frm_SelectBaseSky>(u"frm_SelectBaseSky"_s),
        screenEntry<frm_TsRequired>(u"frm_TsRequired"_s),
        screenEntry<frm_flight>(u"frm_flight"_s),
        screenEntry<frm_metar_request>(u"frm_metar_request"_s),
        screenEntry<frm_WxFinder>(u"frm_WxFinder"_s),
        screenEntry<frm_Select_CC_Method>(u"frm_Select_CC_Method"_s),
        screenEntry<frm_FlightPlan>(u"frm_FlightPlan"_s),
        screenEntry<frm_FromDepDestVal>(u"frm_FromDepDestVal"_s),
        screenEntry<frm_CC_From_Option>(u"frm_CC_From_Option"_s),
        screenEntry<frm_CC_From_Metar_String>(u"frm_CC_From_Metar_String"_s),
        screenEntry<frm_About>(u"frm_About"_s),
        screenEntry<frm_Links>(u"frm_Links"_s),
        screenEntry<frm_WxControl>(u"frm_WxControl"_s),
        screenEntry<frm_metar>(u"frm_metar"_s),
        screenEntry<frm_Switcher>(u"frm_Switcher"_s),
        screenEntry<frm_Config>(u"frm_Config"_s),
        screenEntry<frm_BackupList>(u"frm_BackupList"_s),
        screenEntry<frm_Ready>(u"frm_Ready"_s),
        screenEntry<frm_InSimulator>(u"frm_InSimulator"_s),
        screenEntry<frm_SetSheet>(u"frm_SetSheet"_s),
        screenEntry<frm_MoreSettings>(u"frm_MoreSettings"_s),
        screenEntry<frm_WhatIsKept>(u"frm_WhatIsKept"_s),
        screenEntry<frm_MVTextures>(u"frm_MVTextures"_s),
        screenEntry<frm_GroundColorize>(u"frm_GroundColorize"_s),
        screenEntry<frm_KMTextures>(u"frm_KMTextures"_s),
        screenEntry<frm_SkyColorize>(u"frm_SkyColorize"_s),
        screenEntry<frm_NightTextures>(u"frm_NightTextures"_s),
        screenEntry<frm_NightColorize>(u"frm_NightColorize"_s),
        screenEntry<frm_SelectNightTexture>(u"frm_SelectNightTexture"_s),
    };
    return entries;
}

template <class Entries, class Name>
auto findNamed(const Entries& entries, const QString& name, Name nameOf) -> decltype(&*entries.begin()) {
    for (const auto& entry : entries)
        if (nameOf(entry).compare(name, Qt::CaseInsensitive) == 0) return &entry;
    return nullptr;
}

} // namespace

const std::vector<ChildPage>& childPages() {
    static const std::vector<ChildPage> pages{
        {u"frm_WxControl"_s, u"frm_Main"_s},
        {u"frm_Config"_s, u"frm_Main"_s},
        {u"frm_Links"_s, u"frm_Main"_s},
        {u"frm_About"_s, u"frm_Main"_s},
        {u"frm_Switcher"_s, u"frm_Main"_s},
        {u"frm_GroundColorize"_s, u"frm_MVTextures"_s},
        {u"frm_SkyColorize"_s, u"frm_KMTextures"_s},
        {u"frm_NightColorize"_s, u"frm_NightTextures"_s},
    };
    return pages;
}

const ChildPage* childPage(const QString& name) {
    return findNamed(childPages(), name, [](const ChildPage& page) { return page.form; });
}

QStringList formNames() {
    QStringList names;
    for (const FormEntry& entry : formEntries())
        names << entry.name;
    return names;
}

Form* makeForm(Shell& shell, const QString& name) {
    const FormEntry* entry = findNamed(formEntries(), name, [](const FormEntry& form) { return form.name; });
    return entry ? entry->make(shell) : nullptr;
}

} // namespace morvane
