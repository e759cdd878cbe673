#include "sets/texture_passes.h"

#include "core/failure_report.h"
#include "core/ordered_work.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "sets/texture_image.h"

namespace morvane {

namespace {

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

void TexturePasses::saveColoured(const CatalogueFile& file) {
    const FilePath target = file.tempFolder.child(file.fileName);
    if (resultDib_.Width() > 0)
        resultDib_.SavePicture(target);
    else if (session_.files.exists(target))
        session_.files.remove(target); // an earlier set's bitmap must not pass for this one's
}

void TexturePasses::colourFiles(const std::vector<CatalogueFile>& files, const ColourValues& colours) {
    reportFailures(session_.user, morvaneError, [&] {
        session_.user.hideScreen(description_.hiddenScreen);
        Progress progress = openProgress(u"Colorizing"_s, 1, files.size());
        makeTempFolders(files);
        const Recolouring recolouring(colours);
        OrderedWork<ColouredFile> work(static_cast<int>(files.size()), [&](int i) {
            const CatalogueFile& file = files[static_cast<std::size_t>(i)];
            return openImageForTextureSet(session_.files, file.sourceFolder.child(file.fileName),
                                          recolouring);
        });
        for (std::size_t i = 0; i < files.size(); ++i) {
            session_.user.pumpMessages();
            if (job_.isCancelled()) return;
            ColouredFile coloured = work.next();
            if (coloured.picture) resultDib_ = std::move(*coloured.picture);
            if (coloured.failure) showFailure(session_.user, {}, *coloured.failure);
            saveColoured(files[i]);
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
        OrderedWork<QByteArray> work(static_cast<int>(files.size()), [&](int i) {
            const CatalogueFile& file = files[static_cast<std::size_t>(i)];
            return compressedFile(session_.files, file.tempFolder.child(file.fileName));
        });
        for (std::size_t i = 0; i < files.size(); ++i) {
            session_.user.pumpMessages();
            if (job_.isCancelled()) return;
            // No contents, no file: a codec failure is not noticed.
            const QByteArray texture = work.next();
            const FilePath target = files[i].targetFolder.child(files[i].fileName);
            if (!texture.isEmpty()) session_.files.write(target, texture);
            advance(progress, i, files.size());
        }
        session_.user.updateProgress({}, {}, 100);
    });
}

} // namespace morvane
