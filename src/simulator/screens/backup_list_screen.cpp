#include "simulator/screens/backup_list_screen.h"

#include "core/session.h"
#include "simulator/backup_restore.h"
#include "simulator/backups.h"
#include "ui/controls/set_table.h"

#include <QKeyEvent>

namespace morvane {

frm_BackupList::frm_BackupList(Shell& shell)
    : DialogForm(shell, u"frm_BackupList"_s, smallDialogLook, u"Restore Backup"_s),
      lstBackupList_(new SetTable(this)) {
    lstBackupList_->setObjectName(u"lstBackupList"_s);
    lstBackupList_->setAccessibleName(u"Backups"_s);
    lstBackupList_->setGeometry(26, 88, 348, 190);
    lstBackupList_->setColumns({{u"Name"_s, 130}, {u"Date"_s, 200}});
    lstBackupList_->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(lstBackupList_, &SetTable::rowClicked, this, &frm_BackupList::choose);
    connect(lstBackupList_, &SetTable::itemDoubleClicked, this, &frm_BackupList::ok);
    addAnswerKeys(u"Click to restore selected backups."_s, u"Click to cancel the restore."_s);
}

/// The mark of a backup that was cut short stands with its date: the name is that of its folder.
void frm_BackupList::popBackupList() {
    lstBackupList_->clearRows();
    for (const BackupChoice::Backup& backup : session().state<BackupChoice>().backups) {
        QString date = dayText(backup.takenAt, u"yyyy/MM/dd hh:mm:ss"_s);
        if (!backup.isComplete) date += u" (partial)"_s;
        lstBackupList_->addRow({backup.name, {backup.name, date}, {backup.name, date}});
    }
    lstBackupList_->selectRow(lstBackupList_->rowCount());
    allowOk(false);
    setFirstFocus(lstBackupList_);
}

void frm_BackupList::choose(const QString& name) {
    session().state<BackupChoice>().chosenBackup = name;
    allowOk(true);
}

void frm_BackupList::confirm() {
    session().state<BackupChoice>().backupConfirmed = true;
}

void frm_BackupList::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && lstBackupList_->hasFocus() && !isOkAllowed())
        choose(lstBackupList_->keyOf(lstBackupList_->currentIndex().row() + 1));
    else
        DialogForm::keyPressEvent(event);
}

} // namespace morvane
