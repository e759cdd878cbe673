#include "sets/texture_passes.h"

#include "core/failure_report.h"
#include "core/ordered_work.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"

namespace morvane {

namespace {

/// Half a picture must not become a texture.
void save(const cDIBSection& picture, const FilePath& target) {
    if (!picture.SavePicture(target)) throw Error(ErrorCode::diskFull, target.text());
}

/// On the thread that coloured it; a failure is told by the one that may.
void saveAhead(ColouredFile& coloured, const FilePath& target) {
    if (!coloured.picture) return;
    try {
        save(*coloured.picture, target);
        coloured.isSaved = true;
    } catch (const Error&) {
        coloured.saveFailure = std::current_exception();
    }
}

/// Empty for a picture that the format does not take: the set then has one file fewer, and nobody is told.
QByteArray compressedFile(FileSystem& files, const FilePath& path) {
    try {
        return compressTexture(loadPicture(files, path));
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace

void TexturePasses::showProgress(const QString& text) {
    session_.user.showMessage(
        {MessageKind::progress, description_.caption, text, false, description_.canCancel, true});
}

TexturePasses::Progress TexturePasses::openProgress(const QString& verb, int process, std::size_t count) {
    const QString& own = description_.warnings[static_cast<std::size_t>(process - 1)];
    const QString usual = description_.duration + u"system specification. \nPlease wait............"_s;
    const QString text = verb + u" texture set "_s + QString::number(description_.setNumber) + u" of "_s +
                         QString::number(description_.setTotal) + u" texture sets.  Process "_s +
                         QString::number(process) + u" of 2 "_s + (own.isEmpty() ? usual : own);
    showProgress(text);
    return {text, count > 1 ? 100.0 / static_cast<double>(count + 1) : 100.0};
}

void TexturePasses::advance(Progress& progress, std::size_t index, std::size_t count) {
    progress.position += progress.step;
    if (!session_.user.isMessageVisible()) showProgress(progress.text);
    session_.user.setProgressFile(u"Processing file "_s + QString::number(index + 1) + u" of "_s +
                                  QString::number(count) + u" files"_s);
    session_.user.updateProgress({}, {}, progress.position);
}

/// They come with the install, and may have been tidied away since.
void TexturePasses::makeTempFolders(const std::vector<CatalogueFile>& files) {
    QString made;
    for (const CatalogueFile& file : files) {
        const QString folder = file.tempFolder.relative();
        if (folder != made) session_.files.makeFolder(file.tempFolder);
        made = folder;
    }
}

SpelledFiles TexturePasses::spelled(const std::vector<CatalogueFile>& files,
                                    FilePath CatalogueFile::*folder) {
    SpelledFiles places(session_.files, session_.AppPath);
    for (const CatalogueFile& file : files)
        places.add(file.*folder, file.fileName);
    return places;
}

/// What its worker could not save is the failed file, under whose name the last picture goes, and one that
/// the list has twice.
void TexturePasses::takeColoured(ColouredFile&& coloured, const FilePath& target) {
    if (coloured.picture) resultDib_ = std::move(*coloured.picture);
    if (coloured.failure) showFailure(session_.user, {}, *coloured.failure);
    if (coloured.saveFailure) std::rethrow_exception(coloured.saveFailure);
    if (coloured.isSaved) return;
    if (resultDib_.Width() > 0)
        save(resultDib_, target);
    else if (session_.files.exists(target))
        session_.files.remove(target); // an earlier set's bitmap must not pass for this one's
}

void TexturePasses::colourFiles(const std::vector<CatalogueFile>& files, const ColourValues& colours) {
    reportFailures(session_.user, morvaneError, [&] {
        session_.user.hideScreen(description_.hiddenScreen);
        Progress progress = openProgress(u"Colorizing"_s, 1, files.size());
        makeTempFolders(files);
        const Recolouring recolouring(colours);
        const SpelledFiles sources = spelled(files, &CatalogueFile::sourceFolder);
        const SpelledFiles targets = spelled(files, &CatalogueFile::tempFolder);
        OrderedWork<ColouredFile> work(static_cast<int>(files.size()), [&](int index) {
            const auto i = static_cast<std::size_t>(index);
            ColouredFile coloured = openImageForTextureSet(session_.files, sources[i], recolouring);
            if (!targets.isRepeated(i)) saveAhead(coloured, targets[i]);
            return coloured;
        });
        for (std::size_t i = 0; i < files.size(); ++i) {
            session_.user.pumpMessages();
            if (job_.isCancelled()) return;
            takeColoured(work.next(), targets[i]);
            advance(progress, i, files.size());
        }
        session_.user.updateProgress({}, {}, 100);
    });
}

void TexturePasses::makeSetFolders() {
    for (const QString& name : description_.subfolders)
        session_.files.makeFolder(description_.setFolder.child(name));
}

void TexturePasses::convertFiles(const std::vector<CatalogueFile>& files) {
    reportFailures(session_.user, morvaneError, [&] {
        Progress progress = openProgress(u"Converting"_s, 2, files.size());
        makeSetFolders();
        const SpelledFiles sources = spelled(files, &CatalogueFile::tempFolder);
        const SpelledFiles targets = spelled(files, &CatalogueFile::targetFolder);
        // No contents, no file: a codec failure is not noticed.
        OrderedWork<QByteArray> work(static_cast<int>(files.size()), [&](int index) {
            const auto i = static_cast<std::size_t>(index);
            QByteArray texture = compressedFile(session_.files, sources[i]);
            if (targets.isRepeated(i) || texture.isEmpty()) return texture;
            session_.files.write(targets[i], texture);
            return QByteArray();
        });
        for (std::size_t i = 0; i < files.size(); ++i) {
            session_.user.pumpMessages();
            if (job_.isCancelled()) return;
            if (const QByteArray repeated = work.next(); !repeated.isEmpty())
                session_.files.write(targets[i], repeated);
            advance(progress, i, files.size());
        }
        session_.user.updateProgress({}, {}, 100);
    });
}

} // namespace morvane
