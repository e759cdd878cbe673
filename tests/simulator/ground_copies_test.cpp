// Which file an install of a ground set puts where, for every combination of what it depends on.

#include "ground/ground_installation.h"
#include "ground/ground_selection.h"
#include "sets/options_in_force.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <QDir>
#include <algorithm>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::writeFile;

/// Each row is copied when all its letters hold: G a generated set, D "Default"; t tropical, d Dutch, a the
/// add-on stands, s the splash is not inhibited. Rows are in the order of the copy: a later one wins.
constexpr struct {
    const char16_t *when, *source, *target;
} copies[] = {
    {u"Gs", u"Media\\dlgSplashOVC.bmp", u"Uires\\dlgsplash.bmp"},
    {u"G", u"Texture Sets\\2-Storm\\Texture\\005a2su2.bmp", u"World\\005a2su2.bmp"},
    {u"G", u"Texture Sets\\2-Storm\\Texture\\029b2su6.bmp", u"World\\029b2su6.bmp"},
    {u"G", u"Texture Sets\\2-Storm\\Texture\\029h2su6.bmp", u"World\\029h2su6.bmp"},
    {u"G", u"GENERIC WORLD\\005a2an1.agn", u"World\\005a2an1.agn"},
    {u"G", u"GENERIC WORLD\\029b2an1.agn", u"World\\029b2an1.agn"},
    {u"G", u"GENERIC WORLD\\029h2an1.agn", u"World\\029h2an1.agn"},
    {u"Ga", u"Texture Sets\\2-Storm\\UTEurLC\\034b2su4.bmp", u"UTEurLC\\034b2su4.bmp"},
    {u"Gd", u"Texture Sets\\2-Storm\\Dutch\\005a2su2.bmp", u"World\\005a2su2.bmp"},
    {u"Gd", u"DUTCH\\005a2an1.agn", u"World\\005a2an1.agn"},
    {u"Gt", u"Texture Sets\\2-Storm\\Texture\\029b2su6.bmp", u"World\\029h2su6.bmp"},
    {u"Gt", u"GENERIC WORLD\\029b2an1.agn", u"World\\029h2an1.agn"},

    {u"D", u"GENERIC WORLD\\005a2su2.bmp", u"World\\005a2su2.bmp"},
    {u"D", u"GENERIC WORLD\\029b2su6.bmp", u"World\\029b2su6.bmp"},
    {u"D", u"GENERIC WORLD\\029h2su6.bmp", u"World\\029h2su6.bmp"},
    {u"D", u"GENERIC WORLD\\005a2an1.agn", u"World\\005a2an1.agn"},
    {u"D", u"GENERIC WORLD\\029b2an1.agn", u"World\\029b2an1.agn"},
    {u"D", u"GENERIC WORLD\\029h2an1.agn", u"World\\029h2an1.agn"},
    {u"D", u"UT EUROPE\\090b2su1.bmp", u"World\\090b2su1.bmp"},
    {u"Da", u"UTIND\\034b2su4.bmp", u"UTEurLC\\034b2su4.bmp"},
    {u"Dd", u"DUTCH\\005a2su2.bmp", u"World\\005a2su2.bmp"},
    {u"Dd", u"DUTCH\\005a2an1.agn", u"World\\005a2an1.agn"},
    {u"Dt", u"GENERIC WORLD\\029b2su6.bmp", u"World\\029h2su6.bmp"},
    {u"Dt", u"GENERIC WORLD\\029b2an1.agn", u"World\\029h2an1.agn"},
    {u"D", u"Media\\dlgSplashSCT.bmp", u"Uires\\dlgsplash.bmp"}, // also when it is inhibited
};

/// Where the simulator has it.
QString placeOf(const char16_t* target) {
    QString place = QString::fromUtf16(target);
    place.replace("World\\", "Scenery/World/texture/").replace("UTEurLC\\", "Scenery/UTEurLC/Texture/");
    return place.replace('\\', '/');
}

TEST(GroundCopies, everyCombinationCopiesItsRows) {
    test::SmallInstall install{{.baseImages = {}}};
    Session& session = install.session;
    install.addGroundSet("2-Storm", "Overcast", true);
    for (const auto& row : copies) // each source holds its own path
        writeFile(install.home() / row.source, QStringView(row.source).toUtf8());
    for (int number = 0; number < 32; ++number) {
        QString letters = number & 1 ? "G" : "D"; // those that hold
        for (const auto& [bit, letter] : {std::pair{2, u't'}, {4, u'd'}, {8, u'a'}, {16, u's'}})
            if (number & bit) letters += letter;
        QMap<QString, QByteArray> expected{{"fs9.exe", "MZ"}};
        int count = 0; // splash left out
        for (const auto& row : copies) {
            const auto holds = [&](QChar letter) { return letters.contains(letter); };
            if (!std::ranges::all_of(QStringView(row.when), holds)) continue;
            expected[placeOf(row.target)] = QStringView(row.source).toUtf8();
            count += !placeOf(row.target).startsWith("Uires");
        }

        QDir(install.simulator().native()).removeRecursively();
        writeFile(install.simulator() / u"fs9.exe", "MZ");
        for (const char16_t* folder : {u"Scenery\\World\\texture", u"Uires"})
            install.files.makeFolder(install.simulator() / folder);
        if (letters.contains('a'))
            install.files.makeFolder(install.simulator() / u"Scenery\\UTEurLC\\Texture");
        session.state<OptionsInForce>().IsTropical = letters.contains('t');
        session.state<OptionsInForce>().IsDutch = letters.contains('d');
        session.state<OptionsInForce>().InhibitCustomSplash = !letters.contains('s');
        session.state<GroundSelection>().SelectedGroundSet = letters.contains('G') ? "2-Storm" : "Default";
        GroundInstallation installation(session);
        installation.installTextureSet(true);
        EXPECT_EQ(test::contentsBelow(install.simulator()), expected) << letters.toStdString();
        EXPECT_EQ(installation.filesCopied(), count) << letters.toStdString();
    }
    EXPECT_TRUE(install.user.told().isEmpty());
}

} // namespace
} // namespace morvane
