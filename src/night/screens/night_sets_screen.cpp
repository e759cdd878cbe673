#include "night/screens/night_sets_screen.h"

#include "night/night_samples.h"

namespace morvane {

namespace {

const SetListSetup listPage = textureListPage(
    u"To create a customized night texture set, open the Colorize screen and adjust the color setings to "
    "achieve the look you require.  Accept the settings and use the Activate button on this screen to "
    "create the set.  To activate a series of texture sets select each texture set required from the "
    "list (holding down the Ctrl key whilst selecting) and then click the activate button. Each set will "
    "take between 2 - 3 minutes to create depending on your system specification."_s,
    {{u"Name"_s, 244}, {u"Activated"_s, 68}});

} // namespace

frm_NightTextures::frm_NightTextures(Shell& shell)
    : TextureListForm(shell, u"frm_NightTextures"_s, nightLook, u"frm_NightColorize"_s, listPage) {}

FilePath frm_NightTextures::sampleFile() {
    return nightSampleTexture(session().AppPath, firstNightSample);
}

} // namespace morvane
