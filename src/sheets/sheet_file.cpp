#include "core/error.h"
#include "core/ordered_work.h"
#include "imaging/program_font.h"
#include "sheets/sheet_drawing.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>

namespace morvane {

namespace {

constexpr int margin = 16, titleHeight = 40, largestSide = 32000;

void paintTitle(QPainter& painter, const Sheet& sheet, int width, const SheetColours& colours) {
    painter.setPen(QColor::fromRgb(colours.text));
    QFont font(u"Roboto"_s);
    font.setPixelSize(16);
    font.setBold(true);
    painter.setFont(font);
    QRect written;
    painter.drawText(QRect(0, 0, width, 24), Qt::AlignVCenter, sheet.title, &written);
    font.setPixelSize(12);
    font.setBold(false);
    painter.setFont(font);
    const QString cover = sheet.cover.isEmpty() ? QString() : sheet.cover + u"   "_s;
    painter.drawText(QRect(written.right() + 20, 1, width, 24), Qt::AlignVCenter, cover + sheet.summary());
}

} // namespace

QImage drawnSheet(SheetPictures& pictures, int zoom, const SheetLook& view) {
    loadProgramFont();
    const Sheet& sheet = pictures.sheet();
    const SheetLayout layout(sheet, SheetMeasures::ofSaved(zoom), {});
    const QSize size = layout.size() + QSize(2 * margin, 2 * margin + titleHeight + SheetLayout::headHeight);
    if (size.width() > largestSide || size.height() > largestSide) return {};
    const int side = zoom > SheetPictures::smallSide ? zoom : SheetPictures::smallSide;
    OrderedShares<SheetPair> loaded(sheet.textures.size(),
                                    [&](std::size_t index) { return pictures.load(index, side); });
    std::vector<SheetPair> pairs;
    while (pairs.size() < sheet.textures.size())
        pairs.push_back(loaded.next());
    pictures.keepSmall();
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) return {};
    const SheetColours colours = sheetColours(PaperPalette::day); // it may be printed
    image.fill(colours.ground);
    QPainter painter(&image);
    painter.translate(margin, margin);
    paintTitle(painter, sheet, layout.size().width(), colours);
    painter.translate(0, titleHeight);
    paintSheetHead(painter, sheet, layout, layout.size().width(), colours);
    painter.translate(0, SheetLayout::headHeight);
    paintSheetRows(
        painter, sheet, layout, QRect(QPoint(), layout.size()), view,
        [&](std::size_t texture) { return &pairs[texture]; }, colours);
    return image;
}

void saveSheet(FileSystem& files, const QImage& image, const FilePath& target) {
    if (image.isNull()) throw Error(ErrorCode::outOfMemory, target.text());
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QImageWriter writer(&bytes, "png");
    writer.setCompression(30); // of 100: a tenth larger than the least, in a third of the time
    if (!writer.write(image)) throw Error(ErrorCode::outOfMemory, target.text());
    files.write(target, bytes.data());
}

} // namespace morvane
