#include "sets/texture_image.h"

#include "core/error.h"
#include "imaging/picture_pair.h"

namespace morvane {

ColouredFile openImageForTextureSet(FileSystem& files, const FilePath& path, const Recolouring& recolouring) {
    ColouredFile coloured;
    try {
        PicturePair pictures = loadPicturePair(files, path);
        coloured.picture = std::make_unique<cDIBSection>(std::move(pictures.result));
        recolouring.apply(pictures.source, *coloured.picture);
    } catch (const Error& error) {
        coloured.failure = error.description();
    } catch (const std::exception&) {
        coloured.failure = Error(ErrorCode::outOfMemory).description();
    }
    return coloured;
}

} // namespace morvane
