#pragma once

#include "sets/screens/kind_list_form.h"
#include "sky/sky_sample.h"
#include "sky/sky_sets.h"

namespace morvane {

/// The window of the sky: its list page shows every sky set, and the one in hand on the sample of its base
/// set.
class frm_KMTextures : public KindListForm<SkyKind> {
    Q_OBJECT
public:
    explicit frm_KMTextures(Shell& shell);

    /// Selects the set in hand, or the first when that is not there.
    void formatList() override;

private:
    SetRow rowOf(const clsSkyTextureSet& set) const override;
    bool takeSet(const QString& listKey) override;
    void showNoSet() override;

    SkySample sample_;
};

} // namespace morvane
