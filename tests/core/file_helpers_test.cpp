#include "core/file_helpers.h"

#include "support/printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::writeFile;

TEST(FileVersion, isReadFromTheFixedRecord) {
    const test::TemporaryFolder folder;
    NativeFileSystem files;
    // A mark, the record's own version, and 16-bit numbers, the higher one of each pair behind the lower.
    const QByteArray record = QByteArray::fromHex("bd04effe 00000100 00000600 07000114");
    const std::pair<QByteArray, QString> cases[] = {
        {"MZ..." + record + "tail", u"6.0.5121.7"_s},
        {QByteArray(record).replace(8, 4, "\xff\xff\xff\xff"), u"65535.65535.5121.7"_s},
        {"MZ, an executable without a record", {}},
        {"MZ..." + record.left(15), {}},
        {{}, {}},
    };
    for (const auto& [contents, text] : cases) {
        writeFile(folder / u"ASv6.exe", contents);
        EXPECT_EQ(getFileVersionText(files, folder / u"ASv6.exe"), text);
    }
    EXPECT_EQ(getFileVersionText(files, folder / u"missing.exe"), QString());
}

} // namespace
} // namespace morvane
