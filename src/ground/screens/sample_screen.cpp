#include "ground/screens/sample_screen.h"

#include "ground/sample_textures.h"
#include "ui/controls/labels.h"

#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>
#include <algorithm>

namespace morvane {

namespace {

constexpr int left = 26, rowHeight = 20, seasonTop = 68, typeTop = 106, typeRows = 6, seasonPitch = 88;

using Choices = std::vector<SampleChoice>;

QRect seasonPlace(int index) {
    return {left + index * seasonPitch, seasonTop, seasonPitch, rowHeight};
}

/// Two columns; the long captions are all in the second one.
QRect typePlace(int index) {
    const int top = typeTop + index % typeRows * rowHeight;
    return index < typeRows ? QRect(left, top, 110, rowHeight) : QRect(left + 112, top, 240, rowHeight);
}

QButtonGroup* addOptions(QWidget* parent, const Choices& choices, const QString& namePrefix,
                         QRect (*place)(int)) {
    auto* group = new QButtonGroup(parent);
    for (int index = 0; const SampleChoice& choice : choices) {
        // A single "&" would mark a letter for the keyboard.
        auto* option = new QRadioButton(QString(choice.caption).replace(u"&"_s, u"&&"_s), parent);
        option->setObjectName(namePrefix + choice.key);
        option->setAccessibleName(choice.caption);
        option->setFont(fontOf(TextRole::longHelp));
        option->setGeometry(place(index));
        group->addButton(option, index++);
    }
    return group;
}

/// Checks the choice of that key; without one the first.
void check(const QButtonGroup& group, const Choices& choices, const QString& key) {
    const auto found = std::ranges::find(choices, key, &SampleChoice::key);
    const auto index = found == choices.end() ? 0 : found - choices.begin();
    group.button(static_cast<int>(index))->setChecked(true);
}

const QString& checkedKey(const QButtonGroup& group, const Choices& choices) {
    return choices[static_cast<std::size_t>(group.checkedId())].key;
}

} // namespace

frm_SelectTexture::frm_SelectTexture(Shell& shell)
    : DialogForm(shell, u"frm_SelectTexture"_s, messageLook, {}) {
    makeLabel(this, u"Select the season that you wish to customize"_s, {left, 53, 348, 14},
              TextRole::fieldCaption);
    seasons_ = addOptions(this, sampleSeasons(), u"optSeason_"_s, seasonPlace);
    makeLabel(this, u"Select the texture type that you wish to customize"_s, {left, 91, 348, 14},
              TextRole::fieldCaption);
    types_ = addOptions(this, sampleTextureTypes(), u"optTexture_"_s, typePlace);
    addAnswerKeys(u"Click to view the selected texture."_s, u"Click to keep the present texture."_s);
}

void frm_SelectTexture::prepare() {
    check(*seasons_, sampleSeasons(), session().modal.selectedSeason);
    // The page begins with a city, and so does the dialog.
    check(*types_, sampleTextureTypes(), session().modal.selectedTextureType);
    seasons_->checkedButton()->setFocus();
}

void frm_SelectTexture::confirm() {
    ModalState& modal = session().modal;
    modal.selectedSeason = checkedKey(*seasons_, sampleSeasons());
    modal.selectedTextureType = checkedKey(*types_, sampleTextureTypes());
    modal.sampleConfirmed = true;
}

} // namespace morvane
