#include "window/main_screen.h"

#include "core/failure_report.h"
#include "core/session.h"
#include "sets/undo_step.h"
#include "ui/controls/foot_line.h"
#include "ui/shell.h"
#include "ui/window_keys.h"

#include <QCloseEvent>
#include <QPushButton>

namespace morvane {

namespace {

constexpr int keyRow = 397;

const std::vector<ButtonSetup>& pageKeys() {
    static const std::vector<ButtonSetup> keys{{ButtonFamily::LargeButton,
                                                u"btn_GroundInstall"_s,
                                                u"main ground install"_s,
                                                u"btn_Create"_s,
                                                u"Click to create new Ground Texture Sets."_s,
                                                {27, keyRow},
                                                u"Create\nGround Sets"_s},
                                               {ButtonFamily::LargeButton,
                                                u"btn_SkyInstall"_s,
                                                u"main sky install"_s,
                                                u"btn_Create"_s,
                                                u"Click to create new Sky Texture Sets."_s,
                                                {165, keyRow},
                                                u"Create\nSky Sets"_s},
                                               {ButtonFamily::LargeButton,
                                                u"btn_MVConfig"_s,
                                                u"main mv config"_s,
                                                u"btn_Install"_s,
                                                u"Click to goto Main Config Screen."_s,
                                                {303, keyRow},
                                                u"Base Install"_s},
                                               {ButtonFamily::LargeButton,
                                                u"btn_Undo"_s,
                                                u"undo install"_s,
                                                u"btn_Undo"_s,
                                                u"Click to give back what the last install replaced."_s,
                                                {441, keyRow},
                                                u"Undo Last\nInstall"_s}};
    return keys;
}

} // namespace

frm_Main::frm_Main(Shell& shell)
    : ShapedForm(shell, u"frm_Main"_s, mainLook), status_(new StatusPanel(*this)) {
    status_->move(pagePlace.topLeft());
    for (const ButtonSetup& key : mainWindowKeys())
        addButton(key);
    for (const ButtonSetup& key : pageKeys())
        addButton(key, status_);
    auto* checkFiles = new QPushButton(u"Check files"_s, status_);
    checkFiles->setObjectName(u"cmdCheckFiles"_s);
    checkFiles->setAccessibleName(checkFiles->text());
    checkFiles->setToolTip(u"Click to see whether the simulator's files are as Morvane and you left them."_s);
    checkFiles->setGeometry(494, 47, 88, 20);
    connect(checkFiles, &QPushButton::clicked, this, [this] {
        session().user.showModal(Screen::frm_InSimulator);
        refreshMainStatus();
    });
    new FootLine(this);
    setFirstFocus(button(pageKeys().front().name));
    focusFirst();
}

void frm_Main::formatMainScreen() {
    markWindowKey(*this, u"home"_s);
    status_->setTitle(u"icon_MVHome.bmp"_s, u"Welcome To Morvane"_s);
    for (const ButtonSetup& key : pageKeys())
        button(key.name)->setState(ButtonState::enabled);
    refreshMainStatus();
}

void frm_Main::refreshMainStatus() {
    status_->refreshMainStatus();
    bool isUndoable = false;
    reportFailures(session().user, morvaneError, [&] { isUndoable = canUndo(session()); });
    button(u"btn_Undo"_s)->setState(isUndoable ? ButtonState::enabled : ButtonState::disabled);
}

void frm_Main::closeEvent(QCloseEvent* event) {
    event->ignore();
    shell().exitProgram();
}

} // namespace morvane
