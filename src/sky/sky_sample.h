#pragma once

#include "core/session.h"
#include "imaging/colouriser.h"
#include "imaging/picture_pair.h"

namespace morvane {

/// Which of the session's two tables a sample is coloured by.
enum class SkyTable { texture, palette };

/// The sky texture of a base set that stands for all of them in previews.
FilePath skySampleFile(const Session& session, const QString& baseSet);
/// "Resources\Sky" and the name of a base set or of a time of day. Raises "Path not found" for a name that is
/// no single folder name.
FilePath skyStockFolder(const Session& session, const QString& name);

/// A sky texture as it is and in the colours of a table: the pictures of the list page and of the colour
/// page.
class SkySample {
public:
    SkySample(Session& session, SkyTable table)
        : session_(session), table_(table), colourise_(session.user) {}

    /// Loads the picture and colours it. False after a failure was told: the picture of before stays then,
    /// coloured all the same, so that no set is seen in the colours of another one.
    bool openImage(const FilePath& path);
    /// Colours the picture that is loaded; without one it does nothing.
    void process();

    const cDIBSection& sourceDib() const { return pictures_.source; }
    const cDIBSection& resultDib() const { return pictures_.result; }

private:
    Session& session_;
    SkyTable table_;
    PicturePair pictures_;
    cColourise colourise_;
};

} // namespace morvane
