#include "core/registry.h"

namespace morvane {

std::unique_ptr<Registry> systemRegistry() {
    return nullptr;
}

} // namespace morvane
