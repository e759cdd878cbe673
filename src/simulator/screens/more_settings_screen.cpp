#include "simulator/screens/more_settings_screen.h"

#include "core/failure_report.h"
#include "core/folder_room.h"
#include "core/session.h"
#include "sets/undo_step.h"
#include "simulator/kept_room.h"
#include "simulator/screens/weather_sources_panel.h"
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
    addSection(u"The simulator's folder"_s, 84);
    lblSimulatorPath_ = makeLabel(this, {}, {left, 105, innerWidth, 18}, TextRole::value);
    lblSimulatorPath_->setObjectName(u"lblSimulatorPath"_s);
    addSection(u"Where the weather comes from, in this order"_s, 130);
    weather_ = new WeatherSourcesPanel(session(), {left, 155, innerWidth, 160}, this);
    addSection(u"Room on the disk"_s, 322);
    makeLabel(this, u"Sets, backups and originals: how much room they take, and what of it can go."_s,
              {left, 348, 470, 18}, TextRole::body);
    auto* kept = new QPushButton(u"What Morvane keeps"_s, this);
    kept->setObjectName(u"cmdKept"_s);
    kept->setToolTip(u"Click to see what takes the room and to remove what you do not need."_s);
    kept->setGeometry(524, 345, 150, 26);
    connect(kept, &QPushButton::clicked, this, [this] { session().user.showModal(Screen::frm_WhatIsKept); });
    addSection(u"Undo"_s, 376);
    chkUndo_ = new QCheckBox(u"Keep what is needed to undo the last install"_s, this);
    chkUndo_->setObjectName(u"chkUndo"_s);
    chkUndo_->setGeometry(left, 400, 320, 20);
    connect(chkUndo_, &QCheckBox::clicked, this, [this](bool isWanted) {
        reportFailures(session().user, morvaneError, [&] { setUndoWanted(session(), isWanted); });
        showUndo();
        session().user.refreshScreen(Screen::frm_Main);
    });
    lblUndoRoom_ = makeLabel(this, {}, {left + 330, 402, innerWidth - 330, 18}, TextRole::remark);
    lblUndoRoom_->setObjectName(u"lblUndoRoom"_s);
    addButton({ButtonFamily::LargeButton,
               u"btn_Ready"_s,
               u"get ready"_s,
               u"btn_Install"_s,
               u"Click to make what a first flight needs: a backup, sets for every weather, reports."_s,
               {left, 443},
               u"Get Ready\nto Fly"_s});
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
    weather_->refresh();
    const QString path = session().FSPath.text();
    lblSimulatorPath_->setAccessibleName(path);
    lblSimulatorPath_->setText(
        lblSimulatorPath_->fontMetrics().elidedText(path, Qt::ElideMiddle, innerWidth));
}

} // namespace morvane
