#pragma once

#include "sets/set_generation.h"

namespace morvane {

/// Rebuilds and removes night sets. None is made here: they are born as favourites (NightTuning).
class NightGeneration : public SetGeneration {
public:
    explicit NightGeneration(Session& session);

private:
    std::vector<CatalogueFile> baseFilesOf(const QString& name) override;
};

} // namespace morvane
