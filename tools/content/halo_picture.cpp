#include "halo_picture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

namespace morvane {

namespace {

constexpr int side = 64;
constexpr qreal middle = side / 2.0;

struct GlowStop {
    qreal place;
    QColor colour;
};

void addGlow(QPainter& painter, qreal reach, std::initializer_list<GlowStop> stops) {
    QRadialGradient glow({middle, middle}, reach);
    for (const GlowStop& stop : stops)
        glow.setColorAt(stop.place, stop.colour);
    painter.fillRect(0, 0, side, side, glow);
}

/// Four rays on the axes and four shorter ones between them.
void addRays(QPainter& painter) {
    for (int ray = 0; ray < 8; ++ray) {
        const qreal length = ray % 2 == 0 ? 29 : 17;
        painter.save();
        painter.translate(middle, middle);
        painter.rotate(45.0 * ray);
        QLinearGradient light(0, 0, length, 0);
        light.setColorAt(0, QColor(150, 150, 140));
        light.setColorAt(1, Qt::black);
        painter.fillRect(QRectF(0, -0.7, length, 1.4), light);
        painter.restore();
    }
}

} // namespace

QImage drawHalo(HaloStyle style) {
    QImage halo(side, side, QImage::Format_RGB32);
    halo.fill(Qt::black);
    QPainter painter(&halo);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    if (style == HaloStyle::defaultHalo) {
        addGlow(painter, 31, {{0, Qt::white}, {0.3, QColor(150, 150, 150)}, {1, Qt::black}});
    } else {
        addGlow(painter, 24, {{0, QColor(120, 118, 110)}, {0.5, QColor(30, 29, 26)}, {1, Qt::black}});
        addGlow(painter, 9, {{0, Qt::white}, {0.5, QColor(160, 158, 150)}, {1, Qt::black}});
        addRays(painter);
    }
    painter.end();
    return halo.convertToFormat(QImage::Format_RGB888);
}

} // namespace morvane
