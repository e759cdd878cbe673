#include "core/user_interface.h"

namespace morvane {

QString kindWord(MessageKind kind) {
    switch (kind) {
    case MessageKind::information:
        return u"Information"_s;
    case MessageKind::exclamation:
        return u"Exclamation"_s;
    case MessageKind::error:
        return u"Error"_s;
    case MessageKind::question:
        return u"Question"_s;
    case MessageKind::progress:
        return u"Progress"_s;
    case MessageKind::exlamation:
        return u"Exlamation"_s;
    case MessageKind::exclamtion:
        return u"Exclamtion"_s;
    }
    return {};
}

QString screenName(Screen screen) {
    switch (screen) {
    case Screen::frm_Main:
        return u"frm_Main"_s;
    case Screen::frm_Msg:
        return u"frm_Msg"_s;
    case Screen::frm_Splash:
        return u"frm_Splash"_s;
    case Screen::frm_MVTextures:
        return u"frm_MVTextures"_s;
    case Screen::frm_NightTextures:
        return u"frm_NightTextures"_s;
    case Screen::frm_KMTextures:
        return u"frm_KMTextures"_s;
    case Screen::frm_TsRequired:
        return u"frm_TsRequired"_s;
    case Screen::frm_MultiDelete:
        return u"frm_MultiDelete"_s;
    case Screen::frm_AddFav:
        return u"frm_AddFav"_s;
    case Screen::frm_SelectTexture:
        return u"frm_SelectTexture"_s;
    case Screen::frm_GroundColorize:
        return u"frm_GroundColorize"_s;
    case Screen::frm_Config:
        return u"frm_Config"_s;
    case Screen::frm_SkyColorize:
        return u"frm_SkyColorize"_s;
    case Screen::frm_SelectSkyTexture:
        return u"frm_SelectSkyTexture"_s;
    case Screen::frm_SelectBaseSky:
        return u"frm_SelectBaseSky"_s;
    case Screen::frm_flight:
        return u"frm_flight"_s;
    }
    return {};
}

bool UserInterface::ask(Question question, const QString& title, const QString& text) {
    return ask(question, {MessageKind::question, title, text, true, true});
}

bool UserInterface::ask(Question question, const Message& message) {
    answers_.setFlag(question, false);
    answers_.mark(question);
    showMessage(message);
    answers_.unmark(question);
    return answers_.flag(question);
}

} // namespace morvane
