#include "simulator/screens/kept_screen.h"

#include "core/failure_report.h"
#include "simulator/kept_removal.h"
#include "ui/controls/labels.h"
#include "ui/controls/set_table.h"

#include <QHeaderView>
#include <QLabel>
#include <algorithm>

namespace morvane {

namespace {

QString aboutText(const KeptItem& item) {
    switch (item.kind) {
    case KeptKind::groundSets:
    case KeptKind::skySets:
    case KeptKind::nightSets:
        return item.name + u": their files can go, as the colours stay and each set can be activated again.  "
                           "\"Default\" and the set that is installed keep their files."_s;
    case KeptKind::backup:
        return u"The simulator's textures of that day.  It can go when each of your own textures in it is "
               "somewhere else as well; Morvane looks for them first."_s;
    case KeptKind::originals:
        return u"Your own files, kept before Morvane replaced them.  They are never removed."_s;
    case KeptKind::undo:
        return u"What is needed to take the last install back."_s;
    case KeptKind::baseImages:
        return u"What new sets are made from."_s;
    case KeptKind::movedImages:
        return u"They come back by \"Use the delivered base images again\" on the base install page."_s;
    case KeptKind::passing:
        return u"They are left from making sets.  The next run makes them again."_s;
    case KeptKind::others:
        return u"Files in the folder of the backups that belong to none of the others."_s;
    }
    return {};
}

} // namespace

frm_WhatIsKept::frm_WhatIsKept(Shell& shellOfDialogs)
    : DialogForm(shellOfDialogs, u"frm_WhatIsKept"_s, wideDialogLook, u"What Morvane Keeps"_s),
      lstKept_(new SetTable(this)) {
    lstKept_->setObjectName(u"lstKept"_s);
    lstKept_->setAccessibleName(u"What is kept"_s);
    lstKept_->setGeometry(26, 84, 648, 264);
    lstKept_->setColumns({{u"What"_s, 360}, {u"How many"_s, 130}, {u"Size"_s, 120}});
    lstKept_->setSelectionMode(QAbstractItemView::SingleSelection);
    lstKept_->header()->setSectionsClickable(false); // sizes have no order as texts
    connect(lstKept_, &SetTable::rowClicked, this, &frm_WhatIsKept::showItem);
    lblAbout_ = makeLabel(this, {}, {26, 356, 648, 32}, TextRole::longHelp);
    lblAbout_->setObjectName(u"lblAbout"_s);
    lblRoom_ = makeLabel(this, {}, {26, 400, 648, 18}, TextRole::value);
    lblRoom_->setObjectName(u"lblRoom"_s);
    addButton({ButtonFamily::LargeButton,
               u"btn_RemoveKept"_s,
               u"remove kept"_s,
               u"btn_Delete"_s,
               u"Click to remove what is selected."_s,
               {26, 443},
               u"Remove"_s});
    addCancelKey(u"Click to close."_s);
}

void frm_WhatIsKept::prepare() {
    setFirstFocus(lstKept_);
    fill();
    const auto removable = std::ranges::find(room_.items, true, &KeptItem::isRemovable);
    pick(removable == room_.items.end() ? 1 : static_cast<int>(removable - room_.items.begin()) + 1);
}

void frm_WhatIsKept::pick(int row) {
    lstKept_->selectRow(row);
    showItem(lstKept_->keyOf(row));
}

void frm_WhatIsKept::fill() {
    room_ = {};
    lstKept_->clearRows();
    const bool isKnown = reportFailures(session().user, morvaneError, [&] { room_ = keptRoom(session()); });
    for (const KeptItem& item : room_.items)
        addRow(item);
    lblRoom_->setText(isKnown ? room_.summary() : QString());
}

void frm_WhatIsKept::addRow(const KeptItem& item) {
    const QString what = item.remark.isEmpty() ? item.name : item.name + u", "_s + item.remark;
    const QStringList texts{what, item.countWords(), keptText(item.bytes)};
    lstKept_->addRow({item.name, texts, texts});
}

const KeptItem* frm_WhatIsKept::itemOf(const QString& name) const {
    const auto item = std::ranges::find(room_.items, name, &KeptItem::name);
    return item == room_.items.end() ? nullptr : &*item;
}

void frm_WhatIsKept::showItem(const QString& name) {
    const KeptItem* item = itemOf(name);
    lblAbout_->setText(item ? aboutText(*item) : QString());
    button(u"btn_RemoveKept"_s)
        ->setState(item && item->isRemovable ? ButtonState::enabled : ButtonState::disabled);
}

/// Where the row is gone the one that stands in its place is picked.
void frm_WhatIsKept::removeChosen() {
    const int row = lstKept_->currentIndex().row() + 1;
    const KeptItem* chosen = itemOf(lstKept_->keyOf(row));
    if (!chosen) return;
    removeKept(session(), KeptItem(*chosen));
    fill();
    pick(std::min(row, lstKept_->rowCount()));
    lstKept_->setFocus();
}

} // namespace morvane
