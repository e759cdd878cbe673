#include "sets/screens/set_list_form.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "core/numbers.h"
#include "core/opened_file.h"
#include "core/session.h"
#include "sets/set_kind.h"
#include "sets/set_sharing.h"
#include "sets/sheet_request.h"
#include "ui/buffer_picture.h"
#include "ui/controls/picture_frame.h"
#include "ui/file_choice.h"
#include "ui/shell.h"

#include <QLabel>
#include <QPushButton>
#include <algorithm>

namespace morvane {

namespace {

constexpr int pageRight = 582, pictureTop = 129, keyRow = 397, activatedColumn = 1;

const QString lookFiles = fileKinds(u"Looks of sets"_s, sharedSetEnding);

} // namespace

SetListForm::SetListForm(Shell& shell, const QString& name, const WindowLook& look, const HostKeys& keys,
                         const QString& colourPage, const SetListSetup& setup)
    : HostForm(shell, name, look, keys, colourPage), setup_(setup) {
    addInstructionsAndList();
    addPictures();
    addDescription();
    addKeys();
    addLookButtons();
    setAcceptDrops(true);
}

void SetListForm::addInstructionsAndList() {
    makeLabel(paper(), setup_.instructions, {14, 46, 568, 60}, TextRole::longHelp)
        ->setObjectName(setup_.instructionsName);
    list_ = new SetTable(paper());
    list_->setObjectName(setup_.listName);
    list_->setGeometry(14, 112, setup_.listWidth, 266);
    list_->setColumns(setup_.columns, setup_.hasCheckBoxes);
    connect(list_, &SetTable::rowClicked, this, &SetListForm::clickRow);
    connect(list_, &SetTable::rowDoubleClicked, this, &SetListForm::useSet);
    setFirstFocus(list_);
}

void SetListForm::addPictures() {
    const int side = setup_.pictureSide;
    const auto add = [this, side](const QString& name, const QString& caption, int left) {
        makeLabel(paper(), caption, {left - 1, 112, side, 14}, TextRole::fieldCaption);
        auto* picture = new PictureFrame(paper());
        picture->setObjectName(name);
        picture->setAccessibleName(caption);
        picture->placePicture({left, pictureTop, side, side});
        picture->setSmooth(setup_.isSmooth);
        picture->setToolTip(u"Double click to see every texture of the set."_s);
        connect(picture, &PictureFrame::opened, this, &SetListForm::seeAll);
        return picture;
    };
    source_ = add(setup_.sourceName, u"Original"_s, setup_.pictureLefts[0]);
    result_ = add(setup_.resultName, u"This set"_s, setup_.pictureLefts[1]);
    result_->setFocusPolicy(Qt::TabFocus);
}

void SetListForm::addDescription() {
    const int left = setup_.pictureLefts[0] - 1, width = pageRight - left;
    const int top = pictureTop + setup_.pictureSide + 13;
    makeLabel(paper(), u"Description"_s, {left, top, width, 14}, TextRole::sectionHeading);
    makeRule(paper(), {left, top + 18, width, 1});
    description_ = makeLabel(paper(), {}, {left, top + 23, width, 385 - (top + 23)}, setup_.descriptionRole);
    description_->setObjectName(setup_.descriptionName);
}

void SetListForm::addKeys() {
    const bool hasCreate = !setup_.create.name.isEmpty();
    int left = hasCreate ? 27 : 96;
    const auto add = [this, &left](const SetListSetup::Key& key, const QString& picture, const QString& tip,
                                   const QString& caption) {
        const QPoint place{left, keyRow};
        left += 138;
        return addButton({ButtonFamily::LargeButton, key.name, key.key, picture, tip, place, caption},
                         paper());
    };
    if (hasCreate)
        create_ = add(setup_.create, u"btn_Create"_s, u"Click to create texture sets."_s, u"Create"_s);
    activate_ = add(setup_.activate, u"btn_Activate"_s, u"Click to activate the selected texture set."_s,
                    u"Activate"_s);
    install_ = add(setup_.install, u"btn_Install"_s,
                   u"Click to install selected texture set into Flight Simulator."_s, u"Install"_s);
    remove_ = add(setup_.remove, u"btn_Delete"_s, u"Click to delete selected texture set."_s, u"Delete"_s);
}

void SetListForm::addLookButtons() {
    const auto add = [this](const QString& name, const QString& text, const QString& tip, int left,
                            void (SetListForm::*use)()) {
        auto* button = new QPushButton(text, paper());
        button->setObjectName(name);
        button->setAccessibleName(text);
        button->setToolTip(tip);
        button->setGeometry(left, 14, 66, 20);
        connect(button, &QPushButton::clicked, this, use);
        return button;
    };
    seeAll_ = new QPushButton(u"See all"_s, paper());
    seeAll_->setObjectName(u"cmdSeeAll"_s);
    seeAll_->setAccessibleName(seeAll_->text());
    seeAll_->setToolTip(u"Click to see every texture of the selected set."_s);
    seeAll_->setGeometry(494, 14, 88, 20);
    connect(seeAll_, &QPushButton::clicked, this, &SetListForm::seeAll);
    export_ = add(u"cmdExport"_s, u"Export"_s, u"Click to save the colours of this set for other pilots."_s,
                  350, &SetListForm::exportLook);
    add(u"cmdImport"_s, u"Import"_s, u"Click to take a set's colours that another pilot has saved."_s, 422,
        &SetListForm::importLook);
}

void SetListForm::seeAll() {
    if (!seeAll_->isEnabled()) return;
    session().state<SheetRequest>() = {kind().facts.word, kind().inHand(session()).name};
    session().user.showModal(Screen::frm_SetSheet);
}

void SetListForm::exportLook() {
    const QString name = kind().inHand(session()).name;
    const QString file =
        chooseFileToSave(this, u"Export This Set"_s, nameWithoutKey(name), lookFiles, sharedSetEnding);
    if (!file.isEmpty() && exportSet(session(), kind(), name, FilePath(file)))
        session().user.tellDone({u"The colours of %1 are saved"_s.arg(name), file});
}

void SetListForm::importLook() {
    const QString file = chooseFileToOpen(this, u"Import a Set"_s, lookFiles);
    if (openedFile(file) != OpenedFile::none)
        shell().openFile(file); // it may be of another kind than this list
    else if (!file.isEmpty())
        openLook(session(), FilePath(file));
}

void SetListForm::formatSets(int& selectedRow) {
    reportFailures(session().user, {}, [&] {
        markListKey();
        paper()->setTitle(u"icon_MVOpen.bmp"_s, u"Manage Texture Sets Screen"_s);
        formatKeys();
        fillRows();
        if (list_->rowCount() > 0) selectFilledRow(selectedRow);
        selectedRow = 0;
    });
}

/// A set that was made just now counts as clicked: it is what its maker wants to go on with.
void SetListForm::selectFilledRow(int row) {
    const QString madeSet = takeMadeSet();
    const int made = madeSet.isEmpty() ? 0 : list_->rowOf(madeSet);
    // When the list has become shorter, its last row takes the place of the one that was in hand.
    if (made == 0) return selectSetRow(std::clamp(row, 1, list_->rowCount()));
    list_->selectRow(made);
    clickRow(list_->keyOf(made));
}

void SetListForm::formatKeys() {
    remove_->setState(ButtonState::disabled);
    export_->setEnabled(false);
    seeAll_->setEnabled(false);
    if (create_) create_->setState(ButtonState::enabled);
    setActivateState(ButtonState::enabled);
    install_->setState(ButtonState::disabled);
}

void SetListForm::fillRows() {
    list_->clearRows();
    filledRows_ = setRows();
    for (const SetRow& row : filledRows_)
        list_->addRow(row);
    if (list_->rowCount() > 0) return;
    rowInHand_ = 0;
    disableSetKeys();
    description_->clear();
    showNoSet();
}

bool SetListForm::showForeignChanges() {
    if (setRows() == filledRows_) return false;
    formatList();
    return true;
}

void SetListForm::selectSetRow(int row) {
    const QString key = list_->keyOf(row);
    if (key.isEmpty()) return;
    list_->selectRow(row);
    const bool hasColours = takeSet(key);
    takeInHand(row, hasColours, setup_.ofActivatedByPage);
}

void SetListForm::clickRow(const QString& listKey) {
    const int row = list_->currentIndex().row() + 1;
    // The keys must not stay alive for the set of the row before.
    if (!clickSet(row)) return disableSetKeys();
    const bool hasColours = takeSet(listKey);
    takeInHand(row, hasColours, ButtonState::deactivate);
}

/// What a double click on a set is for: the key that is alive, as if it had been pressed.
void SetListForm::useSet() {
    const ButtonState activation = activate_->state();
    if (install_->state() != ButtonState::disabled)
        shell().dispatch(install_);
    else if (activation != ButtonState::disabled && activation != ButtonState::deactivate)
        shell().dispatch(activate_);
}

/// A set whose colours are damaged can only be taken away.
void SetListForm::takeInHand(int row, bool hasColours, ButtonState ofActivated) {
    const ButtonState ofWhole = hasColours ? ButtonState::enabled : ButtonState::disabled;
    const auto filled = std::ranges::find(filledRows_, list_->keyOf(row), &SetRow::key);
    rowInHand_ = filled == filledRows_.end() ? 0 : static_cast<int>(filled - filledRows_.begin()) + 1;
    noteRows();
    const bool isActivated = list_->textOf(row, activatedColumn) == flagText(true);
    install_->setState(isActivated ? ofWhole : ButtonState::disabled);
    setActivateState(isActivated ? ofActivated : ofWhole);
    remove_->setState(ButtonState::enabled);
    export_->setEnabled(hasColours);
    seeAll_->setEnabled(true);
}

void SetListForm::disableSetKeys() {
    export_->setEnabled(false);
    seeAll_->setEnabled(false);
    setActivateState(ButtonState::disabled);
    for (SkinnedButton* key : {install_, remove_})
        key->setState(ButtonState::disabled);
}

void SetListForm::setActivateState(ButtonState state) {
    activate_->setState(state);
    activate_->setButtonText(state == ButtonState::deactivate ? u"Deactivate"_s : u"Activate"_s);
}

void SetListForm::showDescription(const QString& text) {
    description_->setText(trimmedBlanks(text));
}

void SetListForm::showPictures(const cDIBSection& source, const cDIBSection& result) {
    source_->setPicture(pictureOf(source));
    result_->setPicture(pictureOf(result));
}

} // namespace morvane
