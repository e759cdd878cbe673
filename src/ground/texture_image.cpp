#include "ground/texture_image.h"

#include "core/error.h"
#include "imaging/picture_reader.h"

namespace morvane {

ColouredFile openImageForTextureSet(FileSystem& files, const FilePath& path, const Recolouring& recolouring) {
    ColouredFile coloured;
    try {
        cDIBSection source;
        source.CreateFromPicture(loadPicture(files, path));
        auto result = std::make_unique<cDIBSection>();
        if (!result->Create(source.Width(), source.Height())) throw Error(ErrorCode::outOfMemory);
        coloured.picture = std::move(result);
        recolouring.apply(source, *coloured.picture);
    } catch (const Error& error) {
        coloured.failure = error.description();
    } catch (const std::exception&) {
        coloured.failure = Error(ErrorCode::outOfMemory).description();
    }
    return coloured;
}

} // namespace morvane
