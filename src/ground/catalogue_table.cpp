#include "ground/catalogue_table.h"

namespace morvane {

namespace {

constexpr char16_t genericWorld[] = u"GENERIC WORLD";
constexpr char16_t textureTemp[] = u"TempBitmaps\\Texture";

} // namespace

// "*" takes any variant letter. The letter c (red soil) is left out of the letter lists and comes through
// category 10 alone.
const std::array<CatalogueCategory, 15>& catalogueTable() {
    static const std::array<CatalogueCategory, 15> table{{
        {genericWorld, textureTemp,
         u"029*2 030*2 031*2 032*2 033*2 034*2 035*2 036*2 037*2 038*2 039*2 040*2 041*2 042*2 043*2 044*2 "
         u"045*2 "
         "046*2 047*2 048*2 049*2 136*2",
         false},
        {genericWorld, textureTemp,
         u"014*2 019*2 020*2 021*2 022*2 023*2 024*2 025*2 026*2 027*2 028*2 059*2 060*2", false},
        {genericWorld, textureTemp,
         u"006a2 006b2 006d2 006e2 006f2 006g2 006h2 006i2 006j2 013*2 052a2 052b2 052d2 052e2 052f2 052g2 "
         u"052h2 "
         "052i2 052j2 061*2 062*2 064*2 065*2 066*2 128*2 129*2 131*2 134*2 135*2 139*2 140*2 141*2 142*2",
         false},
        {genericWorld, textureTemp, u"016*2 017*2 018*2 063*2", false},
        {genericWorld, textureTemp,
         u"002a2 002b2 002d2 002e2 002f2 002g2 002h2 002i2 002j2 003a2 003b2 003d2 003e2 003f2 003g2 003h2 "
         u"003i2 "
         "003j2 050a2 050b2 050d2 050e2 050f2 050g2 050h2 050i2 050j2 051a2 051b2 051d2 051e2 051f2 051g2 "
         "051h2 "
         "051i2 051j2 132*2 133*2 137*2 138*2 143*2",
         false},
        {genericWorld, textureTemp, u"007*2 008*2", false},
        {genericWorld, textureTemp,
         u"004*2 005a2 005b2 005d2 005e2 005f2 005g2 005h2 005i2 005j2 010*2 015*2 068*2 069*2", false},
        {genericWorld, textureTemp,
         u"009a2 009b2 009d2 009e2 009f2 009g2 009h2 009i2 009j2 011a2 011b2 011d2 011e2 011f2 011g2 011h2 "
         u"011i2 "
         "011j2 058*2",
         false},
        {genericWorld, textureTemp, u"055*2 056*2", false},
        {genericWorld, textureTemp, u"002c2 003c2 005c2 006c2 009c2 011c2 050c2 051c2 052c2", true},
        {genericWorld, textureTemp, u"123*2 124*2 125*2 126*2 127*2", false},
        {u"UT EUROPE", textureTemp, u"eugol eupar EuIndu", false},
        {u"UTIND", u"TempBitmaps\\UTEurLC", u"", false},
        {u"DUTCH", u"TempBitmaps\\Dutch", u"005a2 008a2", false},
        {genericWorld, textureTemp, u"002*2 022*2", false},
    }};
    return table;
}

} // namespace morvane
