#include "sets/screens/favourite_screen.h"

#include "core/numbers.h"
#include "core/session.h"
#include "sets/favourite_name.h"
#include "sets/set_names.h"
#include "ui/controls/description_edit.h"
#include "ui/controls/labels.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace morvane {

frm_AddFav::frm_AddFav(Shell& shell)
    : DialogForm(shell, u"frm_AddFav"_s, smallDialogLook, u"Texture Set Information"_s) {
    makeLabel(this, u"Title:"_s, {26, 92, 48, 22}, TextRole::value);
    txtFavName_ = new QLineEdit(this);
    txtFavName_->setObjectName(u"txtFavName"_s);
    txtFavName_->setAccessibleName(u"Title"_s);
    txtFavName_->setFont(fontOf(TextRole::body));
    txtFavName_->setGeometry(74, 92, 300, 22);
    const QString invitation = u"Enter a description for this setting."_s;
    makeLabel(this, invitation, {26, 128, 348, 16}, TextRole::value);
    txtFavDesc_ = new DescriptionEdit(this);
    txtFavDesc_->setObjectName(u"txtFavDesc"_s);
    txtFavDesc_->setAccessibleName(invitation);
    txtFavDesc_->setGeometry(26, 148, 348, 108);
    lblLength_ = makeLabel(this, {}, {314, 262, 60, 16}, TextRole::number);
    lblLength_->setObjectName(u"lblLength"_s);
    connect(txtFavName_, &QLineEdit::textChanged, this, [this](const QString& name) {
        session().state<FavouriteAnswer>().favName = trimmedBlanks(name);
    });
    connect(txtFavDesc_, &QPlainTextEdit::textChanged, this, &frm_AddFav::storeDescription);
    addAnswerKeys(u"Click to save the texture set."_s, u"Click to cancel."_s);
}

void frm_AddFav::prepare() {
    txtFavName_->clear();
    txtFavDesc_->clear();
    storeDescription();
    setFirstFocus(txtFavName_);
}

void frm_AddFav::confirm() {
    session().state<FavouriteAnswer>().favConfirmed = true;
}

void frm_AddFav::storeDescription() {
    QString text = txtFavDesc_->toPlainText();
    if (text.size() > longestDescription) {
        text.truncate(longestDescription);
        const QSignalBlocker quiet(txtFavDesc_);
        txtFavDesc_->setPlainText(text);
        txtFavDesc_->moveCursor(QTextCursor::End);
    }
    session().state<FavouriteAnswer>().favDescription = trimmedBlanks(text);
    lblLength_->setText(QString::number(text.size()));
}

} // namespace morvane
