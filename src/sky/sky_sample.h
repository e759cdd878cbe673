#pragma once

#include "sets/texture_sample.h"

namespace morvane {

/// Which of the session's two tables a sample is coloured by.
enum class SkyTable { texture, palette };

/// The sky texture of a base set that stands for all of them in previews.
FilePath skySampleFile(const Session& session, const QString& baseSet);
/// "Resources\Sky" and the name of a base set or of a time of day. Raises "Path not found" for a name that is
/// no single folder name.
FilePath skyStockFolder(const Session& session, const QString& name);

/// A sky texture as it is and in the colours of a table.
class SkySample : public PictureSample {
public:
    SkySample(Session& session, SkyTable table) : PictureSample(session), table_(table) {}

private:
    void colour(const cDIBSection& source, cDIBSection& result) override;

    SkyTable table_;
};

} // namespace morvane
