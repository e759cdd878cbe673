#include "core/session.h"

#include "core/store.h"
#include "core/writing.h"

namespace morvane {

Session::Session(const Services& services, const FilePath& appPath)
    : user(services.user), files(services.files), clock(services.clock), random(services.random),
      registry(services.registry), AppPath(appPath.native()),
      writing(std::make_unique<WritingLock>(AppPath)) {}

/// Members go in the reverse of their order: the collections first, then the store that they were read from.
Session::~Session() = default;

} // namespace morvane
