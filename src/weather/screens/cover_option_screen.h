#pragma once

#include "weather/screens/cover_dialog.h"

class QButtonGroup;

namespace morvane {

/// A cloud cover picked by hand. It opens with a scattered sky, which is in force at once.
class frm_CC_From_Option : public CoverDialog {
    Q_OBJECT
public:
    explicit frm_CC_From_Option(Shell& shell);

protected:
    void prepare() override;

private:
    QButtonGroup* optCloudCover_; ///< ids are the classes less one
};

} // namespace morvane
