#include "ui/window_keys.h"

#include "core/literals.h"

namespace morvane {

namespace {

constexpr int leftColumn = 8, rightColumn = 746, firstRow = 137, rowPitch = 80;

ButtonSetup mediumKey(const QString& name, const QString& key, const QString& picture, const QString& caption,
                      const QString& tip, int column, int row) {
    return {ButtonFamily::MediumButton,          name,   key, picture, tip,
            {column, firstRow + row * rowPitch}, caption};
}

/// They come last in the order of Tab: the keyboard never begins on the key that ends the program.
std::vector<ButtonSetup> smallKeys(const QString& minimiseTip) {
    return {{ButtonFamily::smallButton,
             u"btn_Exit"_s,
             u"exit"_s,
             u"btn_Exit"_s,
             u"Click to Exit Morvane."_s,
             {826, 40}},
            {ButtonFamily::smallButton,
             u"btn_Minimize"_s,
             u"minimize"_s,
             u"btn_Minimize"_s,
             minimiseTip,
             {780, 40}}};
}

} // namespace

std::vector<ButtonSetup> mainWindowKeys() {
    std::vector<ButtonSetup> keys = smallKeys(u"Click to Minimize the Morvane interface."_s);
    const int l = leftColumn, r = rightColumn;
    keys.insert(keys.begin(),
                {mediumKey(u"btn_Home"_s, u"home"_s, u"btn_Home"_s, u"System Status"_s,
                           u"Go to the main Morvane screen"_s, l, 0),
                 mediumKey(u"btn_MVTextures"_s, u"mv textures"_s, u"btn_MVTextures"_s, u"Ground Color"_s,
                           u"Go to the Ground Textures screen"_s, l, 1),
                 mediumKey(u"btn_KMTextures"_s, u"km textures"_s, u"btn_Sky"_s, u"Sky Color"_s,
                           u"Go to the Sky Textures screen"_s, l, 2),
                 mediumKey(u"btn_NightTextures"_s, u"night textures"_s, u"btn_Night"_s, u"Night Color"_s,
                           u"Go to the Night Textures screen"_s, l, 3),
                 mediumKey(u"btn_FlightConfig"_s, u"flight config"_s, u"btn_MVConfig"_s, u"Wx Control"_s,
                           u"Go to the Weather Control screen"_s, l, 4),
                 mediumKey(u"btn_Switcher"_s, u"switcher info"_s, u"btn_Links"_s, u"Configuration"_s,
                           u"Go to the Morvane configuration screen"_s, r, 0),
                 mediumKey(u"btn_Config"_s, u"mv config"_s, u"btn_Config"_s, u"Base Install"_s,
                           u"Go to the Morvane base install screen"_s, r, 1),
                 mediumKey(u"btn_MainLinks"_s, u"links"_s, u"btn_MainLinks"_s, u"Links"_s,
                           u"Go to the links screen"_s, r, 2),
                 mediumKey(u"btn_Help"_s, u"help"_s, u"btn_Help"_s, u"Help"_s, u"Open Morvane Help"_s, r, 3),
                 mediumKey(u"btn_About"_s, u"about"_s, u"btn_About"_s, u"About"_s, {}, r, 4)});
    return keys;
}

std::vector<ButtonSetup> hostWindowKeys(const HostKeys& host) {
    std::vector<ButtonSetup> keys = smallKeys(host.minimiseTip);
    keys.insert(keys.begin(),
                {mediumKey(u"btn_Main"_s, u"home"_s, u"btn_Back"_s, u"Back"_s, u"Back"_s, leftColumn, 0),
                 mediumKey(u"btn_TextureSets"_s, host.setsKey, u"btn_CreateSets"_s, u"Manage Sets"_s,
                           u"Manage Sets"_s, leftColumn, 1),
                 mediumKey(u"btn_Ground"_s, host.colourKey, host.colourPicture, u"Colorize"_s, u"Colorize"_s,
                           leftColumn, 2)});
    return keys;
}

void markWindowKey(QWidget& window, const QString& key) {
    for (SkinnedButton* button : window.findChildren<SkinnedButton*>(QString(), Qt::FindDirectChildrenOnly))
        if (button->family() == ButtonFamily::MediumButton)
            button->setState(button->button_type() == key ? ButtonState::disabled : ButtonState::enabled);
}

} // namespace morvane
