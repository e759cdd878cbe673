#include "weather/screens/cover_method_screen.h"

#include "core/session.h"
#include "ui/controls/labels.h"
#include "weather/cover_choice.h"
#include "weather/screens/cover_dialog.h"

#include <QButtonGroup>
#include <QRadioButton>

namespace morvane {

frm_Select_CC_Method::frm_Select_CC_Method(Shell& shell)
    : DialogForm(shell, u"frm_Select_CC_Method"_s, messageLook, u"Select Method of obtaining Cloud Cover"_s),
      methods_(new QButtonGroup(this)) {
    for (int method = 0;
         const QString& caption :
         {u"Import Flight Simulator Flight Plan"_s, u"Use data from Departure and Destination airports"_s,
          u"Select Cloud Cover Required"_s, u"Enter a METAR String"_s}) {
        auto* option = new QRadioButton(caption, this);
        option->setObjectName(u"optMethod%1"_s.arg(method));
        option->setAccessibleName(caption);
        option->setFont(fontOf(TextRole::body));
        option->setGeometry(26, 90 + 30 * method, 348, 24);
        methods_->addButton(option, method++);
    }
    methods_->button(0)->setChecked(true);
    connect(methods_, &QButtonGroup::idToggled, this, [this](int method, bool isSet) {
        if (isSet) session().state<CoverChoice>().coverMethod = static_cast<CoverMethod>(method);
    });
    addAnswerKeys(coverOkTip, coverCancelTip);
}

/// The option of the last time still stands.
void frm_Select_CC_Method::prepare() {
    session().state<CoverChoice>().coverMethod = static_cast<CoverMethod>(methods_->checkedId());
    setFirstFocus(methods_->checkedButton());
}

void frm_Select_CC_Method::cancel() {
    session().state<CoverChoice>().coverMethod = CoverMethod::cancelled;
    DialogForm::cancel();
}

} // namespace morvane
