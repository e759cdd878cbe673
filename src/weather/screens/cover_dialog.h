#pragma once

#include "ui/dialog_form.h"

namespace morvane {

inline const QString coverOkTip = u"Click to answer Yes or to continue."_s;
/// "Sceen" is how users have always read it.
inline const QString coverCancelTip = u"Click to answer No or to return to Weather Control Sceen."_s;

/// A way to the cloud cover of a flight. OK takes the class that it found, or the one of before; cancel leads
/// back to the choice of the way.
class CoverDialog : public DialogForm {
    Q_OBJECT
public:
    using DialogForm::DialogForm;

protected:
    void confirm() override;
};

} // namespace morvane
