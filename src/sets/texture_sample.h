#pragma once

#include "core/reported.h"
#include "core/session.h"
#include "imaging/colouriser.h"
#include "imaging/picture_pair.h"

namespace morvane {

/// A texture as it is and coloured: the two pictures of a list page and of a colour page.
class PictureSample {
public:
    virtual ~PictureSample() = default;

    /// Loads the picture and colours it. Where it fails the picture of before stays, coloured all the same,
    /// so that no set is seen in the colours of another one.
    Reported openImage(const FilePath& path);
    /// Colours the picture that is loaded; without one it does nothing.
    void process();

    const cDIBSection& sourceDib() const { return pictures_.source; }
    const cDIBSection& resultDib() const { return pictures_.result; }

protected:
    explicit PictureSample(Session& session) : session_(session), colourise_(session.user) {}

    virtual void colour(const cDIBSection& source, cDIBSection& result) = 0;

    Session& session_;
    cColourise colourise_; ///< kept: it remembers what it worked out for the last colours

private:
    PicturePair pictures_;
};

/// One in the colours that the session has in hand for the ground or for the night.
class TextureSample : public PictureSample {
public:
    /// `colours` are read at every recolouring; they stay where they are.
    TextureSample(Session& session, const ColourValues& colours)
        : PictureSample(session), colours_(colours) {}

private:
    void colour(const cDIBSection& source, cDIBSection& result) override;

    const ColourValues& colours_;
};

} // namespace morvane
