#include "fuzz_entry.h"
#include "sets/undo_record.h"

namespace {

QByteArray linesOf(const morvane::OriginalsText& list) {
    QByteArray lines = morvane::headLine(list.simulator, list.folderNumber);
    for (const morvane::OriginalFact& fact : list.facts)
        morvane::addFactLine(lines, fact);
    return lines;
}

} // namespace

/// What is understood of a list, and of the record of an undo, is understood again where it was written anew.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace morvane;
    return test::feed(data, size, [](const QByteArray& bytes) {
        const FilePath file(u"originals.lst"_s);
        const QByteArray lines = linesOf(parseOriginals(bytes, file));
        test::require(linesOf(parseOriginals(lines, file)) == lines);
        if (const auto record = parseUndo(bytes, file))
            test::require(parseUndo(undoText(*record), file).has_value());
    });
}
