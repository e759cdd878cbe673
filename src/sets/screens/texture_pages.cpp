#include "sets/screens/texture_colour_page.h"
#include "sets/screens/texture_list_form.h"

namespace morvane {

SetListSetup textureListPage(const QString& instructions, const std::vector<SetColumn>& columns,
                             const SetListSetup::Key& create) {
    return {
        .instructionsName = u"lblTsInstructions"_s,
        .instructions = instructions,
        .listName = u"lstTextureSets"_s,
        .listWidth = 330,
        .columns = columns,
        .hasCheckBoxes = false,
        .sourceName = u"picTextureSetSource"_s,
        .resultName = u"picTextureSetResult"_s,
        .pictureSide = 108,
        .pictureLefts = {359, 473},
        .isSmooth = true,
        .descriptionName = u"lblFavDescription"_s,
        .descriptionRole = TextRole::body,
        .create = create,
        .activate = {u"btn_TextureActivate"_s, u"activate ts"_s},
        .install = {u"btn_TextureInstall"_s, u"install ts"_s},
        .remove = {u"btn_TextureDelete"_s, u"delete ts"_s},
        // Unlike a click this leaves the key of an activated set dead: once the list was built anew, a set
        // can be deactivated only after its row was clicked.
        .ofActivatedByPage = ButtonState::disabled,
    };
}

ColourPageSetup textureColourPage(const std::vector<ColourPageSetup::Option>& options,
                                  const QString& optionName, const QString& randomKey) {
    return {
        .options = options,
        .optionName = optionName,
        .sliders = {{{u"vcSaturation"_s, u"lblSat"_s},
                     {u"vcRed"_s, u"lblRed"_s},
                     {u"vcGreen"_s, u"lblGreen"_s},
                     {u"vcBlue"_s, u"lblBlue"_s},
                     {u"vcBright"_s, u"lblBright"_s},
                     {u"vcContrast"_s, u"lblContrast"_s}}},
        .resetAllName = u"cmdResetAll"_s,
        .subjectName = u"lblSample"_s,
        .keys = {{{u"btn_OpenTexture"_s, u"open texture"_s, u"btn_Load_Image"_s,
                   u"Click open a texture type to view."_s, u"Open Texture"_s},
                  {u"btn_Random"_s, randomKey, u"btn_Random"_s,
                   u"Click for MV to select random color settings."_s, u"Random"_s},
                  {u"btn_AddFavorite"_s, u"add fav"_s, u"btn_Accept"_s,
                   u"Click to add the seleted texture set setting."_s, u"Add Favorite"_s}}},
    };
}

} // namespace morvane
