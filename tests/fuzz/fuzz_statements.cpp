#include "core/statement_translation.h"
#include "core/text_decoding.h"
#include "fuzz_entry.h"

/// No text that was made safe is ever more than a value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    const QString text = decodeText(test::bytesOf(data, size));
    translateStatement(text);
    translateSelection(text);
    const TranslatedStatement asValue = translateStatement(u"DELETE FROM SETS WHERE NAME = '"_s +
                                                           makeStatementSafe(text) + u"' AND ID > 1"_s);
    test::require(asValue.texts == QStringList{text});
    test::require(asValue.statements == QStringList{u"DELETE FROM SETS WHERE NAME = ? AND ID > 1"_s});
    return 0;
}
