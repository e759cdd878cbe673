#include "window/message_screen.h"

#include "core/numbers.h"
#include "core/session.h"
#include "simulator/options.h"
#include "ui/controls/labels.h"
#include "ui/controls/paper_style.h"
#include "ui/controls/skin_sign.h"
#include "ui/controls/skinned_progress_bar.h"
#include "ui/shell.h"
#include "ui/skin.h"
#include "weather/weather_state.h"
#include "window/message_sounds.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QMovie>
#include <QPushButton>

namespace morvane {

namespace {

constexpr int paintEveryMilliseconds = 33;
constexpr QPoint besideCancel{280, 242}, alone{335, 242};

} // namespace

frm_Msg::frm_Msg(Shell& shell) : DialogForm(shell, u"frm_Msg"_s, messageLook, {}) {
    makeControls();
}

QLabel* frm_Msg::addText(const QString& name, const QRect& place, TextRole role) {
    QLabel* label = makeLabel(this, {}, place, role);
    label->setObjectName(name);
    return label;
}

void frm_Msg::makeControls() {
    pic_Icon_ = new SkinSign(skin(), this);
    pic_Icon_->setObjectName(u"pic_Icon"_s);
    pic_Icon_->setGeometry(26, 60, 40, 40);
    picASv6_ = new QLabel(this);
    picASv6_->setObjectName(u"picASv6"_s);
    picASv6_->setGeometry(26, 108, 40, 40);
    picASv6_->setAlignment(Qt::AlignCenter);
    anGifASv6_ = new QMovie(this);
    lbl_Title_ = addText(u"lbl_Title"_s, {80, 61, 294, 20}, TextRole::messageTitle);
    lbl_Message_ = addText(u"lbl_Message"_s, {80, 88, 294, 136}, TextRole::body);
    lblProcessDescription_ = addText(u"lblProcessDescription"_s, {80, 172, 294, 16}, TextRole::body);
    lblProcessFile_ = addText(u"lblProcessFile"_s, {80, 192, 294, 16}, TextRole::body);
    btn_Ok_ = addButton({ButtonFamily::StandardButton, u"btn_Ok"_s, u"ok"_s, u"btn_CheckAll"_s,
                         u"Click to answer Yes or to continue."_s, alone});
    btn_Cancel_ = addButton({ButtonFamily::StandardButton, u"btn_Cancel"_s, u"cancel"_s, u"btn_Cancel"_s,
                             u"Click to answer No or to close window."_s, alone});
    pbMessage_ = new SkinnedProgressBar(this);
    pbMessage_->setGeometry(20, 256, 230, 16);
    cmdCancel_ = new QPushButton(u"Cancel the process"_s, this);
    cmdCancel_->setObjectName(u"cmdCancel"_s);
    cmdCancel_->setGeometry(264, 251, 119, 26);
    setOnDark(*cmdCancel_);
    chkFastExit_ = new QCheckBox(u"Click here if you do not want to see this\nmessage again"_s, this);
    chkFastExit_->setObjectName(u"chkFastExit"_s);
    chkFastExit_->setAccessibleName(u"Click here if you do not want to see this message again"_s);
    chkFastExit_->setGeometry(22, 244, 250, 38);
    setOnDark(*chkFastExit_);
    connect(cmdCancel_, &QPushButton::clicked, this, &frm_Msg::askForCancel);
    connect(chkFastExit_, &QCheckBox::toggled, this, &frm_Msg::storeFastExit);
}

void frm_Msg::showMessage(const Message& message) {
    // Progress that follows progress stays where it is: gone for a moment it would lose a click on cancel.
    const bool goesOn = isVisible() && isProgress_ && message.isProgress;
    if (isVisible() && !goesOn) hide();
    playMessageSound(message.kind);
    fill(message);
    layOut(message);
    if (!message.isProgress) return run();
    if (!goesOn) {
        focusFirst();
        centreOver(shell().messageAnchor());
    }
    show();
}

void frm_Msg::fill(const Message& message) {
    msgType_ = kindWord(message.kind);
    isProgress_ = message.isProgress;
    isWaiting_ = message.isProgress && session().state<WeatherState>().ASv6Busy;
    pic_Icon_->showSign(u"icon_"_s + msgType_ + u".bmp"_s);
    pic_Icon_->setAccessibleName(msgType_);
    setWindowTitle(message.title);
    showPicture(message.picture);
    setInk(*lbl_Title_, message.hasQuietTitle ? Ink::quietTitle : Ink::signalRed);
    showTitle(message.title);
    lbl_Message_->setText(message.text);
    lblProcessDescription_->clear();
    lblProcessFile_->clear();
    processFile_.clear();
    lastPaint_.invalidate();
    pbMessage_->setValue(0);
}

/// An animation moves as long as its message stands.
void frm_Msg::showPicture(const QString& fileName) {
    anGifASv6_->stop();
    picASv6_->clear();
    picASv6_->setVisible(!fileName.isEmpty());
    if (fileName.endsWith(u".gif"_s, Qt::CaseInsensitive)) {
        anGifASv6_->setFileName(skin().animation(fileName).native());
        picASv6_->setMovie(anGifASv6_);
        anGifASv6_->start();
    } else if (!fileName.isEmpty()) {
        picASv6_->setPixmap(skin().picture(fileName));
    }
}

void frm_Msg::layOut(const Message& message) {
    const bool isQuestion = !message.isProgress;
    const auto place = [](SkinnedButton* button, bool isThere, const QPoint& at) {
        button->setState(isThere ? ButtonState::enabled : ButtonState::disabled);
        button->setVisible(isThere);
        button->move(at);
    };
    place(btn_Ok_, isQuestion && message.withOk, message.withCancel ? besideCancel : alone);
    place(btn_Cancel_, isQuestion && message.withCancel, alone);
    pbMessage_->setVisible(message.isProgress && !isWaiting_);
    cmdCancel_->setText(isWaiting_ ? u"Cancel"_s : u"Cancel the process"_s);
    cmdCancel_->setVisible(message.isProgress && message.withCancel);
    lbl_Message_->resize(294, message.isProgress ? 70 : 136);
    chkFastExit_->setChecked(false);
    chkFastExit_->setVisible(message.offersFastExit);
}

bool frm_Msg::isTimeToPaint(double value) {
    if (lastPaint_.isValid() && lastPaint_.elapsed() < paintEveryMilliseconds && value < 100) return false;
    lastPaint_.start();
    return true;
}

/// Smaller where it would be cut.
void frm_Msg::showTitle(const QString& title) {
    if (lbl_Title_->text() == title) return; // progress says it again with each file
    constexpr int smallest = 11;
    QFont font = fontOf(TextRole::messageTitle);
    while (QFontMetrics(font).horizontalAdvance(title) > lbl_Title_->width() && font.pixelSize() > smallest)
        font.setPixelSize(font.pixelSize() - 1);
    lbl_Title_->setFont(font);
    lbl_Title_->setText(title);
}

void frm_Msg::updateProgress(const QString& title, const QString& text, double value) {
    if (!title.isEmpty()) showTitle(trimmedBlanks(title));
    if (!text.isEmpty()) lbl_Message_->setText(trimmedBlanks(text));
    if (!isTimeToPaint(value)) return;
    lblProcessFile_->setText(processFile_);
    pbMessage_->setValue(value);
}

void frm_Msg::setProgressFile(const QString& line) {
    processFile_ = line;
}

void frm_Msg::answer(bool ok) {
    session().user.answers().answer(ok);
    hide();
}

void frm_Msg::cancel() {
    if (isProgress_)
        askForCancel();
    else
        answer(btn_Cancel_->isHidden());
}

void frm_Msg::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!isProgress_)
        cancel();
    else if (isWaiting_)
        shell().exitAfterQuestion(u"Active Sky is still working. Do you wish to exit Morvane?"_s);
    else
        shell().exitProgram();
}

/// A wait is left without a question: nothing is lost.
void frm_Msg::askForCancel() {
    if (cmdCancel_->isHidden() || isAsking_) return;
    isAsking_ = true;
    const bool wanted =
        isWaiting_ || session().user.systemBox(u"Do you wish cancel the current operation?"_s,
                                               u"Cancel Operation?"_s, SystemBoxButtons::okCancel);
    isAsking_ = false;
    session().user.answers().cancelRequested = wanted;
}

void frm_Msg::storeFastExit(bool isTicked) {
    // Clearing the box writes nothing: the question would not have come with the option set.
    if (isTicked) storeSwitch(session(), &OptionsInForce::IsFastExit, true);
}

} // namespace morvane
