#include "ground/screens/ground_sets_screen.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "core/options.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/sample_textures.h"
#include "ui/buffer_picture.h"
#include "ui/controls/labels.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/set_table.h"

#include <QLabel>
#include <algorithm>

namespace morvane {

namespace {

constexpr int keyRow = 397, rightColumn = 358;
constexpr QRgb installedColour = qRgb(255, 0, 0);

const HostKeys windowKeys{u"texture sets"_s, u"ground"_s, u"btn_2d"_s,
                          u"Click to minimize Ground Textures screen."_s};

// The two sentences have never been parted by a full stop.
const QString instructions =
    u"To create a series of ground texture sets please click the create button and then enter the number of "
    "each cloud cover value required into the text boxes on the dialog screen that appears. Click the "
    "checkmark button to commence the creation process These sets take 10 - 20 minutes each to create "
    "therefore please allow sufficient time for the creation process. "_s;

SetRow rowOf(const clsTextureSet& set) {
    return {u"Key:"_s + QString::number(set.TsID),
            {set.TextureSet, set.Actvated, set.CloudCover},
            {set.TextureSet, u"Activated?"_s, u"Cloud Cover"_s},
            set.Installed ? installedColour : palette::textBlue};
}

void addRule(QWidget* paper, const QPoint& place, int width) {
    auto* rule = new QWidget(paper);
    QPalette colours;
    colours.setColor(QPalette::Window, QColor::fromRgb(palette::rule));
    rule->setPalette(colours);
    rule->setAutoFillBackground(true);
    rule->setGeometry(QRect(place, QSize(width, 1)));
}

} // namespace

frm_MVTextures::frm_MVTextures(Shell& shell)
    : HostForm(shell, u"frm_MVTextures"_s, groundLook, windowKeys, u"frm_GroundColorize"_s),
      sample_(session()) {
    makeControls();
    addKeys();
}

void frm_MVTextures::makeControls() {
    lblTsInstructions_ = makeLabel(paper(), instructions, {14, 46, 568, 60}, TextRole::longHelp);
    lblTsInstructions_->setObjectName(u"lblTsInstructions"_s);
    lstTextureSets_ = new SetTable(paper());
    lstTextureSets_->setObjectName(u"lstTextureSets"_s);
    lstTextureSets_->setGeometry(14, 112, 330, 266);
    lstTextureSets_->setColumns({{u"Name"_s, 160}, {u"Activated"_s, 68}, {u"Cloud Cover"_s, 84}});
    connect(lstTextureSets_, &SetTable::rowClicked, this, &frm_MVTextures::clickRow);
    const auto addPicture = [this](const QString& name, const QString& caption, int left) {
        makeLabel(paper(), caption, {left - 1, 112, 108, 14}, TextRole::fieldCaption);
        auto* picture = new PictureFrame(paper());
        picture->setObjectName(name);
        picture->setAccessibleName(caption);
        picture->placePicture({left, 129, 108, 108});
        return picture;
    };
    picTextureSetSource_ = addPicture(u"picTextureSetSource"_s, u"Original"_s, rightColumn + 1);
    picTextureSetResult_ = addPicture(u"picTextureSetResult"_s, u"This set"_s, rightColumn + 115);
    makeLabel(paper(), u"Description"_s, {rightColumn, 250, 224, 14}, TextRole::sectionHeading);
    addRule(paper(), {rightColumn, 268}, 224);
    lblFavDescription_ = makeLabel(paper(), {}, {rightColumn, 273, 224, 112}, TextRole::body);
    lblFavDescription_->setObjectName(u"lblFavDescription"_s);
}

void frm_MVTextures::addKeys() {
    const auto add = [this](const QString& name, const QString& key, const QString& picture,
                            const QString& tip, const QString& caption, int left) {
        return addButton({ButtonFamily::LargeButton, name, key, picture, tip, {left, keyRow}, caption},
                         paper());
    };
    btn_textureCreate_ = add(u"btn_textureCreate"_s, u"create ts"_s, u"btn_Create"_s,
                             u"Click to create texture sets."_s, u"Create"_s, 27);
    btn_TextureActivate_ = add(u"btn_TextureActivate"_s, u"activate ts"_s, u"btn_Activate"_s,
                               u"Click to activate the selected texture set."_s, u"Activate"_s, 165);
    btn_TextureInstall_ =
        add(u"btn_TextureInstall"_s, u"install ts"_s, u"btn_Install"_s,
            u"Click to install selected texture set into Flight Simulator."_s, u"Install"_s, 303);
    btn_TextureDelete_ = add(u"btn_TextureDelete"_s, u"delete ts"_s, u"btn_Delete"_s,
                             u"Click to delete selected texture set."_s, u"Delete"_s, 441);
}

void frm_MVTextures::formatList() {
    int row = rowInHand_;
    formatGroundSets(row);
}

void frm_MVTextures::formatGroundSets(int& selectedRow) {
    reportFailures(session().user, {}, [&] {
        markListKey();
        paper()->setTitle(u"icon_MVOpen.bmp"_s, u"Manage Texture Sets Screen"_s);
        formatKeys();
        fillRows();
        const int rows = lstTextureSets_->rowCount();
        if (rows == 0) return clearSelection();
        // When the list has become shorter, its last row takes the place of the one that was in hand.
        selectGroundRow(std::clamp(selectedRow, 1, rows));
        selectedRow = 0;
    });
}

void frm_MVTextures::formatKeys() {
    btn_TextureDelete_->setState(ButtonState::disabled);
    btn_textureCreate_->setState(ButtonState::enabled);
    setActivateState(ButtonState::enabled);
    btn_TextureInstall_->setState(ButtonState::disabled);
}

void frm_MVTextures::fillRows() {
    lstTextureSets_->clearRows();
    filledKeys_.clear();
    if (session().RefreshGroundList && refreshGroundSets(session())) session().RefreshGroundList = false;
    for (const auto& set : loadedGroundSets(session())) {
        const SetRow row = rowOf(*set);
        lstTextureSets_->addRow(row);
        filledKeys_ << row.key;
    }
}

void frm_MVTextures::clearSelection() {
    rowInHand_ = 0;
    setActivateState(ButtonState::disabled);
    lblFavDescription_->clear();
    openDefaultSample();
}

void frm_MVTextures::selectGroundRow(int row) {
    const QString key = lstTextureSets_->keyOf(row);
    if (key.isEmpty()) return;
    lstTextureSets_->selectRow(row);
    loadGroundSelection(key);
    session().ground.SelectedGroundActivated = lstTextureSets_->textOf(row, 1) == flagText(true);
    // Unlike a click this leaves the key of an activated set dead: once the list was built anew, a set can be
    // deactivated only after its row was clicked.
    takeInHand(key, ButtonState::disabled);
    btn_TextureDelete_->setState(ButtonState::enabled);
}

void frm_MVTextures::clickRow(const QString& listKey) {
    const int row = lstTextureSets_->currentIndex().row() + 1;
    if (!clickGroundRow(session(), lstTextureSets_->textOf(row, 0))) return;
    loadGroundSelection(listKey);
    takeInHand(listKey, ButtonState::deactivate);
}

void frm_MVTextures::loadGroundSelection(const QString& listKey) {
    if (!morvane::loadGroundSelection(session(), listKey)) return;
    lblFavDescription_->setText(trimmedBlanks(session().ground.SelectedGroundDescription));
    openDefaultSample();
    lstTextureSets_->selectName(session().ground.SelectedGroundSet);
}

void frm_MVTextures::takeInHand(const QString& listKey, ButtonState ofActivated) {
    const bool isActivated = session().ground.SelectedGroundActivated;
    rowInHand_ = static_cast<int>(filledKeys_.indexOf(listKey)) + 1;
    session().ground.selectedRows = lstTextureSets_->selectedNames();
    btn_TextureInstall_->setState(isActivated ? ButtonState::enabled : ButtonState::disabled);
    setActivateState(isActivated ? ofActivated : ButtonState::enabled);
}

void frm_MVTextures::setActivateState(ButtonState state) {
    btn_TextureActivate_->setState(state);
    btn_TextureActivate_->setButtonText(state == ButtonState::deactivate ? u"Deactivate"_s : u"Activate"_s);
}

void frm_MVTextures::openDefaultSample() {
    openTexImage(sampleTexture(session().AppPath, defaultSample, u"summer"_s, session().IsDutch));
}

void frm_MVTextures::openTexImage(const FilePath& path) {
    openImageForTextureSet(path);
    picTextureSetSource_->setPicture(pictureOf(sample_.sourceDib()));
    picTextureSetResult_->setPicture(pictureOf(sample_.resultDib()));
}

} // namespace morvane
