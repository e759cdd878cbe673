#pragma once

#include "core/session.h"
#include "imaging/colouriser.h"
#include "imaging/picture_pair.h"

namespace morvane {

/// A texture as it is and in the colours that the session has in hand (session.ground.colours): the two
/// pictures of the list page and of the colour page.
class GroundSample {
public:
    explicit GroundSample(Session& session) : session_(session), colourise_(session.user) {}

    /// Loads the picture and recolours it. False after a failure was told: the picture of before stays then,
    /// recoloured all the same, so that no set is seen in the colours of another one.
    bool openTexImage(const FilePath& path);
    /// Recolours the picture that is loaded; without one it does nothing.
    void TsProcess();

    const cDIBSection& sourceDib() const { return pictures_.source; }
    const cDIBSection& resultDib() const { return pictures_.result; }

private:
    Session& session_;
    PicturePair pictures_;
    cColourise colourise_; ///< kept: it remembers what it worked out for the last colours
};

} // namespace morvane
