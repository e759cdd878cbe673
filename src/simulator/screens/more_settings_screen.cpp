#include "simulator/screens/more_settings_screen.h"

#include "core/failure_report.h"
#include "core/folder_room.h"
#include "core/session.h"
#include "sets/undo_step.h"
#include "simulator/kept_room.h"
#include "ui/controls/labels.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace morvane {

namespace {

constexpr int left = 26, innerWidth = 648;

} // namespace

frm_MoreSettings::frm_MoreSettings(Shell& shellOfDialogs)
    : DialogForm(shellOfDialogs, u"frm_MoreSettings"_s, wideDialogLook, u"More Settings"_s) {
    addSection(u"The simulator's folder"_s, 88);
    lblSimulatorPath_ = makeLabel(this, {}, {left, 114, innerWidth, 18}, TextRole::value);
    lblSimulatorPath_->setObjectName(u"lblSimulatorPath"_s);
    addSection(u"Room on the disk"_s, 150);
    makeLabel(this, u"Sets, backups and originals: how much room they take, and what of it can go."_s,
              {left, 179, 470, 18}, TextRole::body);
    auto* kept = new QPushButton(u"What Morvane keeps"_s, this);
    kept->setObjectName(u"cmdKept"_s);
    kept->setToolTip(u"Click to see what takes the room and to remove what you do not need."_s);
    kept->setGeometry(524, 175, 150, 26);
    connect(kept, &QPushButton::clicked, this, [this] { session().user.showModal(Screen::frm_WhatIsKept); });
    addSection(u"Undo"_s, 226);
    chkUndo_ = new QCheckBox(u"Keep what is needed to undo the last install"_s, this);
    chkUndo_->setObjectName(u"chkUndo"_s);
    chkUndo_->setGeometry(left, 253, 470, 20);
    connect(chkUndo_, &QCheckBox::clicked, this, [this](bool isWanted) {
        reportFailures(session().user, morvaneError, [&] { setUndoWanted(session(), isWanted); });
        showUndo();
        session().user.refreshScreen(Screen::frm_Main);
    });
    lblUndoRoom_ = makeLabel(this, {}, {left, 277, innerWidth, 18}, TextRole::body);
    lblUndoRoom_->setObjectName(u"lblUndoRoom"_s);
    addCancelKey(u"Click to close."_s);
}

void frm_MoreSettings::addSection(const QString& heading, int top) {
    makeLabel(this, heading, {left, top, innerWidth, 16}, TextRole::sectionHeading);
    makeHair(this, {left, top + 18, innerWidth, 1});
}

void frm_MoreSettings::showUndo() {
    chkUndo_->setChecked(isUndoWanted(session()));
    const FolderRoom room = roomBelow(session().files, undoFolder(session()));
    lblUndoRoom_->setText(chkUndo_->isChecked() ? u"It takes %1 of the disk now."_s.arg(keptText(room.bytes))
                                                : u"No install can be undone."_s);
}

void frm_MoreSettings::prepare() {
    showUndo();
    const QString path = session().FSPath.text();
    lblSimulatorPath_->setAccessibleName(path);
    lblSimulatorPath_->setText(
        lblSimulatorPath_->fontMetrics().elidedText(path, Qt::ElideMiddle, innerWidth));
}

} // namespace morvane
