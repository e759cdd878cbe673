#include "ground/ground_run_size.h"

#include "core/numbers.h"
#include "core/session.h"
#include "ground/texture_catalogue.h"
#include "sets/set_run_size.h"

namespace morvane {

namespace {

constexpr int mostUnasked = 20; ///< sets; a larger number may be a slip

} // namespace

RunSize groundRunSize(Session& session, int sets) {
    const std::vector<CatalogueFile> catalogue = TextureCatalogue(session).popTextureList(0, 0, false, {});
    RunSize run = measuredRun(session, catalogue, sets, session.AppPath / u"Texture Sets");
    run.what = countText(sets, u"ground set"_s);
    run.isQuestionWanted = sets > mostUnasked;
    const double pace = session.state<GroundPace>().groundSetSeconds;
    if (pace > 0) run.seconds = sets * pace;
    return run;
}

} // namespace morvane
