#include "simulator/temp_bitmaps.h"

#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::SmallInstall;
using test::writeFile;

QStringList namesBelow(const FilePath& folder) {
    return test::contentsBelow(folder).keys();
}

TEST(CleanTempBitmaps, leavesTheDutchFolderAndWhatIsNoBitmap) {
    SmallInstall install;
    for (const char16_t* name :
         {u"a.bmp", u"Texture\\b.BMP", u"Texture\\notes.txt", u"UTEurLC\\c.bmp", u"Dutch\\d.bmp"})
        writeFile(install.home() / u"TempBitmaps" / name, "pixels");
    cleanTempBitmaps(install.session);
    EXPECT_EQ(namesBelow(install.home() / u"TempBitmaps"), QStringList({"Dutch/d.bmp", "Texture/notes.txt"}));
}

TEST(CleanTempBitmaps, passesOverWhatCannotBeRemovedWithoutAWord) {
    SmallInstall install;
    for (const char16_t* name : {u"a.bmp", u"Texture\\b.bmp", u"UTEurLC\\c.bmp"})
        writeFile(install.home() / u"TempBitmaps" / name, "pixels");
    install.files.failAt(4, false); // list, remove, list, and the removal of "b.bmp"
    cleanTempBitmaps(install.session);
    EXPECT_EQ(namesBelow(install.home() / u"TempBitmaps"), QStringList({"Texture/b.bmp"}));
    EXPECT_TRUE(install.user.told().isEmpty());
}

} // namespace
} // namespace morvane
