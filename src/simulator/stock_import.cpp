#include "simulator/stock_import.h"

#include "core/attempts.h"
#include "core/numbers.h"
#include "core/ordered_work.h"
#include "core/run_size.h"
#include "core/safe_copy.h"
#include "imaging/picture_reader.h"
#include "imaging/pixel_buffer.h"
#include "imaging/texture_codec.h"

#include <QHash>

namespace morvane {

namespace {

/// False for a file that cannot be read; raises when the part cannot be written.
bool copyReadable(FileSystem& files, const FilePath& source, const FilePath& part) {
    try {
        files.copyContents(source, part);
        return true;
    } catch (const Error&) {
        if (attempt([&] { files.read(source); })) throw;
        return false;
    }
}

/// The same for a picture; one that no texture can be made of is as good as none.
bool convertReadable(FileSystem& files, const FilePath& source, const FilePath& part) {
    cDIBSection image;
    const bool isRead =
        attempt([&] { image.CreateFromPicture(loadPicture(files, source, largestTextureSide)); });
    if (!isRead || !isTextureSide(image.Width()) || !isTextureSide(image.Height())) return false;
    if (!image.SavePicture(part)) throw Error(ErrorCode::diskFull);
    return true;
}

/// Makes the file that is to stand in its place, beside it. False where that cannot be had from its source:
/// one broken texture must not cost the pilot all others. A failure names the file, as nobody knows of its
/// part.
bool makePart(FileSystem& files, const StockFile& file, const FilePath& target) {
    try {
        const auto make = file.isPicture ? convertReadable : copyReadable;
        return make(files, file.source, partOf(target));
    } catch (const Error& error) {
        throw Error(error.code(), target.text());
    }
}

class StockImport {
public:
    StockImport(Session& session, const Job& job, const StockSource& source)
        : session_(session), job_(job), plan_(planStockImport(session, source)),
          kept_(session.files, session.AppPath) {
        session.user.showMessage({MessageKind::progress, stockTitle,
                                  u"Morvane is making base images from your textures.  Please wait......."_s,
                                  false, true, true});
    }

    StockImportReport run() {
        report_.planned = static_cast<int>(plan_.files.size());
        const RunSize size = sizeOfPlan();
        if (!size.fits()) {
            report_.failure = size.refusal();
        } else if (report_.planned > 0) {
            const bool wasEmpty = kept_.isEmpty();
            announce();
            bringWhatCanBeHad();
            attempt([&] { clearParts(); });
            attempt([&] { kept_.forgetUnused(); });
            if (report_.files == 0 && wasEmpty) attempt([&] { kept_.restore(); }); // no import stands
        }
        report_.categories = std::move(plan_.categories);
        return std::move(report_);
    }

private:
    /// A texture has four bits a pixel, its base image twenty-four.
    RunSize sizeOfPlan() const {
        constexpr int growth = 6;
        RunSize size;
        size.what = u"An import of "_s + countText(report_.planned, u"file"_s);
        size.freeBytes = session_.files.freeSpace(session_.AppPath);
        for (const StockFile& file : plan_.files)
            attempt([&] { size.bytes += (file.isPicture ? growth : 1) * session_.files.size(file.source); });
        return size;
    }

    void announce() {
        std::vector<InstallFile> targets;
        for (const StockFile& file : plan_.files) {
            targets.push_back(file.target);
            const QString& folder = file.target.folder;
            if (folders_.contains(folder)) continue;
            session_.files.makeFolder(session_.AppPath / folder);
            folders_.insert(folder, (session_.AppPath / folder).resolved());
        }
        clearParts();
        kept_.announce(targets, [this] { session_.user.pumpMessages(); });
    }

    /// Of files that were made ahead of a cancel, or of a run that died.
    void clearParts() {
        for (const FilePath& folder : folders_)
            removePartialCopies(session_.files, folder);
    }

    FilePath targetOf(const StockFile& file) const {
        return folders_.value(file.target.folder).exactChild(file.target.name);
    }

    /// What has come stays, whatever ends the run, and can be put back.
    void bringWhatCanBeHad() {
        try {
            report_.isCancelled = !bringAll();
        } catch (const std::exception& error) {
            report_.failure = QString::fromUtf8(error.what());
        }
    }

    /// False when it was cancelled.
    bool bringAll() {
        const std::size_t count = plan_.files.size();
        OrderedWork<bool> work(static_cast<int>(count), [&](int i) {
            const StockFile& file = plan_.files[static_cast<std::size_t>(i)];
            return makePart(session_.files, file, targetOf(file));
        });
        for (std::size_t i = 0; i < count; ++i) {
            session_.user.updateProgress({}, {}, 100 * static_cast<double>(i) / static_cast<double>(count));
            if (job_.isCancelled()) return false;
            bring(plan_.files[i], work.next());
        }
        return true;
    }

    void bring(const StockFile& file, bool isMade) {
        if (!isMade) {
            report_.unreadable << file.source.fileName();
            return;
        }
        kept_.replace(file.target, partOf(targetOf(file)));
        ++report_.files;
        ++plan_.categories[file.category].count;
    }

    Session& session_;
    const Job& job_;
    StockPlan plan_;
    KeptStock kept_;
    QHash<QString, FilePath> folders_;
    StockImportReport report_;
};

} // namespace

StockImportReport importStock(Session& session, const Job& job, const StockSource& source) {
    return StockImport(session, job, source).run();
}

} // namespace morvane
