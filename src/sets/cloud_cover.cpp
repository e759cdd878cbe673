#include "sets/cloud_cover.h"

#include "core/literals.h"
#include "core/numbers.h"

#include <algorithm>

namespace morvane {

namespace {

template <class Test>
const CloudCover* findCover(Test test) {
    const CloudCover* covers = cloudCovers();
    const CloudCover* found = std::find_if(covers, covers + cloudCoverCount, test);
    return found == covers + cloudCoverCount ? nullptr : found;
}

} // namespace

const CloudCover* cloudCovers() {
    static const CloudCover covers[cloudCoverCount] = {
        {1, u"Sky Clear"_s, u"CLR"_s, u" (SKC)"_s, u"dlgSplashSKC.bmp"_s, u"skc.bmp"_s, u"Clear Skies"_s},
        {2, u"Mostly Clear"_s, u"FEW"_s, u" (FEW)"_s, u"dlgSplashFEW.bmp"_s, u"few.bmp"_s, u"Few Clouds"_s},
        {3, u"Partly Cloudy"_s, u"SCT"_s, u" (SCT)"_s, u"dlgSplashSCT.bmp"_s, u"sct.bmp"_s,
         u"Scattered Clouds"_s},
        {4, u"Mostly Cloudy"_s, u"BKN"_s, u" (BKN)"_s, u"dlgSplashBKN.bmp"_s, u"bkn.bmp"_s,
         u"Broken Clouds"_s},
        {5, u"Overcast"_s, u"OVC"_s, u" (OVC)"_s, u"dlgSplashOVC.bmp"_s, u"ovc.bmp"_s, u"Overcast"_s},
    };
    return covers;
}

const CloudCover* cloudCover(int number) {
    return findCover([number](const CloudCover& cover) { return cover.number == number; });
}

const CloudCover* cloudCover(const QString& word) {
    return findCover(
        [trimmed = trimmedBlanks(word)](const CloudCover& cover) { return cover.word == trimmed; });
}

const CloudCover* cloudCoverOfCode(const QString& code) {
    return findCover([&code](const CloudCover& cover) { return cover.code == code; });
}

const CloudCover& coverOfClass(int cloudClass) {
    constexpr int middle = 3;
    const CloudCover* cover = cloudCover(cloudClass);
    return cover ? *cover : *cloudCover(middle);
}

} // namespace morvane
