#include "weather/screens/metar_request_screen.h"

#include "core/session.h"
#include "ui/controls/labels.h"
#include "weather/weather_refresh.h"

#include <QLabel>

namespace morvane {

frm_metar_request::frm_metar_request(Shell& shell)
    : DialogForm(shell, u"frm_metar_request"_s, messageLook, u"Check For New METAR?"_s),
      lblRequest_(makeLabel(this, {}, {26, 88, 348, 136}, TextRole::body)) {
    lblRequest_->setObjectName(u"lblRequest"_s);
    addAnswerKeys(u"Click to get the latest METAR cycle."_s,
                  u"Click to keep the METAR cycle that is loaded."_s);
}

void frm_metar_request::prepare() {
    lblRequest_->setText(session().state<MetarRequest>().metarRequestText);
}

void frm_metar_request::confirm() {
    session().state<MetarRequest>().metarRequested = true;
}

void frm_metar_request::cancel() {
    session().state<MetarRequest>().metarRequested = false;
    DialogForm::cancel();
}

} // namespace morvane
