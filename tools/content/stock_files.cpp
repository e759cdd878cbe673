#include "stock_files.h"

#include "base_image_drawing.h"
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
    QByteArray bitmap, body;
    QByteArray simulatorTexture; ///< only where it is wanted
};

Picture pictureOf(const cDIBSection& section) {
    const auto* pixels = section.DIBSectionBitsPtr();
    const auto size =
        static_cast<std::size_t>(section.BytesPerScanLine()) * static_cast<std::size_t>(section.Height());
    return {section.Width(), section.Height(), std::vector<std::uint8_t>(pixels, pixels + size)};
}

DrawnImage draw(const BaseImage& image, bool hasSimulator) {
    const Picture picture = drawBaseImage(image);
    DrawnImage drawn{bitmapFile(picture), compressTexture(picture), {}};
    if (hasSimulator) drawn.simulatorTexture = compressTexture(inSimulatorLook(picture));
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

QByteArray bitmapFile(const Picture& picture) {
    cDIBSection section;
    section.CreateFromPicture(picture);
    const auto bytes = section.file();
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

Picture inSimulatorLook(const Picture& picture) {
    cDIBSection source, result;
    source.CreateFromPicture(picture);
    result.Create(source.Width(), source.Height());
    recolour(simulatorLook, source, result);
    return pictureOf(result);
}

void writeStock(const PutFile& put, FileSystem& files, const FilePath& home, const FilePath& simulator,
                const std::vector<BaseImage>& stock, const std::function<void(std::size_t)>& onDone) {
    OrderedWork<DrawnImage> work(static_cast<int>(stock.size()), [&](int i) {
        return draw(stock[static_cast<std::size_t>(i)], !simulator.isEmpty());
    });
    std::size_t done = 0;
    for (const BaseImage& image : stock) {
        const DrawnImage drawn = work.next();
        onDone(++done);
        put((home / u"Resources").child(image.resourceFolder).child(image.fileName), drawn.bitmap);
        put(home.child(image.resourceFolder).child(image.fileName), drawn.body);
        if (!simulator.isEmpty()) addToSimulator(files, simulator, image, drawn.simulatorTexture);
    }
}

void writeSplashes(const PutFile& put, const FilePath& media) {
    for (const char16_t* code : {u"SKC", u"FEW", u"SCT", u"BKN", u"OVC"}) {
        const QString cover = QStringView(code).toString();
        put(media.child(u"dlgSplash"_s + cover + u".bmp"_s), bitmapFile(toPicture(drawSplash(cover))));
    }
    put(media / u"dlgsplash.bmp", bitmapFile(toPicture(drawSplash({}))));
}

void writeHalos(const PutFile& put, const FilePath& media) {
    put(media / u"halo.bmp", bitmapFile(toPicture(drawHalo(HaloStyle::customHalo))));
    put(media / u"halodefault.bmp", bitmapFile(toPicture(drawHalo(HaloStyle::defaultHalo))));
}

} // namespace morvane
