#include "base_image_contact_sheet.h"

#include "splash_lettering.h"

#include <QPainter>
#include <algorithm>
#include <cstring>

namespace morvane {

namespace {

constexpr int pictureSide = 144;
constexpr int margin = 24;
constexpr int gap = 10;
constexpr int titleHeight = 34;
constexpr qreal captionSize = 11;
const QColor paperColor(0xf4, 0xf3, 0xef);
const QColor inkColor(0x2b, 0x2e, 0x33);

int columnCount(const std::vector<ContactRow>& rows, const QStringList& titles) {
    std::size_t count = static_cast<std::size_t>(titles.size());
    for (const ContactRow& row : rows)
        count = std::max(count, row.pictures.size());
    return static_cast<int>(count);
}

int captionWidth(const std::vector<ContactRow>& rows) {
    qreal width = 0;
    for (const ContactRow& row : rows)
        width = std::max(width, letteringWidth(row.caption, captionSize));
    return static_cast<int>(width) + 2 * gap;
}

void write(QPainter& painter, QPointF baseLine, const QString& text) {
    painter.setPen(QPen(inkColor, captionSize / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(letteringPath(text, captionSize).translated(baseLine));
}

void drawPicture(QPainter& painter, QPoint corner, const Picture& picture) {
    if (picture.isEmpty()) return;
    const QImage scaled =
        toImage(picture).scaled(pictureSide, pictureSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(corner, scaled);
}

} // namespace

QImage toImage(const Picture& picture) {
    QImage image(picture.width, picture.height, QImage::Format_BGR888);
    for (int y = 0; y < picture.height; ++y) {
        const int row = (picture.height - 1 - y) * bytesPerRow(picture.width);
        std::memcpy(image.scanLine(y), &picture.rows[static_cast<std::size_t>(row)],
                    static_cast<std::size_t>(picture.width) * 3);
    }
    return image;
}

QImage contactSheet(const std::vector<ContactRow>& rows, const QStringList& columnTitles) {
    const int left = margin + captionWidth(rows);
    const int step = pictureSide + gap;
    const int top = margin + titleHeight;
    QImage sheet(left + columnCount(rows, columnTitles) * step - gap + margin,
                 top + static_cast<int>(rows.size()) * step - gap + margin, QImage::Format_RGB888);
    sheet.fill(paperColor);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int column = 0; column < columnTitles.size(); ++column) {
        const qreal middle = left + column * step + pictureSide / 2.0;
        const qreal width = letteringWidth(columnTitles[column], captionSize);
        write(painter, {middle - width / 2, margin + captionSize + 4.0}, columnTitles[column]);
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const int y = top + static_cast<int>(row) * step;
        write(painter, {static_cast<qreal>(margin), y + (pictureSide + captionSize) / 2}, rows[row].caption);
        for (std::size_t column = 0; column < rows[row].pictures.size(); ++column)
            drawPicture(painter, {left + static_cast<int>(column) * step, y}, rows[row].pictures[column]);
    }
    return sheet;
}

} // namespace morvane
