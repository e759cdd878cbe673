#include "core/literals.h"
#include "support/contrast.h"
#include "support/temporary_folder.h"
#include "support/testing.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/paper_style.h"
#include "ui/controls/set_table.h"
#include "ui/controls/skin_sign.h"
#include "ui/skin.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace morvane::test {
namespace {

using namespace paper;

constexpr PaperPalette palettes[] = {PaperPalette::day, PaperPalette::night};

TEST(PaletteTest, everyTextIsReadableOnEachOfItsGrounds) {
    constexpr double ofText = 4.5, ofMark = 3;
    const PaperColour dark{palette::keyDisabled, palette::keyDisabled}, bezel{palette::bezel, palette::bezel};
    const auto inBoth = [](QRgb colour) { return PaperColour{colour, colour}; };
    const struct {
        const char* what;
        PaperColour ink;
        std::vector<PaperColour> grounds;
        double least = ofText;
    } pairs[] = {
        {"text", text, {top, foot, field, selectedRow, headTop, headFoot, buttonTop, buttonFoot}},
        {"red", signalRed, {top, foot, field, selectedRow}},
        {"quiet title", quietTitle, {top, foot}},
        {"off", textOff, {top, foot, field, buttonDead}},
        {"tip", tipText, {tipGround}},
        {"tick", tick, {text}},
        {"tick of a fixed box", tick, {markLine}, ofMark},
        {"box", markLine, {field}, ofMark},
        {"accent", accent, {top, foot, field}, ofMark},
        {"bright", inBoth(palette::textBright), {bezel, inBoth(palette::deck), inBoth(palette::keyHoverTop)}},
        {"quiet", inBoth(palette::textQuiet), {bezel, inBoth(palette::deck)}},
        {"dead key", inBoth(palette::textOff), {dark}, ofMark},
    };
    for (const PaperPalette palette : palettes) {
        for (const auto& [what, ink, grounds, least] : pairs)
            for (std::size_t at = 0; at < grounds.size(); ++at)
                EXPECT_GE(contrast(ink.in(palette), grounds[at].in(palette)), least)
                    << what << " on ground " << at << " of palette " << int(palette);
    }
}

/// Everything a page is made of, and the skin's pictures of both palettes.
struct OpenPage : testing::Test {
    OpenPage() {
        for (const auto& [name, colour] :
             {std::pair{u"sign.bmp"_s, text.day}, {u"sign_night.png"_s, text.night}}) {
            QImage picture(8, 8, QImage::Format_RGB32);
            picture.fill(colour);
            EXPECT_TRUE(picture.save(folder.path().child(name).native()));
        }
        applyPaperStyle();
        page.resize(300, 240);
        sign.showSign(u"sign.bmp"_s);
        sign.setGeometry(270, 10, 8, 8);
        table.setGeometry(10, 100, 280, 120);
        table.setColumns({{u"Name"_s, 200}});
        table.addRow({u"1"_s, {u"blue"_s}, {}, qRgb(0, 0, 255)});
        table.addRow({u"2"_s, {u"red"_s}, {}, qRgb(255, 0, 0)});
        page.show();
    }
    ~OpenPage() override { palette::use(PaperPalette::day); }

    /// That colour shows at that place of the page.
    bool shows(const PaperColour& colour, const QRect& place) {
        const QImage picture = page.grab(place).toImage();
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) == palette::now(colour)) return true;
        return false;
    }

    TemporaryFolder folder;
    NativeFileSystem files;
    Skin skin{files, folder.path()};
    QWidget page;
    QLabel* title = makeLabel(&page, u"|||||"_s, {10, 10, 80, 20}, TextRole::messageTitle);
    QLabel* body = makeLabel(&page, u"HHH___"_s, {100, 10, 80, 20}, TextRole::pageTitle);
    QWidget *hairLine = makeHair(&page, {10, 40, 80, 1}), *ruleLine = makeRule(&page, {10, 44, 80, 1});
    SkinSign sign{skin, &page};
    SetTable table{&page};
};

TEST_F(OpenPage, isPaintedAnewAtOnceAndItsRowsKeepWhatIsStored) {
    for (const PaperPalette wanted : {PaperPalette::night, PaperPalette::day}) {
        palette::use(wanted);
        QCoreApplication::processEvents();
        EXPECT_TRUE(shows(top, {200, 60, 5, 5})) << "the page's own ground";
        EXPECT_TRUE(shows(signalRed, title->geometry()));
        EXPECT_TRUE(shows(text, body->geometry()));
        EXPECT_TRUE(shows(hair, hairLine->geometry()) && shows(rule, ruleLine->geometry()));
        EXPECT_TRUE(shows(text, sign.geometry())) << "the picture of that palette";
        EXPECT_TRUE(shows(field, table.geometry()));
        EXPECT_EQ(table.topLevelItem(0)->foreground(0).color().rgb(), palette::now(text));
        EXPECT_EQ(table.topLevelItem(1)->foreground(0).color().rgb(), palette::now(signalRed));
        EXPECT_EQ(table.storedColour(1), qRgb(0, 0, 255));
        EXPECT_EQ(table.storedColour(2), qRgb(255, 0, 0));
    }
}

TEST_F(OpenPage, livesWithoutAPictureOfTheNight) {
    QFile::remove(folder.path().child(u"sign_night.png"_s).native());
    palette::use(PaperPalette::night);
    EXPECT_TRUE(skin.ground(u"sign.bmp"_s).isNull()) << "its letters would not be read on the day's";
    EXPECT_FALSE(skin.sign(u"sign.bmp"_s).isNull());
    EXPECT_EQ(skin.missing(), QStringList{u"sign_night.png"_s});
}

} // namespace
} // namespace morvane::test
