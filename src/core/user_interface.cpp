#include "core/user_interface.h"

#include <iterator>

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
    // In the order of the enumeration.
    static constexpr const char16_t* names[] = {
        u"frm_Main",
        u"frm_Msg",
        u"frm_Splash",
        u"frm_MVTextures",
        u"frm_NightTextures",
        u"frm_KMTextures",
        u"frm_TsRequired",
        u"frm_MultiDelete",
        u"frm_AddFav",
        u"frm_SelectTexture",
        u"frm_GroundColorize",
        u"frm_Config",
        u"frm_SkyColorize",
        u"frm_SelectSkyTexture",
        u"frm_SelectBaseSky",
        u"frm_flight",
        u"frm_WxControl",
        u"frm_WxFinder",
        u"frm_metar",
        u"frm_metar_request",
        u"frm_Select_CC_Method",
        u"frm_FlightPlan",
        u"frm_FromDepDestVal",
        u"frm_CC_From_Option",
        u"frm_CC_From_Metar_String",
        u"frm_NightColorize",
        u"frm_SelectNightTexture",
        u"frm_BackupList",
        u"frm_MoreSettings",
        u"frm_WhatIsKept",
        u"frm_Switcher",
        u"frm_InSimulator",
        u"frm_Ready",
        u"frm_SetSheet",
    };
    static_assert(std::size(names) == static_cast<std::size_t>(Screen::frm_SetSheet) + 1);
    return QString::fromUtf16(names[static_cast<std::size_t>(screen)]);
}

bool UserInterface::ask(Question question, const QString& title, const QString& text) {
    return ask(question, {MessageKind::question, title, text, true, true});
}

bool UserInterface::ask(Question question, const Message& message) {
    answers_.setFlag(question, false);
    answers_.mark(question);
    showMessage(message);
    answers_.unmark(question);
    noteShown(u"Answer"_s, message.title, answers_.flag(question) ? u"yes"_s : u"no"_s);
    return answers_.flag(question);
}

void UserInterface::noteShown(const Message& message) {
    noteShown(kindWord(message.kind), message.title, message.text);
}

void UserInterface::noteShown(const DoneLine& line) {
    noteShown(u"Done"_s, {}, line.remark.isEmpty() ? line.text : line.text + u" ("_s + line.remark + u')');
}

void UserInterface::noteShown(const QString& kind, const QString& title, const QString& text) {
    if (listener_) listener_->hear(kind, title, text);
}

} // namespace morvane
