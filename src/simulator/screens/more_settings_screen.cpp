#include "simulator/screens/more_settings_screen.h"

#include "core/failure_report.h"
#include "core/folder_room.h"
#include "core/session.h"
#include "sets/undo_step.h"
#include "simulator/kept_room.h"
#include "simulator/palette_choice.h"
#include "simulator/screens/palette_keeper.h"
#include "simulator/screens/weather_sources_panel.h"
#include "ui/controls/labels.h"
#include "ui/controls/wrapped_tip.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace morvane {

namespace {

constexpr int sectionLeft = 26, innerWidth = 648, undoWidth = 340, lastRow = 376;

} // namespace

frm_MoreSettings::frm_MoreSettings(Shell& shellOfDialogs)
    : DialogForm(shellOfDialogs, u"frm_MoreSettings"_s, wideDialogLook, u"More Settings"_s) {
    addSection(u"The simulator's folder"_s, {sectionLeft, 84, innerWidth, 16});
    lblSimulatorPath_ = makeLabel(this, {}, {sectionLeft, 105, innerWidth, 18}, TextRole::value);
    lblSimulatorPath_->setObjectName(u"lblSimulatorPath"_s);
    addSection(u"Where the weather comes from, in this order"_s, {sectionLeft, 130, innerWidth, 16});
    weather_ = new WeatherSourcesPanel(session(), {sectionLeft, 155, innerWidth, 160}, this);
    addSection(u"Room on the disk"_s, {sectionLeft, 322, innerWidth, 16});
    makeLabel(this, u"Sets, backups and originals: how much room they take, and what of it can go."_s,
              {sectionLeft, 348, 470, 18}, TextRole::body);
    auto* kept = new QPushButton(u"What Morvane keeps"_s, this);
    kept->setObjectName(u"cmdKept"_s);
    kept->setToolTip(u"Click to see what takes the room and to remove what you do not need."_s);
    kept->setGeometry(524, 345, 150, 26);
    connect(kept, &QPushButton::clicked, this, [this] { session().user.showModal(Screen::frm_WhatIsKept); });
    addUndo();
    addPalette();
    addButton({ButtonFamily::LargeButton,
               u"btn_Ready"_s,
               u"get ready"_s,
               u"btn_Install"_s,
               u"Click to make what a first flight needs: a backup, sets for every weather, reports."_s,
               {sectionLeft, 443},
               u"Get Ready\nto Fly"_s});
    addCancelKey(u"Click to close."_s);
}

void frm_MoreSettings::addSection(const QString& heading, const QRect& place) {
    makeLabel(this, heading, place, TextRole::sectionHeading);
    makeHair(this, {place.left(), place.top() + 18, place.width(), 1});
}

void frm_MoreSettings::addUndo() {
    addSection(u"Undo"_s, {sectionLeft, lastRow, undoWidth, 16});
    lblUndoRoom_ = makeLabel(this, {}, {sectionLeft + 60, lastRow, undoWidth - 60, 16}, TextRole::remark);
    lblUndoRoom_->setObjectName(u"lblUndoRoom"_s);
    chkUndo_ = new QCheckBox(u"Keep what is needed to undo the last install"_s, this);
    chkUndo_->setObjectName(u"chkUndo"_s);
    chkUndo_->setGeometry(sectionLeft, lastRow + 24, 320, 20);
    connect(chkUndo_, &QCheckBox::clicked, this, [this](bool isWanted) {
        reportFailures(session().user, morvaneError, [&] { setUndoWanted(session(), isWanted); });
        showUndo();
        session().user.refreshScreen(Screen::frm_Main);
    });
}

/// The choice is seen at once, and so needs no OK.
void frm_MoreSettings::addPalette() {
    struct Option {
        QString name, caption, tip;
        int left;
    };
    const Option options[] = {{u"optPaletteDay"_s, u"Day"_s, u"Click for light pages."_s, 398},
                              {u"optPaletteNight"_s, u"Night"_s, u"Click for dark pages."_s, 464},
                              {u"optPaletteClock"_s, u"By the clock"_s,
                               u"Click for dark pages from sunset to sunrise, at the airport that is chosen "
                               u"for the weather, else at "
                               "52 degrees north."_s,
                               540}};
    addSection(u"Palette"_s, {options[0].left, lastRow, sectionLeft + innerWidth - options[0].left, 16});
    for (std::size_t index = 0; const Option& option : options) {
        auto* button = new QRadioButton(option.caption, this);
        button->setObjectName(option.name);
        button->setToolTip(wrappedTip(option.tip));
        button->setGeometry(option.left, lastRow + 24, option.caption.size() > 6 ? 134 : 62, 20);
        const auto choice = static_cast<PaletteChoice>(index);
        connect(button, &QRadioButton::clicked, this, [this, choice] {
            storePaletteChoice(session().registry, choice);
            usePaletteNow(session());
            showPalette();
        });
        optPalettes_[index++] = button;
    }
}

void frm_MoreSettings::showUndo() {
    chkUndo_->setChecked(isUndoWanted(session()));
    const FolderRoom room = roomBelow(session().files, undoFolder(session()));
    lblUndoRoom_->setText(chkUndo_->isChecked() ? u"It takes %1 of the disk now."_s.arg(keptText(room.bytes))
                                                : u"No install can be undone."_s);
}

void frm_MoreSettings::showPalette() {
    optPalettes_[static_cast<std::size_t>(paletteChoice(session().registry))]->setChecked(true);
}

void frm_MoreSettings::prepare() {
    showUndo();
    showPalette();
    weather_->refresh();
    const QString path = session().FSPath.text();
    lblSimulatorPath_->setAccessibleName(path);
    lblSimulatorPath_->setText(
        lblSimulatorPath_->fontMetrics().elidedText(path, Qt::ElideMiddle, innerWidth));
}

} // namespace morvane
