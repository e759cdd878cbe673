#include "ground/screens/ground_sets_screen.h"

#include "ground/sample_textures.h"
#include "sets/options_in_force.h"

namespace morvane {

namespace {

const SetListSetup listPage = textureListPage(
    // The two sentences have never been parted by a full stop.
    u"To create a series of ground texture sets please click the create button and then enter the number "
    "of each cloud cover value required into the text boxes on the dialog screen that appears. Click the "
    "checkmark button to commence the creation process These sets take 10 - 20 minutes each to create "
    "therefore please allow sufficient time for the creation process. "_s,
    {{u"Name"_s, 160}, {u"Activated"_s, 68}, {u"Cloud Cover"_s, 84}},
    {u"btn_textureCreate"_s, u"create ts"_s});

} // namespace

frm_MVTextures::frm_MVTextures(Shell& shell)
    : TextureListForm(shell, u"frm_MVTextures"_s, groundLook, u"frm_GroundColorize"_s, listPage) {}

FilePath frm_MVTextures::sampleFile() {
    return sampleTexture(session().AppPath, defaultSample, u"summer"_s,
                         session().state<OptionsInForce>().IsDutch);
}

} // namespace morvane
