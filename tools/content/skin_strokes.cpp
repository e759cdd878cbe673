#include "skin_strokes.h"

#include "core/error.h"

#include <QRectF>
#include <sstream>

namespace morvane::skin {

namespace {

class StrokeReader {
public:
    explicit StrokeReader(const char* text) : text_(text) { text_.imbue(std::locale::classic()); }

    Strokes read() {
        for (char letter = 0; text_ >> letter;)
            add(letter);
        return strokes_;
    }

private:
    qreal number() {
        qreal value = 0;
        text_ >> value;
        return value;
    }
    QPointF point() {
        const qreal x = number();
        return {x, number()};
    }

    void add(char letter) {
        switch (letter) {
        case 'M':
            return strokes_.lines.moveTo(point());
        case 'L':
            return strokes_.lines.lineTo(point());
        case 'C':
            return addCurve();
        case 'Z':
            return strokes_.lines.closeSubpath();
        case 'A':
            return addArc();
        case 'R':
            return addRectangle();
        case 'O':
            return addEllipse(strokes_.lines, true);
        case 'E':
            return addEllipse(strokes_.lines, false);
        case 'D':
            return addEllipse(strokes_.dots, true);
        default:
            throw Error(ErrorCode::invalidCall, QString(QLatin1Char(letter)));
        }
    }

    void addCurve() {
        const QPointF first = point();
        const QPointF second = point();
        strokes_.lines.cubicTo(first, second, point());
    }

    void addArc() {
        const QPointF centre = point();
        const qreal radius = number();
        const QRectF circle(centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
        const qreal start = number();
        strokes_.lines.arcMoveTo(circle, start);
        strokes_.lines.arcTo(circle, start, number());
    }

    void addRectangle() {
        const QPointF corner = point();
        const QPointF size = point();
        const qreal radius = number();
        strokes_.lines.addRoundedRect({corner, QSizeF(size.x(), size.y())}, radius, radius);
    }

    void addEllipse(QPainterPath& path, bool isCircle) {
        const QPointF centre = point();
        const qreal across = number();
        path.addEllipse(centre, across, isCircle ? across : number());
    }

    std::istringstream text_;
    Strokes strokes_;
};

} // namespace

Strokes strokesFrom(const char* text) {
    return StrokeReader(text).read();
}

} // namespace morvane::skin
