#pragma once

#include "sky/sky_base_sets.h"
#include "ui/count_edit.h"
#include "ui/dialog_form.h"

class QCheckBox;

namespace morvane {

/// The base sets of a create run, and how many sets it makes of each for each cloud cover. What is ticked and
/// typed stands for the next run, too, and be it cancelled.
class frm_SelectSkyTexture : public DialogForm {
    Q_OBJECT
public:
    explicit frm_SelectSkyTexture(Shell& shell);

protected:
    void prepare() override;
    void confirm() override;

private:
    void addBaseSets();
    void storeBaseSets();
    /// "Overcast" has a count of its own; the other six base sets share four.
    void enableCounts();

    std::array<QCheckBox*, skyBaseSetCount> chkStsGroup_{};
    std::array<CountEdit*, 5> boxes_{}; ///< of the cloud covers 1 to 5
};

} // namespace morvane
