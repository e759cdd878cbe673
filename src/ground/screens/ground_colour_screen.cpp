#include "ground/screens/ground_colour_screen.h"

namespace morvane {

frm_GroundColorize::frm_GroundColorize(Shell& shell)
    : TextureColourPage(shell, u"frm_GroundColorize"_s, u"Ground Color"_s,
                        textureColourPage(coverOptions(), u"optCloudCover"_s, u"random advanced"_s)) {
    checkOption(0);
    showSubject(u"Cities, Summer"_s);
}

} // namespace morvane
