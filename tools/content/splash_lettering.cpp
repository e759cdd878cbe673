#include "splash_lettering.h"

#include <map>
#include <string_view>
#include <vector>

namespace morvane {

namespace {

// A drawing is a list of strokes with blanks between them. A stroke is a list of points, two digits each: x
// from the left, y upward, the base line at 2, small letters up to 6, capitals up to 8. "~" before a stroke
// makes it a curve that is led by its inner points, "@" a closed one. One point alone is a dot.
const std::map<char, std::string_view> drawings = {
    {'A', "022842 1535"},
    {'B', "0208 ~08484505 ~05454202"},
    {'C', "~48080242"},
    {'D', "0208 ~08484202"},
    {'E', "48080242 0535"},
    {'F', "480802 0535"},
    {'G', "~48080242 424525"},
    {'H', "0208 4248 0545"},
    {'I', "1218"},
    {'J', "3834 ~34321202"},
    {'K', "0208 480542"},
    {'L', "080242"},
    {'M', "0208254842"},
    {'N', "02084248"},
    {'O', "@08484202"},
    {'P', "0208 ~08484505"},
    {'Q', "@08484202 2442"},
    {'R', "0208 ~08484505 2542"},
    {'S', "~480805454202"},
    {'T', "0848 2822"},
    {'U', "0804 ~04024244 4448"},
    {'V', "082248"},
    {'W', "0812253248"},
    {'X', "0842 0248"},
    {'Y', "082548 2522"},
    {'Z', "08480242"},
    {'a', "@06363202 3632"},
    {'b', "0802 @06363202"},
    {'c', "~36060232"},
    {'d', "3832 @06363202"},
    {'e', "0434 ~3436060232"},
    {'f', "~281816 1612 0626"},
    {'g', "@06363202 3632 ~323000"},
    {'h', "0802 ~04063634 3432"},
    {'i', "0602 08"},
    {'j', "1612 ~121000 18"},
    {'k', "0802 360432"},
    {'l', "0802"},
    {'m', "0602 ~04062624 2422 ~24264644 4442"},
    {'n', "0602 ~04063634 3432"},
    {'o', "@06363202"},
    {'p', "0600 @06363202"},
    {'q', "3630 @06363202"},
    {'r', "0602 ~040626"},
    {'s', "~360604343202"},
    {'t', "1813 ~131222 0626"},
    {'u', "0604 ~04023234 3632"},
    {'v', "062246"},
    {'w', "0612243246"},
    {'x', "0632 0236"},
    {'y', "0622 4610"},
    {'z', "06360232"},
    {'0', "@08383202"},
    {'1', "072822"},
    {'2', "~07083835 3502 0232"},
    {'3', "~08383515 ~15353202"},
    {'4', "280434 2722"},
    {'5', "380805 ~05353202"},
    {'6', "~380804 @05353202"},
    {'7', "083812"},
    {'8', "@08383505 @05353202"},
    {'9', "~023236 @08383505"},
    {'.', "02"},
    {',', "1201"},
    {':', "02 05"},
    {'-', "0525"},
    {'_', "0141"},
    {'/', "0238"},
    {'(', "~180512"},
    {')', "~081502"},
    {'%', "0248 07 43"},
    {'&', "~42163828061242"},
};

constexpr qreal capitalUnits = 6;
constexpr qreal gapUnits = 1.9;
constexpr qreal blankUnits = 2.2;

QPointF pointOf(std::string_view stroke, std::size_t place, qreal unit) {
    return {(stroke[place] - '0') * unit, (2 - (stroke[place + 1] - '0')) * unit};
}

std::vector<QPointF> pointsOf(std::string_view stroke, qreal unit) {
    std::vector<QPointF> points;
    for (std::size_t place = 0; place + 1 < stroke.size(); place += 2)
        points.push_back(pointOf(stroke, place, unit));
    return points;
}

void addStraight(QPainterPath& path, const std::vector<QPointF>& points) {
    path.moveTo(points.front());
    for (const QPointF& point : points)
        path.lineTo(point);
    // A path of no length would not be stroked at all.
    if (points.size() == 1) path.lineTo(points.front() + QPointF(0.01, 0));
}

void addCurve(QPainterPath& path, const std::vector<QPointF>& points) {
    path.moveTo(points.front());
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        const bool isLast = i + 2 == points.size();
        path.quadTo(points[i], isLast ? points[i + 1] : (points[i] + points[i + 1]) / 2);
    }
}

void addLoop(QPainterPath& path, const std::vector<QPointF>& points) {
    path.moveTo((points.back() + points.front()) / 2);
    for (std::size_t i = 0; i < points.size(); ++i)
        path.quadTo(points[i], (points[i] + points[(i + 1) % points.size()]) / 2);
}

void addStroke(QPainterPath& path, std::string_view stroke, qreal unit) {
    if (stroke.front() == '~')
        addCurve(path, pointsOf(stroke.substr(1), unit));
    else if (stroke.front() == '@')
        addLoop(path, pointsOf(stroke.substr(1), unit));
    else
        addStraight(path, pointsOf(stroke, unit));
}

QPainterPath glyphPath(char letter, qreal unit) {
    QPainterPath path;
    const auto found = drawings.find(letter);
    if (found == drawings.end()) return path;
    std::string_view rest = found->second;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        addStroke(path, rest.substr(0, end), unit);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return path;
}

/// How far the next letter stands from this one's origin.
qreal advanceOf(char letter, qreal unit) {
    const auto found = drawings.find(letter);
    if (found == drawings.end()) return blankUnits * unit;
    return glyphPath(letter, unit).boundingRect().right() + gapUnits * unit;
}

} // namespace

QPainterPath letteringPath(const QString& text, qreal height) {
    const qreal unit = height / capitalUnits;
    QPainterPath path;
    qreal at = 0;
    for (const char letter : text.toLatin1()) {
        path.addPath(glyphPath(letter, unit).translated(at, 0));
        at += advanceOf(letter, unit);
    }
    return path;
}

qreal letteringWidth(const QString& text, qreal height) {
    const qreal unit = height / capitalUnits;
    qreal width = 0;
    for (const char letter : text.toLatin1())
        width += advanceOf(letter, unit);
    return width > 0 ? width - gapUnits * unit : 0;
}

} // namespace morvane
