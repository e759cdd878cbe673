#include "stock_files.h"

#include "base_image_drawing.h"
#include "core/error.h"
#include "core/ordered_work.h"
#include "ground/tropical_files.h"
#include "halo_picture.h"
#include "imaging/recolouring.h"
#include "imaging/texture_codec.h"
#include "splash_screen.h"

#include <QImage>
#include <algorithm>

namespace morvane {

namespace {

constexpr ColourValues simulatorLook{-55, 6, 0, -6, -6, -10};

struct DrawnImage {
    Picture picture;
    QByteArray body;
    QByteArray simulatorTexture;
};

Picture pictureOf(const cDIBSection& section) {
    const auto* pixels = section.DIBSectionBitsPtr();
    const auto size =
        static_cast<std::size_t>(section.BytesPerScanLine()) * static_cast<std::size_t>(section.Height());
    return {section.Width(), section.Height(), std::vector<std::uint8_t>(pixels, pixels + size)};
}

DrawnImage draw(const BaseImage& image) {
    DrawnImage drawn;
    drawn.picture = drawBaseImage(image);
    drawn.body = compressTexture(drawn.picture);
    drawn.simulatorTexture = compressTexture(inSimulatorLook(drawn.picture));
    return drawn;
}

Picture toPicture(const QImage& image) {
    const QImage pixels = image.convertToFormat(QImage::Format_BGR888);
    Picture picture{pixels.width(), pixels.height(), {}};
    const auto length = static_cast<std::size_t>(bytesPerRow(picture.width));
    for (int y = picture.height - 1; y >= 0; --y) {
        const uchar* row = pixels.constScanLine(y);
        picture.rows.insert(picture.rows.end(), row, row + picture.width * 3);
        picture.rows.resize((picture.rows.size() + length - 1) / length * length);
    }
    return picture;
}

FilePath simulatorFolder(const FilePath& simulator, const QString& resourceFolder) {
    return simulator /
           (resourceFolder == u"UTIND" ? u"Scenery\\UTEurLC\\Texture" : u"Scenery\\World\\Texture");
}

bool isTropical(const BaseImage& image) {
    return image.resourceFolder == u"GENERIC WORLD" &&
           std::ranges::any_of(tropicalPatterns(TropicalForm::b), [&](const QString& pattern) {
               return image.fileName.startsWith(pattern, Qt::CaseInsensitive);
           });
}

/// The options of the program replace only what a simulator has: it has a file for every Dutch one, a generic
/// one where there is one, and both forms of the tropics.
void addToSimulator(FileSystem& files, const FilePath& simulator, const BaseImage& image,
                    const QByteArray& texture) {
    const FilePath folder = simulatorFolder(simulator, image.resourceFolder);
    const FilePath own = folder.exactChild(image.fileName.toUpper());
    const FilePath twin = folder.exactChild(tropicalName(image.fileName).toUpper());
    if (!image.resourceFolder.startsWith(u"DUTCH") || !files.exists(own)) files.write(own, texture);
    if (isTropical(image) && !files.exists(twin)) files.write(twin, texture);
}

} // namespace

void saveBitmap(const Picture& picture, const FilePath& target) {
    cDIBSection section;
    section.CreateFromPicture(picture);
    if (!section.SavePicture(target)) throw Error(ErrorCode::diskFull, target.text());
}

Picture inSimulatorLook(const Picture& picture) {
    cDIBSection source, result;
    source.CreateFromPicture(picture);
    result.Create(source.Width(), source.Height());
    recolour(simulatorLook, source, result);
    return pictureOf(result);
}

void writeStock(FileSystem& files, const FilePath& home, const FilePath& simulator,
                const std::vector<BaseImage>& stock, const std::function<void(std::size_t)>& onDone) {
    OrderedWork<DrawnImage> work(static_cast<int>(stock.size()),
                                 [&](int i) { return draw(stock[static_cast<std::size_t>(i)]); });
    std::size_t done = 0;
    for (const BaseImage& image : stock) {
        const DrawnImage drawn = work.next();
        onDone(++done);
        saveBitmap(drawn.picture, (home / u"Resources").child(image.resourceFolder).child(image.fileName));
        files.write(home.child(image.resourceFolder).child(image.fileName), drawn.body);
        if (!simulator.isEmpty()) addToSimulator(files, simulator, image, drawn.simulatorTexture);
    }
}

void writeSplashes(FileSystem& files, const FilePath& home, const FilePath& simulator) {
    for (const char16_t* code : {u"SKC", u"FEW", u"SCT", u"BKN", u"OVC"}) {
        const QString cover = QStringView(code).toString();
        saveBitmap(toPicture(drawSplash(cover)), home / u"Media" / (u"dlgSplash"_s + cover + u".bmp"_s));
    }
    const FilePath own = home / u"Media\\dlgsplash.bmp";
    saveBitmap(toPicture(drawSplash({})), own);
    if (!simulator.isEmpty()) files.copyContents(own, simulator / u"Uires\\dlgsplash.bmp");
}

void writeHalos(FileSystem& files, const FilePath& home, const FilePath& simulator) {
    const FilePath own = home / u"Media\\halodefault.bmp";
    saveBitmap(toPicture(drawHalo(HaloStyle::customHalo)), home / u"Media\\halo.bmp");
    saveBitmap(toPicture(drawHalo(HaloStyle::defaultHalo)), own);
    if (!simulator.isEmpty()) files.copyContents(own, simulator / u"Texture\\halo.bmp");
}

} // namespace morvane
