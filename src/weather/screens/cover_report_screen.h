#pragma once

#include "weather/cover_choice.h"
#include "weather/screens/cover_dialog.h"
#include "weather/screens/cover_label.h"

namespace morvane {

class DescriptionEdit;

/// The cloud cover of a report that is typed in. OK before it is processed takes whatever cover was there:
/// wanted.
class frm_CC_From_Metar_String : public CoverDialog {
    Q_OBJECT
public:
    explicit frm_CC_From_Metar_String(Shell& shell);

    /// Decodes what was typed and shows its cover, or tells that it has none.
    void processMetarString();

protected:
    void prepare() override;
    /// Enter in the box processes what was typed.
    void keyPressEvent(QKeyEvent* event) override;

private:
    DescriptionEdit* txtMetarString_;
    QLabel* caption_;
    CoverLabel cover_;
};

} // namespace morvane
