#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "night/night_selection.h"
#include "night/night_sets.h"
#include "sets/screens/set_list_form.h"
#include "sky/screens/palette_picture.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "ui/controls/set_table.h"
#include "ui/controls/slider.h"
#include "walk/walk_tables.h"

#include <QTest>
#include <gtest/gtest.h>

namespace morvane::test {

namespace {

const QString ground = u"frm_MVTextures"_s, sky = u"frm_KMTextures"_s, night = u"frm_NightTextures"_s;
const QString groundColours = u"frm_GroundColorize"_s, skyColours = u"frm_SkyColorize"_s,
              nightColours = u"frm_NightColorize"_s;
const QString information = u"message Morvane Information"_s,
              matchQuestion = u"message Install Matching Ground Texture Set?"_s;

// Opening -------------------------------------------------------------------------------------------------

/// With the first row selected by the page.
std::function<void(Walk&)> list(const QString& host) {
    return [=](Walk& walk) {
        openHost(walk, host);
        walk.program().shell.screen<SetListForm>(host).selectSetRow(1);
    };
}

/// With the row of that number clicked, from 1.
std::function<void(Walk&)> listOn(const QString& host, int row) {
    return [=](Walk& walk) {
        openHost(walk, host);
        // Whether it came is judged behind this, where another try is made.
        (void)QTest::qWaitForWindowActive(walk.program().shell.form(host)->windowHandle());
        const auto* table = walk.program().shell.form(host)->findChild<SetTable*>();
        const QRect place = table->visualItemRect(table->topLevelItem(row - 1));
        click(*table->viewport(), {place.left() + 60, place.center().y()});
    };
}

/// With sliders that have somewhere to go, and the first group of the sky in hand.
std::function<void(Walk&)> colours(const QString& host, const QString& page) {
    return [=](Walk& walk) {
        openHost(walk, host);
        walk.program().shell.goToPage(page);
        Form* form = walk.program().shell.form(page);
        if (auto* palette = form->findChild<PalettePicture*>()) Q_EMIT palette->clicked(1, 1);
        for (ucSlider* slider : form->findChildren<ucSlider*>())
            slider->setValue(31);
    };
}

// Rows ----------------------------------------------------------------------------------------------------

WalkRows hostRows(const QString& host, const QString& page) {
    const bool isColourPage = !page.isEmpty();
    const QString other = isColourPage ? host
                                       : host + u'/' +
                                             (host == ground ? groundColours
                                              : host == sky  ? skyColours
                                                             : nightColours);
    return {{u"btn_Main"_s, shows(u"frm_Main"_s)},
            {isColourPage ? u"btn_TextureSets"_s : u"btn_Ground"_s, shows(other)},
            {u"btn_Minimize"_s, shows(u"minimised"_s)},
            {u"btn_Exit"_s, ends()},
            {u"(F1)"_s, opensHelp()},
            {u"(Escape)"_s, nothing("a window has nothing to cancel")}};
}

/// Every slider with its three buttons and the label that says its value. `prefix` is "Sky" for the sky's
/// names.
WalkRows sliderRows(const QString& prefix) {
    WalkRows rows;
    const std::pair<QString, QString> names[] = {{u"Saturation"_s, u"Sat"_s}, {u"Red"_s, u"Red"_s},
                                                 {u"Green"_s, u"Green"_s},    {u"Blue"_s, u"Blue"_s},
                                                 {u"Bright"_s, u"Bright"_s},  {u"Contrast"_s, u"Contrast"_s}};
    for (const auto& [long_, short_] : names) {
        const QString slider = prefix + (prefix.isEmpty() ? long_ : short_),
                      value = u"lbl"_s + prefix + short_;
        rows.push_back({u"vc"_s + slider, label(value)});
        rows.push_back({u"cmd"_s + slider + u"Minus"_s, label(value)});
        rows.push_back({u"cmd"_s + slider + u"Plus"_s, label(value)});
        rows.push_back({u"cmd"_s + slider + u"Reset"_s, label(value, u"default"_s)});
    }
    rows.push_back({u"cmd"_s + prefix + u"ResetAll"_s, label(u"lbl"_s + prefix + u"Green"_s, u"default"_s)});
    return rows;
}

// What became of a set --------------------------------------------------------------------------------------

/// "True" or "False" as it is activated, "*" behind an installed one; "gone".
template <class Kind>
Effect setBecomes(const QString& name, const QString& state) {
    const auto stateNow = [name](Session& session) {
        const auto set = findSet<Kind>(session, name);
        return set ? activationOf(*set) + (set->Installed ? u"*"_s : QString()) : u"gone"_s;
    };
    return becomes(stateNow, state);
}

Effect sampleStays() {
    return nothing("a double click or Enter opens it");
}

QString groundTexture(Session& session) {
    return QString::fromUtf8(readFile(session.FSPath / u"Scenery\\World\\texture\\029b2su6.bmp"));
}

} // namespace

std::vector<WalkScreen> groundScreens() {
    const QString create = u"btn_textureCreate"_s, activate = u"btn_TextureActivate"_s,
                  install = u"btn_TextureInstall"_s, remove = u"btn_TextureDelete"_s;
    const WalkRows always =
        hostRows(ground, {}) + WalkRows{{u"lstTextureSets"_s, becomes(&GroundSelection::SelectedGroundSet)},
                                        {u"cmdSeeAll"_s, shows(u"frm_SetSheet"_s)},
                                        {u"picTextureSetResult"_s, sampleStays()},
                                        {u"picTextureSetResult|twice"_s, shows(u"frm_SetSheet"_s)},
                                        {u"cmdImport"_s, shows(u"box Import a Set"_s)},
                                        {u"cmdExport"_s, shows(u"box Export This Set"_s)},
                                        {create, shows(u"frm_TsRequired"_s)}};
    return {
        {"list", ground, list(ground), false,
         always + WalkRows{{install, shows(matchQuestion)}, {remove, shows(information)}}},
        {"list_on_an_activated_set", ground, listOn(ground, 2), false,
         always + WalkRows{{activate, shows(information)},
                           {install, becomes(groundTexture, u"2-Fair Texture\\029b2su6.bmp"_s)
                                         .after({Qt::Key_Escape, Qt::Key_Escape})},
                           {remove, shows(information)}}},
        {"list_on_a_deactivated_set", ground, listOn(ground, 3), false,
         always + WalkRows{{activate, setBecomes<GroundKind>(u"3-Grey"_s, u"True"_s).lasting()},
                           {remove, setBecomes<GroundKind>(u"3-Grey"_s, u"gone"_s).after({Qt::Key_Return})}}},
        {"colours", groundColours, colours(ground, groundColours), false,
         hostRows(ground, groundColours) + sliderRows({}) +
             WalkRows{{u"btn_OpenTexture"_s, shows(u"frm_SelectTexture"_s)},
                      {u"btn_Random"_s, label(u"lblRed"_s)},
                      {u"btn_AddFavorite"_s, shows(u"frm_AddFav"_s)}}},
    };
}

std::vector<WalkScreen> skyScreens() {
    const QString create = u"btn_SkytextureCreate"_s, activate = u"btn_SkyTextureActivate"_s,
                  install = u"btn_SkyTextureInstall"_s, remove = u"btn_SkyTextureDelete"_s;
    const WalkRows always =
        hostRows(sky, {}) + WalkRows{{u"lstSkyTextureSets"_s, becomes(&SkySelection::SelectedSkySet)},
                                     {u"cmdSeeAll"_s, shows(u"frm_SetSheet"_s)},
                                     {u"picSkyTextureSetResult"_s, sampleStays()},
                                     {u"picSkyTextureSetResult|twice"_s, shows(u"frm_SetSheet"_s)},
                                     {u"cmdImport"_s, shows(u"box Import a Set"_s)},
                                     {u"cmdExport"_s, shows(u"box Export This Set"_s)},
                                     {create, shows(u"frm_SelectSkyTexture"_s)}};
    return {
        {"list", sky, list(sky), false,
         always +
             WalkRows{{activate, shows(information)},
                      {install,
                       setBecomes<SkyKind>(u"2-Calm"_s, u"True*"_s).after({Qt::Key_Escape, Qt::Key_Escape})},
                      {remove, shows(information)}}},
        {"list_on_a_deactivated_set", sky, listOn(sky, 2), false,
         always + WalkRows{{activate, setBecomes<SkyKind>(u"3-Storm"_s, u"True"_s).lasting()},
                           {remove, setBecomes<SkyKind>(u"3-Storm"_s, u"gone"_s).after({Qt::Key_Return})}}},
        {"colours", skyColours, colours(sky, skyColours), false,
         hostRows(sky, skyColours) + sliderRows(u"Sky"_s) +
             WalkRows{{u"picSkySource"_s, label(u"lblSkyPixelSelected"_s)},
                      {u"btn_LoadSkyTexture"_s, shows(u"frm_SelectBaseSky"_s)},
                      {u"btn_SkyRandomize"_s, label(u"lblSkyRed"_s)},
                      {u"btn_SkyFavorites"_s, shows(u"frm_AddFav"_s)}}},
    };
}

std::vector<WalkScreen> nightScreens() {
    const QString activate = u"btn_TextureActivate"_s, install = u"btn_TextureInstall"_s,
                  remove = u"btn_TextureDelete"_s;
    const WalkRows always =
        hostRows(night, {}) + WalkRows{{u"cmdSeeAll"_s, shows(u"frm_SetSheet"_s)},
                                       {u"picTextureSetResult"_s, sampleStays()},
                                       {u"picTextureSetResult|twice"_s, shows(u"frm_SetSheet"_s)},
                                       {u"cmdImport"_s, shows(u"box Import a Set"_s)},
                                       {u"cmdExport"_s, shows(u"box Export This Set"_s)},
                                       {u"lstTextureSets"_s, becomes(&NightSelection::SelectedNightSet)}};
    return {
        {"list_on_an_activated_set", night, listOn(night, 1), false,
         always + WalkRows{{activate, shows(information)},
                           {install, setBecomes<NightKind>(u"2-Red"_s, u"True*"_s).lasting()},
                           {remove, shows(information)}}},
        {"list_on_a_deactivated_set", night, listOn(night, 2), false,
         always + WalkRows{{activate, setBecomes<NightKind>(u"3-Blue"_s, u"True"_s).lasting()},
                           {remove, setBecomes<NightKind>(u"3-Blue"_s, u"gone"_s).after({Qt::Key_Return})}}},
        {"colours", nightColours, colours(night, nightColours), false,
         hostRows(night, nightColours) + sliderRows({}) +
             WalkRows{{u"btn_OpenTexture"_s, shows(u"frm_SelectNightTexture"_s)},
                      {u"btn_Random"_s, label(u"lblRed"_s)},
                      {u"btn_AddFavorite"_s, shows(u"frm_AddFav"_s)}}},
    };
}

} // namespace morvane::test
