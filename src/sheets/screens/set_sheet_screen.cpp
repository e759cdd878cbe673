#include "sheets/screens/set_sheet_screen.h"

#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/session.h"
#include "sets/cloud_cover.h"
#include "sets/sheet_request.h"
#include "sheets/screens/sheet_panel.h"
#include "sheets/screens/sheet_view.h"
#include "sheets/screens/single_texture.h"
#include "sheets/set_sheets.h"
#include "sheets/simulator_sheet.h"
#include "ui/controls/labels.h"
#include "ui/controls/sign_button.h"
#include "ui/controls/skin_sign.h"
#include "ui/controls/slider.h"
#include "ui/file_choice.h"
#include "ui/skin.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>

namespace morvane {

namespace {

constexpr QRect sheetPlace{26, 86, 614, 412};
constexpr int zoomStep = 12;
constexpr int firstPictures = 120; ///< milliseconds that are waited for what is seen

std::optional<Sheet> requestedSheet(Session& session) {
    const SheetRequest& request = session.state<SheetRequest>();
    if (request.kind == u"Ground") return groundSheet(session, request.name);
    if (request.kind == u"Sky") return skySheet(session, request.name);
    if (request.kind == u"Night") return nightSheet(session, request.name);
    return simulatorSheet(session);
}

QSize textSize(const QLabel& label) {
    return QFontMetrics(label.font()).size(Qt::TextSingleLine, label.text());
}

} // namespace

frm_SetSheet::frm_SetSheet(Shell& shell) : DialogForm(shell, u"frm_SetSheet"_s, sheetLook, u"See All"_s) {
    addHead();
    addZoom();
    addSheet();
    addKeys();
}

void frm_SetSheet::addHead() {
    lblTitle_ = findChild<QLabel*>(u"lblTitle"_s);
    picCover_ = new SkinSign(skin(), this);
    picCover_->setObjectName(u"picCover"_s);
    lblCover_ = makeLabel(this, {}, {}, TextRole::optionCaption);
    lblCover_->setObjectName(u"lblCover"_s);
    lblState_ = makeLabel(this, {}, {}, TextRole::longHelp);
    lblState_->setObjectName(u"lblState"_s);
    lblState_->setWordWrap(false);
    lblState_->setAlignment(Qt::AlignVCenter);
}

void frm_SetSheet::addZoom() {
    QLabel* caption = makeLabel(this, u"Zoom"_s, {604, 57, 50, 20}, TextRole::number);
    caption->setFont(fontOf(TextRole::body));
    vcZoom_ = new ucSlider(smallestZoom, largestZoom, this);
    vcZoom_->setObjectName(u"vcZoom"_s);
    vcZoom_->setAccessibleName(u"Zoom"_s);
    vcZoom_->setGeometry(687, 57, 100, 20);
    const auto addButton = [this](ButtonSign sign, const QString& name, const QString& tip, int x, int step) {
        auto* button = new SignButton(sign, tip, this);
        button->setObjectName(name);
        button->setGeometry(x, 57, 20, 20);
        connect(button, &QPushButton::clicked, this, [this, step] {
            vcZoom_->setValue(std::clamp(vcZoom_->value() + step, smallestZoom, largestZoom));
        });
    };
    addButton(ButtonSign::minus, u"cmdZoomMinus"_s, u"Smaller textures"_s, 662, -zoomStep);
    addButton(ButtonSign::plus, u"cmdZoomPlus"_s, u"Larger textures"_s, 792, zoomStep);
    lblZoom_ = makeLabel(this, {}, {812, 57, 42, 20}, TextRole::number);
    lblZoom_->setObjectName(u"lblZoom"_s);
    lblZoom_->setFont(fontOf(TextRole::body));
    connect(vcZoom_, &ucSlider::Change, this, &frm_SetSheet::showZoom);
}

void frm_SetSheet::addSheet() {
    view_ = new SheetView(this);
    view_->setObjectName(u"lstSheet"_s);
    view_->setAccessibleName(u"Textures"_s);
    view_->setGeometry(sheetPlace);
    panel_ = new SheetPanel(this);
    alone_ = new SingleTexture(this);
    alone_->setObjectName(u"picAlone"_s);
    alone_->setAccessibleName(u"One texture alone"_s);
    alone_->setGeometry(sheetPlace);
    connect(view_, &SheetView::pickChanged, this, &frm_SetSheet::showPicked);
    connect(view_, &SheetView::opened, this, [this] { showAlone(true); });
    connect(alone_, &SingleTexture::left, this, [this] { showAlone(false); });
    setFirstFocus(view_);
    vcZoom_->setValue(usualZoom);
}

void frm_SetSheet::addKeys() {
    addButton({ButtonFamily::LargeButton,
               u"btn_Beside"_s,
               u"base beside"_s,
               u"btn_Beside"_s,
               u"Click to see the base beside this set in every texture."_s,
               {26, 523},
               u"Base\nBeside"_s});
    addButton({ButtonFamily::LargeButton,
               u"btn_SavePicture"_s,
               u"save sheet"_s,
               u"btn_Save"_s,
               u"Click to save all textures as one picture."_s,
               {164, 523},
               u"Save Picture"_s});
    addCancelKey(u"Click to close."_s);
}

/// Behind a failure the window stands empty.
void frm_SetSheet::prepare() {
    view_->setLoading(nullptr);
    loading_.reset();
    showAlone(false);
    view_->setCut(false);
    vcZoom_->setValue(usualZoom);
    button(u"btn_Beside"_s)->setLatched(false);
    std::optional<Sheet> sheet;
    reportFailures(session().user, morvaneError, [&] { sheet = requestedSheet(session()); });
    if (!sheet) sheet.emplace();
    showHead(*sheet);
    panel_->showSheet(*sheet);
    loading_ = std::make_unique<SheetLoading>(
        std::make_unique<SheetPictures>(session().files, session().AppPath, std::move(*sheet)), nullptr);
    view_->setLoading(loading_.get());
    loading_->wait(firstPictures);
}

void frm_SetSheet::showHead(const Sheet& sheet) {
    lblTitle_->setText(sheet.title);
    int x = 26 + std::min(textSize(*lblTitle_).width(), 300) + 16;
    lblTitle_->setGeometry(26, 56, x - 30, 20);
    const CloudCover* cover = cloudCover(sheet.cover);
    picCover_->setVisible(cover);
    lblCover_->setText(cover ? sheet.cover : QString());
    if (cover) {
        picCover_->showSign(u"cover_"_s + cover->tag.mid(2, 3).toLower() + u".bmp"_s);
        picCover_->setGeometry(x, 61, 12, 12);
        lblCover_->setGeometry(x + 18, 57, textSize(*lblCover_).width() + 4, 20);
        x = lblCover_->geometry().right() + 24;
    }
    lblState_->setGeometry(x, 57, 604 - x, 20);
    lblState_->setText(sheet.summary());
}

void frm_SetSheet::showZoom() {
    lblZoom_->setText(u"%1 px"_s.arg(vcZoom_->value()));
    view_->setZoom(vcZoom_->value());
}

void frm_SetSheet::showPicked() {
    if (!loading_ || !view_->picked()) return;
    const std::size_t picked = *view_->picked();
    const SheetTexture& texture = loading_->sheet().textures[picked];
    const SheetPair whole = loading_->pictures().load(picked, 0);
    panel_->showTexture(loading_->sheet(), texture, whole);
    alone_->setCaptions(loading_->sheet().baseCaption, loading_->sheet().ownCaption);
    alone_->setPair(texture.name, whole);
}

void frm_SetSheet::showAlone(bool isAlone) {
    const bool hadFocus = alone_->hasFocus() || view_->hasFocus();
    alone_->setVisible(isAlone);
    view_->setVisible(!isAlone);
    if (hadFocus) (isAlone ? static_cast<QWidget*>(alone_) : view_)->setFocus();
}

void frm_SetSheet::turnBeside() {
    view_->setCut(!view_->isCut());
    button(u"btn_Beside"_s)->setLatched(view_->isCut());
}

void frm_SetSheet::showBase(bool isWanted) {
    view_->showBase(isWanted);
    alone_->showBase(isWanted);
    panel_->showBase(isWanted);
}

void frm_SetSheet::savePicture() {
    if (!loading_ || loading_->sheet().textures.empty()) return;
    const QString file = chooseFileToSave(this, u"Save Picture"_s, loading_->sheet().title,
                                          fileKinds(u"Pictures"_s, u"png"_s), u"png"_s);
    if (file.isEmpty()) return;
    const FilePath target(file);
    if (!mayReplace(session(), target)) return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool isSaved = reportFailures(session().user, morvaneError, [&] {
        saveSheet(session().files, drawnSheet(loading_->pictures(), view_->zoom(), {.isCut = view_->isCut()}),
                  target);
    });
    QGuiApplication::restoreOverrideCursor();
    if (isSaved) lblState_->setText(u"Saved as "_s + target.fileName());
}

void frm_SetSheet::cancel() {
    if (alone_->isVisible()) return showAlone(false);
    DialogForm::cancel();
}

bool frm_SetSheet::moveAlone(int key) {
    if (!alone_->isVisible()) return false;
    if (key == Qt::Key_Left || key == Qt::Key_Right) return view_->pickNext(key == Qt::Key_Left ? -1 : 1, 0);
    if (key == Qt::Key_Up || key == Qt::Key_Down) return view_->pickNext(0, key == Qt::Key_Up ? -1 : 1);
    return false;
}

void frm_SetSheet::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        showBase(true);
    else if (!moveAlone(event->key()))
        DialogForm::keyPressEvent(event);
}

void frm_SetSheet::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) return showBase(false);
    DialogForm::keyReleaseEvent(event);
}

/// A set's pictures are not needed behind it.
void frm_SetSheet::hideEvent(QHideEvent* event) {
    showBase(false);
    DialogForm::hideEvent(event);
}

} // namespace morvane
