#include "ground/screens/set_counts_screen.h"

#include "core/session.h"
#include "ground/ground_generation.h"

namespace morvane {

frm_TsRequired::frm_TsRequired(Shell& shell)
    : DialogForm(shell, u"frm_TsRequired"_s, messageLook, u"Select Texture Quantities"_s),
      boxes_(addCountBoxes(
          *this, session().state<GroundSetCounts>().setCounts,
          {{26, 88, 220, 22}, {284, 88, 90, 22}, 27, TextRole::value, u"Overcast Cloud Cover (OVC)"_s})) {
    addAnswerKeys(u"Click to create the texture sets."_s, u"Click to cancel the creation."_s);
}

void frm_TsRequired::prepare() {
    for (CountEdit* box : boxes_)
        box->showCount();
}

void frm_TsRequired::confirm() {
    session().state<GroundSetCounts>().setCountsConfirmed = true;
}

} // namespace morvane
