#include "ground/screens/sample_screen.h"

#include "core/session.h"
#include "ground/sample_textures.h"
#include "sets/screens/sample_options.h"
#include "ui/controls/labels.h"

#include <QButtonGroup>
#include <QLabel>

namespace morvane {

namespace {

constexpr int left = 26, rowHeight = 20, seasonTop = 68, typeTop = 106, typeRows = 6, seasonPitch = 88;

QRect seasonPlace(int index) {
    return {left + index * seasonPitch, seasonTop, seasonPitch, rowHeight};
}

/// Two columns; the long captions are all in the second one.
QRect typePlace(int index) {
    const int top = typeTop + index % typeRows * rowHeight;
    return index < typeRows ? QRect(left, top, 110, rowHeight) : QRect(left + 112, top, 240, rowHeight);
}

} // namespace

frm_SelectTexture::frm_SelectTexture(Shell& shell)
    : DialogForm(shell, u"frm_SelectTexture"_s, messageLook, {}) {
    makeLabel(this, u"Select the season that you wish to customize"_s, {left, 53, 348, 14},
              TextRole::fieldCaption);
    seasons_ = addSampleOptions(this, sampleSeasons(), u"optSeason_"_s, seasonPlace);
    makeLabel(this, u"Select the texture type that you wish to customize"_s, {left, 91, 348, 14},
              TextRole::fieldCaption);
    types_ = addSampleOptions(this, sampleTextureTypes(), u"optTexture_"_s, typePlace);
    addAnswerKeys(u"Click to view the selected texture."_s, u"Click to keep the present texture."_s);
}

void frm_SelectTexture::prepare() {
    checkSample(*seasons_, sampleSeasons(), session().state<GroundSampleChoice>().selectedSeason);
    // The page begins with a city, and so does the dialog.
    checkSample(*types_, sampleTextureTypes(), session().state<GroundSampleChoice>().selectedTextureType);
}

void frm_SelectTexture::confirm() {
    GroundSampleChoice& choice = session().state<GroundSampleChoice>();
    choice.selectedSeason = checkedSample(*seasons_, sampleSeasons());
    choice.selectedTextureType = checkedSample(*types_, sampleTextureTypes());
    choice.sampleConfirmed = true;
}

} // namespace morvane
