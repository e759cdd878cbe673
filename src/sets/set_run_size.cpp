#include "sets/set_run_size.h"

#include "core/error.h"
#include "core/session.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "sets/texture_image.h"

#include <QElapsedTimer>
#include <QSet>
#include <algorithm>
#include <thread>

namespace morvane {

namespace {

constexpr int filesMeasured = 3; ///< the last one counts: the first finds nothing prepared
constexpr double bytesAPixel = 3;

/// One file of the stock on its way through both passes.
struct MeasuredFile {
    double seconds = 0;
    double bitmapShare = 0, textureShare = 0; ///< of what is written in the size of the base image
};

double secondsOf(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

/// 0 where they cannot be written: why, the run tells.
double secondsToWrite(FileSystem& files, const FilePath& path, const cDIBSection& picture,
                      const QByteArray& texture) {
    QElapsedTimer timer;
    timer.start();
    try {
        picture.SavePicture(path);
        files.write(path, texture);
        const double seconds = secondsOf(timer);
        files.remove(path);
        return seconds;
    } catch (const Error&) {
        return 0;
    }
}

/// The pixels are worked on over all cores, the files are written one by one.
MeasuredFile measure(FileSystem& files, const CatalogueFile& file) {
    const FilePath base = file.sourceFolder.child(file.fileName);
    const double cores = std::max(std::thread::hardware_concurrency(), 1U);
    QElapsedTimer timer;
    timer.start();
    const ColouredFile coloured = openImageForTextureSet(files, base, Recolouring({}));
    if (!coloured.picture || coloured.failure) return {};
    const QByteArray texture = compressTexture(loadPicture(files, base));
    const double working = secondsOf(timer) / cores;
    const double writing =
        secondsToWrite(files, file.tempFolder.child(file.fileName), *coloured.picture, texture);
    const auto size = static_cast<double>(files.size(base));
    const double pixels = static_cast<double>(coloured.picture->Width()) * coloured.picture->Height();
    return {working + writing, pixels * bytesAPixel / size, static_cast<double>(texture.size()) / size};
}

/// A damaged file is passed over, as the run tells of it.
MeasuredFile measureLast(FileSystem& files, const std::vector<CatalogueFile>& catalogue) {
    MeasuredFile last;
    for (int count = 0; const CatalogueFile& file : catalogue) {
        const MeasuredFile measured = measure(files, file);
        if (measured.textureShare <= 0) continue;
        last = measured;
        if (++count == filesMeasured) break;
    }
    return last;
}

/// Sizes of base images, in bytes.
struct StockSize {
    std::int64_t all = 0;
    std::int64_t withoutBitmap = 0; ///< of those whose intermediate bitmap a run before has not left
};

StockSize sizeOfStock(FileSystem& files, const std::vector<CatalogueFile>& catalogue) {
    StockSize stock;
    QSet<QString> seen; // the catalogue has some files twice
    for (const CatalogueFile& file : catalogue) {
        const FilePath path = file.sourceFolder.child(file.fileName);
        if (seen.contains(path.text())) continue;
        seen.insert(path.text());
        const std::int64_t size = files.size(path);
        stock.all += size;
        if (!files.exists(file.tempFolder.child(file.fileName))) stock.withoutBitmap += size;
    }
    return stock;
}

/// It comes with the first set.
FilePath presentFolder(Session& session, const FilePath& folder) {
    return session.files.isFolder(folder) ? folder : session.AppPath;
}

} // namespace

RunSize measuredRun(Session& session, const std::vector<CatalogueFile>& catalogue, int sets,
                    const FilePath& folder) {
    FileSystem& files = session.files;
    const StockSize stock = sizeOfStock(files, catalogue);
    const MeasuredFile file = measureLast(files, catalogue);
    RunSize run;
    run.freeBytes = files.freeSpace(presentFolder(session, folder));
    // One set's intermediate bitmaps take the place of those of the set before.
    run.bytes = static_cast<std::int64_t>(sets * file.textureShare * static_cast<double>(stock.all) +
                                          file.bitmapShare * static_cast<double>(stock.withoutBitmap));
    run.seconds = sets * file.seconds * static_cast<double>(catalogue.size());
    return run;
}

} // namespace morvane
