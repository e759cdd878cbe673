// Which file an install of a ground set puts where, for every combination of what it depends on.

#include "ground/ground_installation.h"
#include "ground/ground_selection.h"
#include "sets/options_in_force.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::SmallInstall;
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

struct Combination {
    QString letters; ///< those that hold
    QMap<QString, QByteArray> expected;
    int fileCount = 0; ///< splash left out
};

Combination combinationOf(int number) {
    Combination combination;
    combination.letters = number & 1 ? u"G"_s : u"D"_s;
    for (const auto& [bit, letter] : {std::pair{2, u't'}, {4, u'd'}, {8, u'a'}, {16, u's'}})
        if (number & bit) combination.letters += letter;
    for (const auto& row : copies) {
        const auto holds = [&](QChar letter) { return combination.letters.contains(letter); };
        const QStringView when(row.when);
        if (!std::all_of(when.begin(), when.end(), holds)) continue;
        const QString target = QString::fromUtf16(row.target);
        combination.expected[target] = QStringView(row.source).toUtf8();
        combination.fileCount += !target.startsWith(u"Uires");
    }
    return combination;
}

struct GroundCopies : testing::Test {
    SmallInstall install{{.baseImages = {}}};
    Session& session = install.session;
    FilePath world = install.simulator() / u"Scenery\\World\\texture";
    FilePath addOn = install.simulator() / u"Scenery\\UTEurLC";
    FilePath splash = install.simulator() / u"Uires\\dlgsplash.bmp";

    /// Every source holds its own path; the simulator is empty.
    void SetUp() override {
        install.addGroundSet(u"2-Storm"_s, u"Overcast"_s, true);
        for (const auto& row : copies)
            writeFile(install.home() / row.source, QStringView(row.source).toUtf8());
    }
    void emptySimulator(bool hasAddOn) {
        for (const FilePath& folder : {world, addOn / u"Texture", splash.parent()})
            for (const QString& name : install.files.list(folder, u"*"_s))
                install.files.remove(folder.child(name));
        if (hasAddOn) return install.files.makeFolder(addOn / u"Texture");
        for (const FilePath& folder : {addOn / u"Texture", addOn})
            if (install.files.exists(folder)) install.files.removeFolder(folder);
    }
    QMap<QString, QByteArray> installed() {
        QMap<QString, QByteArray> found;
        const std::pair<FilePath, QString> folders[] = {
            {world, u"World\\"_s}, {addOn / u"Texture", u"UTEurLC\\"_s}, {splash.parent(), u"Uires\\"_s}};
        for (const auto& [folder, prefix] : folders)
            for (const QString& name : install.files.list(folder, u"*"_s))
                found[prefix + name] = test::readFile(folder.child(name));
        return found;
    }
};

TEST_F(GroundCopies, everyCombinationCopiesItsRows) {
    for (int number = 0; number < 32; ++number) {
        const Combination combination = combinationOf(number);
        const auto holds = [&](char16_t letter) { return combination.letters.contains(QChar(letter)); };
        emptySimulator(holds(u'a'));
        session.state<OptionsInForce>().IsTropical = holds(u't');
        session.state<OptionsInForce>().IsDutch = holds(u'd');
        session.state<OptionsInForce>().InhibitCustomSplash = !holds(u's');
        session.state<GroundSelection>().SelectedGroundSet = holds(u'G') ? u"2-Storm"_s : u"Default"_s;
        GroundInstallation installation(session);
        installation.installTextureSet(true);
        EXPECT_EQ(installed(), combination.expected) << combination.letters.toStdString();
        EXPECT_EQ(installation.filesCopied(), combination.fileCount) << combination.letters.toStdString();
    }
    EXPECT_TRUE(install.user.told().isEmpty());
}

} // namespace
} // namespace morvane
