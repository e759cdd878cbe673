#include "simulator/screens/more_settings_screen.h"

#include "core/session.h"
#include "ui/controls/labels.h"

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
    addCancelKey(u"Click to close."_s);
}

void frm_MoreSettings::addSection(const QString& heading, int top) {
    makeLabel(this, heading, {left, top, innerWidth, 16}, TextRole::sectionHeading);
    makeHair(this, {left, top + 18, innerWidth, 1});
}

void frm_MoreSettings::prepare() {
    const QString path = session().FSPath.text();
    lblSimulatorPath_->setAccessibleName(path);
    lblSimulatorPath_->setText(
        lblSimulatorPath_->fontMetrics().elidedText(path, Qt::ElideMiddle, innerWidth));
}

} // namespace morvane
