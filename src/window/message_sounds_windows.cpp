#include "window/message_sounds.h"

#include <windows.h>

#include <mmsystem.h>

namespace morvane {

namespace {

const wchar_t* soundAlias(MessageKind kind) {
    switch (kind) {
    case MessageKind::information:
        return L"SystemNotification";
    case MessageKind::exclamation:
        return L"SystemExclamation";
    case MessageKind::error: // the system's word for the sound of an error
        return L"SystemAsterisk";
    case MessageKind::question:
        return L"SystemQuestion";
    default:
        return nullptr;
    }
}

} // namespace

void playMessageSound(MessageKind kind) {
    if (const wchar_t* alias = soundAlias(kind))
        PlaySoundW(alias, nullptr, SND_ALIAS | SND_ASYNC | SND_NODEFAULT);
}

} // namespace morvane
