#include "core/numbers.h"

#include "core/error.h"
#include "core/literals.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>

namespace morvane {

namespace {

/// std::nearbyint follows the rounding mode; this is to nearest, ties to even, whatever the mode.
double roundHalfEven(double value) {
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction < 0.5) return below;
    if (fraction > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <class Integer>
Integer narrowed(double value) {
    const double rounded = roundHalfEven(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        throw Error(ErrorCode::overflow);
    return static_cast<Integer>(rounded);
}

} // namespace

std::int32_t roundToLong(double value) {
    return narrowed<std::int32_t>(value);
}

std::int16_t roundToInteger(double value) {
    return narrowed<std::int16_t>(value);
}

std::int16_t toInteger(std::int64_t value) {
    if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max())
        throw Error(ErrorCode::overflow);
    return static_cast<std::int16_t>(value);
}

double textToNumber(const QString& text) {
    bool ok = false;
    const double value = trimmedBlanks(text).toDouble(&ok);
    if (!ok || !std::isfinite(value)) throw Error(ErrorCode::typeMismatch);
    return value;
}

QString floatText(float value) {
    if (value == 0) return u"0"_s; // also for -0
    if (!std::isfinite(value)) throw Error(ErrorCode::overflow);
    const int magnitude = static_cast<int>(std::floor(std::log10(std::fabs(static_cast<double>(value)))));
    QString text = QString::number(static_cast<double>(value), 'f', std::clamp(6 - magnitude, 0, 50));
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.')) text.chop(1);
    }
    return text;
}

QString countText(std::int64_t count) {
    return QLocale(QLocale::English).toString(static_cast<qlonglong>(count));
}

QString countText(std::int64_t count, const QString& noun) {
    return countText(count) + u' ' + noun + (count == 1 ? QString() : u"s"_s);
}

QString namesText(const QStringList& names) {
    constexpr qsizetype shown = 5;
    const QString more =
        names.size() > shown ? u" and %1 more"_s.arg(countText(names.size() - shown)) : QString();
    return names.first(std::min(shown, names.size())).join(u", "_s) + more;
}

bool isDigits(QStringView text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QStringView trimmedBlanksView(QStringView text) {
    while (!text.isEmpty() && text.front() == u' ')
        text = text.mid(1);
    while (!text.isEmpty() && text.back() == u' ')
        text.chop(1);
    return text;
}

QString trimmedBlanks(QStringView text) {
    return trimmedBlanksView(text).toString();
}

} // namespace morvane
