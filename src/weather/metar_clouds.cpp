#include "weather/metar_clouds.h"

#include <algorithm>
#include <array>

namespace morvane {

namespace {

constexpr CloudLayer layers[] = {
    {u"skc", false, 1, u"Sky Clear"},
    {u"clr", false, 1, u"Sky Clear"},
    {u"nsc", false, 1, u"Sky Clear"},
    {u"few", false, 2, u"Mostly Clear"},
    {u"sct", false, 3, u"Partly Cloudy"},
    {u"bkn", false, 4, u"Mostly Cloudy"},
    {u"ovc", false, 5, u"Overcast"},
    {u"vv", false, 6, u"Sky obscured"},
    {u"cavok", true, 1, u"No significant cloud below 5000 feet (CAVOK)"},
    // Wanted: no data counts like scattered cloud, the middle of the scale.
    {u"ncd", true, 3, u"No Cloud Data Available", false},
};

struct Mark {
    QStringView ending;
    QStringView text;
};

/// In the order of the texts; "tcu" stands before "cu", which ends it.
constexpr std::array<Mark, 3> cumulusMarks{{
    {u"cb", u": Cumulonimbus observed"},
    {u"tcu", u": Towering Cumulonimbus observed"},
    {u"cu", u": Cumulus observed"},
}};

constexpr qsizetype shortestGroup = 3;

bool isOfKind(QStringView token, const CloudLayer& layer) {
    return layer.isWholeToken ? token == layer.word : token.startsWith(layer.word);
}

} // namespace

const CloudLayer* findCloudLayer(QStringView token) {
    if (token.size() < shortestGroup) return nullptr;
    const auto found = std::find_if(std::begin(layers), std::end(layers),
                                    [token](const CloudLayer& layer) { return isOfKind(token, layer); });
    return found == std::end(layers) ? nullptr : found;
}

void CumulusMarks::note(QStringView token) {
    for (std::size_t i = 0; i < cumulusMarks.size(); ++i) {
        if (!token.endsWith(cumulusMarks[i].ending)) continue;
        seen_.set(i);
        return;
    }
}

QString CumulusMarks::text() const {
    QString text;
    for (std::size_t i = 0; i < cumulusMarks.size(); ++i)
        if (seen_.test(i)) text += cumulusMarks[i].text;
    return text;
}

} // namespace morvane
