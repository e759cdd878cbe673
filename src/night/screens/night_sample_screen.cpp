#include "night/screens/night_sample_screen.h"

#include "core/session.h"
#include "night/night_samples.h"
#include "sets/screens/sample_options.h"
#include "ui/controls/labels.h"

#include <QButtonGroup>
#include <QLabel>

namespace morvane {

namespace {

constexpr int left = 26, textWidth = 348;

QRect samplePlace(int index) {
    return {left, 84 + 24 * index, textWidth, 20};
}

} // namespace

frm_SelectNightTexture::frm_SelectNightTexture(Shell& shell)
    : DialogForm(shell, u"frm_SelectNightTexture"_s, messageLook, {}) {
    makeLabel(this, u"Select the texture type that you wish to customize"_s, {left, 58, textWidth, 16},
              TextRole::value);
    samples_ = addSampleOptions(this, nightSamples(), u"optNightTexture_"_s, samplePlace);
    addAnswerKeys(u"Click to view the selected texture."_s, u"Click to keep the present texture."_s);
}

void frm_SelectNightTexture::prepare() {
    checkSample(*samples_, nightSamples(), session().state<NightSampleChoice>().selectedNightTexture);
}

void frm_SelectNightTexture::confirm() {
    session().state<NightSampleChoice>().selectedNightTexture = checkedSample(*samples_, nightSamples());
    session().state<NightSampleChoice>().sampleConfirmed = true;
}

} // namespace morvane
