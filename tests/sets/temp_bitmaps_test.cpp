#include "sets/temp_bitmaps.h"

#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct CleanTempBitmaps : testing::Test {
    test::SmallInstall install;

    QString leftOf(const QStringList& names) {
        const FilePath folder = install.home() / u"TempBitmaps";
        for (const QString& name : names)
            test::writeFile(folder / name, "pixels");
        cleanTempBitmaps(install.session);
        return test::contentsBelow(folder).keys().join(u' ');
    }
};

TEST_F(CleanTempBitmaps, leavesTheDutchFolderAndWhatIsNoBitmap) {
    EXPECT_EQ(leftOf({"a.bmp", "Texture\\b.BMP", "Texture\\notes.txt", "UTEurLC\\c.bmp", "Dutch\\d.bmp"}),
              "Dutch/d.bmp Texture/notes.txt");
}

TEST_F(CleanTempBitmaps, passesOverWhatCannotBeRemovedWithoutAWord) {
    install.files.failAt(4, false); // list, remove, list, and the removal of "b.bmp"
    EXPECT_EQ(leftOf({"a.bmp", "Texture\\b.bmp", "UTEurLC\\c.bmp"}), "Texture/b.bmp");
    EXPECT_TRUE(install.user.told().isEmpty());
}

} // namespace
} // namespace morvane
