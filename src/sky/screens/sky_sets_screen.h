#pragma once

#include "sets/screens/set_list_form.h"
#include "sky/sky_sample.h"
#include "sky/sky_texture_sets.h"

namespace morvane {

/// The window of the sky: its list page shows every sky set, and the one in hand on the sample of its base
/// set.
class frm_KMTextures : public SetListForm {
    Q_OBJECT
public:
    explicit frm_KMTextures(Shell& shell);

    /// Selects the set in hand, or the first when that is not there.
    void formatList() override;

    /// Loads a sky texture, shows it and its colouring by the set in hand.
    void openSkyTextureSetImage(const FilePath& path);
    /// Colours the texture anew and shows it.
    void SkyTextureSetProcess();

private:
    const clsSkyTextureSets& refreshedSets();
    std::vector<SetRow> setRows() override;
    bool clickSet(int row) override;
    bool takeSet(const QString& listKey) override;
    void noteRows(int) override { noteTicks(); }
    void noteTicks();
    void showNoSet() override;

    SkySample sample_;
};

} // namespace morvane
