#pragma once

#include "ground/ground_sets.h"
#include "sets/screens/texture_list_form.h"

namespace morvane {

/// The window of the ground: its list page shows every ground set, and the selected one on a sample.
class frm_MVTextures : public TextureListForm<GroundKind> {
    Q_OBJECT
public:
    explicit frm_MVTextures(Shell& shell);

private:
    FilePath sampleFile() override;
};

} // namespace morvane
