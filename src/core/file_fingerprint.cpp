#include "core/file_fingerprint.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace morvane {

QByteArray CheckSum::hex() const {
    if (*this == CheckSum()) return {};
    return QByteArray::fromRawData(bytes.data(), bytes.size()).toHex();
}

CheckSum CheckSum::ofHex(const QByteArray& text) {
    CheckSum sum;
    const QByteArray bytes = QByteArray::fromHex(text);
    if (std::cmp_equal(bytes.size(), sum.bytes.size())) std::ranges::copy(bytes, sum.bytes.begin());
    return sum;
}

FileFingerprint fingerprintOf(const QByteArray& contents) {
    return {contents.size(), {sha1Of(contents)}};
}

FileFingerprint fingerprintOf(FileSystem& files, const FilePath& file) {
    return fingerprintOf(files.read(file));
}

std::optional<SeenFile> seeFile(FileSystem& files, const FilePath& file) {
    const auto stamp = files.stampIfThere(file);
    const auto contents = stamp ? files.readIfThere(file) : std::nullopt;
    return contents ? std::optional(SeenFile{fingerprintOf(*contents), *stamp}) : std::nullopt;
}

bool isAsSeen(FileSystem& files, const FilePath& file, const std::optional<SeenFile>& seen) {
    return files.stampIfThere(file) == (seen ? std::optional(seen->stamp) : std::nullopt);
}

bool showsWritesFrom(std::int64_t moment, std::int64_t time) {
    constexpr std::int64_t second = 1'000'000'000, slowTurn = 2 * second, turn = second / 10;
    return time + (time % second == 0 ? slowTurn : turn) < moment;
}

std::int64_t momentNow() {
    using std::chrono::duration_cast, std::chrono::nanoseconds, std::chrono::system_clock;
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}

} // namespace morvane
