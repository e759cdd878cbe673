#pragma once

#include "core/session.h"
#include "imaging/colouriser.h"
#include "imaging/picture_pair.h"

namespace morvane {

/// A texture as it is and in the colours that the session has in hand for the ground or for the night: the
/// two pictures of a list page and of a colour page.
class TextureSample {
public:
    /// `colours` are read at every recolouring; they stay where they are.
    TextureSample(Session& session, const ColourValues& colours)
        : session_(session), colours_(colours), colourise_(session.user) {}

    /// Loads the picture and recolours it. False after a failure was told: the picture of before stays then,
    /// recoloured all the same, so that no set is seen in the colours of another one.
    bool openTexImage(const FilePath& path);
    /// Recolours the picture that is loaded; without one it does nothing.
    void TsProcess();

    const cDIBSection& sourceDib() const { return pictures_.source; }
    const cDIBSection& resultDib() const { return pictures_.result; }

private:
    Session& session_;
    const ColourValues& colours_;
    PicturePair pictures_;
    cColourise colourise_; ///< kept: it remembers what it worked out for the last colours
};

} // namespace morvane
