#include "sets/screens/name_choice_screen.h"

#include "core/session.h"
#include "sets/set_removal.h"
#include "ui/controls/set_table.h"

namespace morvane {

frm_MultiDelete::frm_MultiDelete(Shell& shell)
    : DialogForm(shell, u"frm_MultiDelete"_s, smallDialogLook, u"Selected Texture Sets"_s),
      list_(new SetTable(this)) {
    list_->setObjectName(u"lstNames"_s);
    list_->setGeometry(26, 88, 348, 190);
    list_->setColumns({{u"Name"_s, 330}}, true);
    addAnswerKeys(u"Click to delete selected files."_s, u"Click to cancel the delete."_s);
}

void frm_MultiDelete::popMultiDeleteList() {
    list_->clearRows();
    for (const QString& name : session().state<MultiChoice>().multiNames)
        list_->addRow({name, {name}, {name}, paper::text.day, true});
    list_->selectRow(1);
    setFirstFocus(list_);
}

void frm_MultiDelete::confirm() {
    session().state<MultiChoice>().multiConfirmed = list_->checkedNames();
}

} // namespace morvane
