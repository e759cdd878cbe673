#include "sets/temp_bitmaps.h"

#include "core/error.h"

namespace morvane {

namespace {

void removeBitmaps(FileSystem& files, const FilePath& folder) {
    try {
        for (const FilePath& bitmap : filesIn(files, folder, u"*.bmp"_s))
            files.remove(bitmap);
    } catch (const Error&) {
    }
}

} // namespace

void cleanTempBitmaps(Session& session) {
    for (const char16_t* folder : {u"TempBitmaps", u"TempBitmaps\\Texture", u"TempBitmaps\\UTEurLC"})
        removeBitmaps(session.files, session.AppPath / folder);
}

} // namespace morvane
