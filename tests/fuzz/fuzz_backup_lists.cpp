#include "fuzz_entry.h"
#include "simulator/backup_list.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    const QByteArray bytes = test::bytesOf(data, size);
    const BackupList list = BackupList::of(bytes, bytes);
    const FilePath file = FilePath(u"Texture"_s) / u"a.bmp"_s;
    test::require(!(list.isDamaged(file, {}) && list.isOurs(file, {})));
    return 0;
}
