#pragma once

#include "night/night_sets.h"
#include "sets/screens/texture_list_form.h"

namespace morvane {

/// The window of the night: its list page shows every night set, and the selected one on a sample. Sets are
/// born on its colour page, so there is no key that makes some.
class frm_NightTextures : public TextureListForm<NightKind> {
    Q_OBJECT
public:
    explicit frm_NightTextures(Shell& shell);

private:
    FilePath sampleFile() override;
};

} // namespace morvane
