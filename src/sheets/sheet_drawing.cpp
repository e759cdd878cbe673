#include "sheets/sheet_drawing.h"

#include "core/numbers.h"

#include <QFont>
#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainter>

namespace morvane {

namespace {

constexpr int textLeft = 8;

QFont fontOfSize(int pixels, QFont::Weight weight) {
    QFont font(u"Roboto"_s);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

void paintNames(QPainter& painter, const Sheet& sheet, const SheetLayout& layout, std::size_t row,
                const SheetColours& colours) {
    const QRect& area = layout.rows()[row];
    const int width = SheetLayout::namesWidth - textLeft - 2;
    painter.setPen(QColor::fromRgb(colours.text));
    painter.setFont(fontOfSize(12, QFont::Medium));
    QRect named;
    painter.drawText(QRect(textLeft, area.top() + 9, width, 32), Qt::TextWordWrap, sheet.rows[row].name,
                     &named);
    painter.setFont(fontOfSize(11, QFont::Normal));
    painter.drawText(QRect(textLeft, named.bottom() + 4, width, 14), Qt::AlignVCenter,
                     countText(static_cast<std::int64_t>(sheet.rows[row].count()), u"texture"_s));
}

/// The arrow points to where the row grows.
void paintOpener(QPainter& painter, const Sheet& sheet, const SheetLayout& layout, std::size_t row,
                 const SheetColours& colours) {
    const QRect place = layout.openerPlace(row);
    if (place.isNull()) return;
    const auto& cells = sheet.rows[row].cells;
    const bool isOpen = std::ranges::all_of(
        cells, [&](const auto& cell) { return cell.empty() || !layout.place(cell.back()).isNull(); });
    const QPointF tip(place.left() + 7, place.center().y() + (isOpen ? -1 : 3));
    const int way = isOpen ? 4 : -4;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(colours.text), 1.5));
    painter.drawPolyline(QPolygonF{tip + QPointF(-4, way), tip, tip + QPointF(4, way)});
    painter.restore();
    painter.setFont(fontOfSize(11, QFont::Normal));
    painter.drawText(place.adjusted(16, 0, 0, 0), Qt::AlignVCenter,
                     isOpen
                         ? u"Fewer"_s
                         : u"All "_s + countText(static_cast<std::int64_t>(sheet.rows[row].largestCell())));
}

void paintUnread(QPainter& painter, const QRect& place, const SheetColours& colours) {
    painter.fillRect(place, QColor::fromRgb(colours.waiting));
    painter.setPen(QColor::fromRgb(colours.headGap));
    painter.drawLine(place.topLeft(), place.bottomRight());
    painter.drawLine(place.bottomLeft(), place.topRight());
}

void paintTexture(QPainter& painter, const Sheet& sheet, const SheetLayout& layout, std::size_t texture,
                  const SheetLook& view, const SheetPair* pair, const SheetColours& colours) {
    const QRect& place = layout.place(texture);
    if (!pair)
        painter.fillRect(place, QColor::fromRgb(colours.waiting));
    else if (pair->own.isNull() && pair->base.isNull())
        paintUnread(painter, place, colours);
    else
        paintPair(painter, place, *pair, view, place.width() / 2);
    if (view.picked == texture) {
        painter.setPen(QPen(QColor::fromRgb(colours.picked), 2));
        painter.drawRect(place.adjusted(-1, -1, 1, 1).adjusted(0, 0, 0, 0));
    }
    if (!layout.measures().hasNames) return;
    painter.setPen(QColor::fromRgb(colours.text));
    painter.setFont(fontOfSize(10, QFont::Normal));
    const QRect below(place.left(), place.bottom() + 1, layout.measures().cellWidth(), 12);
    painter.drawText(below, Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(sheet.textures[texture].name.section(u'.', 0, -2),
                                                      Qt::ElideMiddle, below.width()));
}

} // namespace

SheetColours sheetColours(PaperPalette palette) {
    return {paper::text.in(palette),    paper::field.in(palette),    paper::hair.in(palette),
            paper::headTop.in(palette), paper::headFoot.in(palette), paper::headGap.in(palette),
            paper::rowLine.in(palette), paper::accent.in(palette)};
}

void paintPair(QPainter& painter, const QRect& place, const SheetPair& pair, const SheetLook& view, int cut) {
    const QImage& base = pair.base.isNull() ? pair.own : pair.base;
    const QImage& own = pair.own.isNull() ? pair.base : pair.own;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, view.showsBase ? base : own);
    if (!view.isCut || view.showsBase) return;
    painter.save();
    painter.setClipRect(QRect(place.topLeft(), QSize(cut, place.height())), Qt::IntersectClip);
    painter.drawImage(place, base);
    painter.restore();
    painter.fillRect(QRect(place.left() + cut, place.top(), 1, place.height()), Qt::white);
}

void paintSheetHead(QPainter& painter, const Sheet& sheet, const SheetLayout& layout, int width,
                    const SheetColours& colours) {
    const QRect head(0, 0, width, SheetLayout::headHeight);
    QLinearGradient ground(head.topLeft(), head.bottomLeft());
    ground.setColorAt(0, QColor::fromRgb(colours.headTop));
    ground.setColorAt(1, QColor::fromRgb(colours.headFoot));
    painter.fillRect(head, ground);
    painter.setFont(fontOfSize(11, QFont::Medium));
    const auto write = [&](int left, const QString& text) {
        painter.setPen(QColor::fromRgb(colours.text));
        painter.drawText(QRect(left + 6, 0, 120, SheetLayout::headHeight), Qt::AlignVCenter, text);
    };
    write(0, u"Category"_s);
    for (int column = 0; column < sheet.columns.size(); ++column) {
        const int left = SheetLayout::namesWidth + column * layout.measures().columnWidth;
        painter.fillRect(QRect(left, 5, 1, SheetLayout::headHeight - 10), QColor::fromRgb(colours.headGap));
        write(left, sheet.columns[column]);
    }
    painter.fillRect(QRect(0, head.bottom(), width, 1), QColor::fromRgb(colours.headGap));
}

void paintSheetRows(QPainter& painter, const Sheet& sheet, const SheetLayout& layout, const QRect& part,
                    const SheetLook& view, const SheetPairs& pairs, const SheetColours& colours) {
    for (std::size_t row = 0; row < sheet.rows.size(); ++row) {
        const QRect& area = layout.rows()[row];
        if (!area.intersects(part)) continue;
        paintNames(painter, sheet, layout, row, colours);
        paintOpener(painter, sheet, layout, row, colours);
        painter.fillRect(QRect(part.left(), area.bottom(), part.width(), 1),
                         QColor::fromRgb(colours.rowLine));
    }
    for (const std::size_t texture : layout.texturesIn(part))
        paintTexture(painter, sheet, layout, texture, view, pairs(texture), colours);
}

} // namespace morvane
