#include "sets/temp_bitmaps.h"

#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(CleanTempBitmaps, leavesTheDutchFolderWhatIsNoBitmapAndWhatCannotBeRemoved) {
    test::SmallInstall install;
    const FilePath folder = install.home() / u"TempBitmaps";
    for (const char16_t* name :
         {u"a.bmp", u"Texture\\b.BMP", u"Texture\\notes.txt", u"UTEurLC\\c.bmp", u"Dutch\\d.bmp"})
        test::writeFile(folder / name, "pixels");
    const auto left = [&] { return test::contentsBelow(folder).keys().join(u' '); };
    install.files.failAt(4, false); // list, remove, list, and the removal of "b.BMP"
    cleanTempBitmaps(install.session);
    EXPECT_EQ(left(), "Dutch/d.bmp Texture/b.BMP Texture/notes.txt");
    cleanTempBitmaps(install.session);
    EXPECT_EQ(left(), "Dutch/d.bmp Texture/notes.txt");
    EXPECT_TRUE(install.user.told().isEmpty());
}

} // namespace
} // namespace morvane
