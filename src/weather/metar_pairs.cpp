#include "weather/metar_pairs.h"

#include <algorithm>

namespace morvane {

namespace {

constexpr QStringView inVicinity = u"In Vicinity (not at aerodrome)";
constexpr QStringView recentWeather = u"Recent Weather";
constexpr QStringView introductionEnd = u", ";
constexpr QStringView partial = u"Partial (covering part of aerodrome)";

constexpr CodeText weather[] = {
    {u"sh", u"Shower(s)"},
    {u"ts", u"Thunderstorm"},
    {u"dz", u"Drizzle"},
    {u"ra", u"Rain"},
    {u"sn", u"Snow"},
    {u"sg", u"Snow Grains"},
    {u"ic", u"Ice Crystals"},
    {u"pe", u"Ice Pellets"},
    {u"gr", u"Hail"},
    {u"gs", u"Small Hail"},
    {u"po", u"Dust Devils"},
    {u"sq", u"Squall"},
    {u"fc", u"Funnel Clouds (Tornado or Water-spout)"},
    {u"ss", u"Sandstorm"},
    {u"ds", u"Duststorm"},
    {u"bl", u"Blowing"},
    {u"vc", inVicinity},
    {u"pr", partial},
    {u"re", recentWeather},
};

constexpr CodeText obscurations[] = {
    {u"br", u"Mist"},
    {u"fg", u"Fog"},
    {u"fu", u"Smoke"},
    {u"va", u"Volcanic Ash"},
    {u"du", u"Widespread Dust"},
    {u"sa", u"Sand"},
    {u"hz", u"Haze"},
    {u"bl", u"Blowing"},
    {u"fz", u"Freezing"},
    {u"mi", u"Shallow"},
    {u"bc", u"Patches"},
    {u"ld", u"Low drifting"},
    {u"vc", inVicinity},
    {u"pr", partial},
    {u"re", recentWeather},
};

bool isIntroduction(QStringView text) {
    return text == inVicinity || text == recentWeather;
}

bool isOpenIntroduction(QStringView text) {
    return text.endsWith(introductionEnd) && isIntroduction(text.chopped(introductionEnd.size()));
}

void startText(const PairGrammar& grammar, QStringView pairText, QString& text) {
    text = pairText.toString();
    if (grammar.hasIntroductions && isIntroduction(pairText)) text += introductionEnd;
}

void joinText(const PairGrammar& grammar, QStringView pairText, QString& text) {
    if (!grammar.hasIntroductions || !isOpenIntroduction(text)) text += grammar.joiner;
    text += pairText;
}

} // namespace

std::span<const CodeText> weatherCodes() {
    return weather;
}

std::span<const CodeText> obscurationCodes() {
    return obscurations;
}

QStringView textOfCode(std::span<const CodeText> codes, QStringView pair) {
    const auto found = std::find_if(codes.begin(), codes.end(),
                                    [pair](const CodeText& entry) { return entry.code == pair; });
    return found == codes.end() ? QStringView() : found->text;
}

PairsFound readPairs(QStringView token, const PairGrammar& grammar, QString& text) {
    PairsFound found;
    for (qsizetype i = grammar.start; i < token.size(); i += 2) {
        const QStringView pair = token.mid(i, 2);
        const QStringView pairText = textOfCode(grammar.codes, pair);
        found.last = !pairText.isEmpty();
        if (!found.last) continue;
        found.any = true;
        if (i == grammar.start)
            startText(grammar, pairText, text);
        else
            joinText(grammar, pairText, text);
    }
    return found;
}

} // namespace morvane
