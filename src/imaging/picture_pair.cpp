#include "imaging/picture_pair.h"

#include "core/error.h"
#include "imaging/picture_reader.h"

namespace morvane {

PicturePair loadPicturePair(FileSystem& files, const FilePath& path) {
    PicturePair pair;
    pair.source.CreateFromPicture(loadPicture(files, path, largestTextureSide));
    if (!pair.result.Create(pair.source.Width(), pair.source.Height())) throw Error(ErrorCode::outOfMemory);
    return pair;
}

} // namespace morvane
