#include "simulator/option_table.h"

#include "simulator/options.h"
#include "simulator/texture_switches.h"

#include <algorithm>
#include <array>

namespace morvane {

namespace {

/// An option that cannot be refused.
template <void (*set)(Session&, bool)>
bool always(Session& session, bool isOn) {
    set(session, isOn);
    return true;
}

constexpr std::array options = std::to_array<SimulatorOption>({
    {.name = u"dutch",
     .flag = &OptionsInForce::IsDutch,
     .column = u"ISDUTCH",
     .set = switchDutch,
     .place = 1,
     .box = u"chkDutch",
     .label = u"lblDutch",
     .caption = u"Use Dutch rural textures",
     .text = u"Morvane now includes specially designed Dutch rural textures. These texures depict Dutch "
             u"style crops and rural areas over Europe.  Select the above checkbox to specify these Dutch "
             u"textures as your prefered rural textures for Europe.  This functionality can be reversed by "
             u"removing the checkmark from the checkbox."},
    {.name = u"tropical",
     .flag = &OptionsInForce::IsTropical,
     .column = u"ISTROPICAL",
     .set = switchTropical,
     .place = 2,
     .box = u"chkNonTropical",
     .label = u"lblTropical",
     .caption = u"Use tropical dawn/dusk blending",
     .text = u"This controls whether custom tropical textures are installed.  If you wish to fly at night "
             u"and wish to have correctly aligned autogen over tropical regions you should select this "
             u"option.  To view custom tropical textures during the day you should uncheck this option."},
    {.name = u"halo",
     .flag = &OptionsInForce::IsHalo,
     .column = u"ISHALO",
     .set = always<switchHalo>,
     .place = 3,
     .box = u"chkHalo",
     .label = u"lblHalo",
     .caption = u"Use customized halo",
     .text = u"Select this option if you wish Morvane to install a custom halo.bmp.  This file will "
             u"customize the look of aircraft and airport lighting.  You can revert to the default halo.bmp "
             u"at any time by removing the checkmark from the above checkbox."},
    {.name = u"fastexit",
     .flag = &OptionsInForce::IsFastExit,
     .column = u"ISFASTEXIT",
     .set = always<switchFastExit>,
     .place = 4,
     .box = u"chkFastExit",
     .label = u"lblFastExit",
     .caption = u"FastExit Enabled",
     .text = u"This controls whether the dialog screen asking whether you wish to install default texture "
             u"sets on exiting Morvane is shown.  Place a check in the above checkbox if you do not wish to "
             u"see this screen in the future.  This functionality can be reversed by removing the checkmark "
             u"from the checkbox."},
    {.name = u"widefs",
     .flag = &OptionsInForce::IsWideClient,
     .isSetInRegistry = isWideClientStored,
     .set = always<setSideFSVal>,
     .place = 0,
     .box = u"chkWideFS",
     .label = u"lblWideClient",
     .caption = u"This PC is a WideClient",
     .text = u"If you are a WideFS user and Morvane is installed on the WideClient PC then ensure the above "
             u"checkbox is selected to prevent Morvane from attempting to start FS9.  If this is a "
             u"WideServer/Stand Alone installation please remove the checkmark to allow Morvane to start FS9 "
             u"when required."},
    {.name = u"inhibitsplash",
     .flag = &OptionsInForce::InhibitCustomSplash,
     .isSetInRegistry = isCustomSplashInhibited,
     .set = always<setCustomSplashVal>,
     .place = 5,
     .box = u"chkCustomSplash",
     .label = u"lblInhibitFSSplash",
     .caption = u"Inhibit FS splash",
     .text = u"This controls whether or not Morvane installs custom splash screens which indicate the cloud "
             u"cover of the currently installed texture set.  To inhibit this functionality place a check in "
             u"the above checkbox."},
});

constexpr bool haveEachPlaceOnce() {
    for (int place = 0; place < static_cast<int>(options.size()); ++place)
        if (std::ranges::count(options, place, &SimulatorOption::place) != 1) return false;
    return true;
}
static_assert(haveEachPlaceOnce());

} // namespace

std::span<const SimulatorOption> simulatorOptions() {
    return options;
}

const SimulatorOption& optionOf(bool OptionsInForce::*flag) {
    return *std::ranges::find(options, flag, &SimulatorOption::flag);
}

QString optionPart(bool OptionsInForce::*flag, bool isOn) {
    return QString::fromUtf16(optionOf(flag).caption) + (isOn ? u": on"_s : u": off"_s);
}

} // namespace morvane
