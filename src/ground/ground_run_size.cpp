#include "ground/ground_run_size.h"

#include "core/numbers.h"
#include "core/session.h"
#include "ground/texture_catalogue.h"
#include "ground/texture_image.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"

#include <QElapsedTimer>
#include <QSet>
#include <algorithm>
#include <thread>

namespace morvane {

namespace {

constexpr int mostUnasked = 20; ///< sets; a larger number may be a slip
constexpr double bytesAPixel = 3;

/// One file of the stock on its way through both passes, but for the writing.
struct MeasuredFile {
    double seconds = 0;
    double bitmapShare = 0, textureShare = 0; ///< of what is written in the size of the base image
};

MeasuredFile measure(FileSystem& files, const FilePath& path) {
    QElapsedTimer timer;
    timer.start();
    const ColouredFile coloured = openImageForTextureSet(files, path, Recolouring({}));
    if (!coloured.picture || coloured.failure) return {};
    const QByteArray texture = compressTexture(loadPicture(files, path));
    const auto seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    const auto size = static_cast<double>(files.size(path));
    const double pixels = static_cast<double>(coloured.picture->Width()) * coloured.picture->Height();
    return {seconds, pixels * bytesAPixel / size, static_cast<double>(texture.size()) / size};
}

/// The first file that can be measured: a damaged one is told of by the run.
MeasuredFile measureOne(FileSystem& files, const std::vector<CatalogueFile>& catalogue) {
    for (const CatalogueFile& file : catalogue)
        if (const MeasuredFile measured = measure(files, file.sourceFolder.child(file.fileName));
            measured.textureShare > 0)
            return measured;
    return {};
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

FilePath setsFolder(Session& session) {
    const FilePath folder = session.AppPath / u"Texture Sets";
    return session.files.isFolder(folder) ? folder : session.AppPath; // it comes with the first set
}

} // namespace

RunSize groundRunSize(Session& session, int sets) {
    FileSystem& files = session.files;
    const std::vector<CatalogueFile> catalogue = TextureCatalogue(session).popTextureList(0, 0, false, {});
    const MeasuredFile file = measureOne(files, catalogue);
    const StockSize stock = sizeOfStock(files, catalogue);
    RunSize run{countText(sets, u"ground set"_s)};
    run.isQuestionWanted = sets > mostUnasked;
    run.freeBytes = files.freeSpace(setsFolder(session));
    // One set's intermediate bitmaps take the place of those of the set before.
    run.bytes = static_cast<std::int64_t>(sets * file.textureShare * static_cast<double>(stock.all) +
                                          file.bitmapShare * static_cast<double>(stock.withoutBitmap));
    const double cores = std::max(std::thread::hardware_concurrency(), 1U);
    const double measured = file.seconds * static_cast<double>(catalogue.size()) / cores;
    run.seconds = sets * (session.groundSetSeconds > 0 ? session.groundSetSeconds : measured);
    return run;
}

} // namespace morvane
