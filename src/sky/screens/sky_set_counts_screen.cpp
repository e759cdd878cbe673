#include "sky/screens/sky_set_counts_screen.h"

#include "core/session.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"

#include <QCheckBox>
#include <QLabel>
#include <algorithm>

namespace morvane {

namespace {

constexpr int left = 26, countsLeft = 176, headTop = 51, firstRow = 66;

const CountColumn countColumn{
    {countsLeft, firstRow, 130, 22}, {314, firstRow, 60, 22}, 25, TextRole::value, u"Overcast (OVC)"_s};

} // namespace

frm_SelectSkyTexture::frm_SelectSkyTexture(Shell& shell)
    : DialogForm(shell, u"frm_SelectSkyTexture"_s, messageLook, {}) {
    makeLabel(this, u"Select Texture Group"_s, {left, headTop, 140, 14}, TextRole::fieldCaption);
    makeLabel(this, u"Cloud Cover Quantity"_s, {countsLeft, headTop, 198, 14}, TextRole::fieldCaption);
    // The keys go from one control to the next in the order in which they are made.
    addBaseSets();
    boxes_ = addCountBoxes(*this, session().state<SkySetCounts>().skySetCounts, countColumn);
    makeLabel(this,
              u"Please be aware Overcast are special textures and only used for overcast conditions.and will "
              "therefore have their own count"_s,
              {left, 192, 348, 32}, TextRole::longHelp)
        ->setObjectName(u"lblOvercastDesc"_s);
    addAnswerKeys(u"Click to answer Yes or to continue."_s, u"Click to answer No or to close window."_s);
}

void frm_SelectSkyTexture::addBaseSets() {
    for (std::size_t index = 0; index < chkStsGroup_.size(); ++index) {
        auto* box = new QCheckBox(skyBaseSetBoxes()[static_cast<qsizetype>(index)], this);
        box->setObjectName(u"chkStsGroup%1"_s.arg(index));
        box->setFont(fontOf(TextRole::longHelp));
        box->setGeometry(left, firstRow + 18 * static_cast<int>(index), 140, 16);
        connect(box, &QCheckBox::clicked, this, &frm_SelectSkyTexture::storeBaseSets);
        chkStsGroup_[index] = box;
    }
}

void frm_SelectSkyTexture::prepare() {
    for (QCheckBox* box : chkStsGroup_)
        box->setChecked(session().state<SkySetCounts>().skyBaseSets.contains(box->text()));
    for (CountEdit* box : boxes_)
        box->showCount();
    enableCounts();
    setFirstFocus(chkStsGroup_[0]);
}

void frm_SelectSkyTexture::confirm() {
    session().state<SkySetCounts>().skySetsConfirmed = true;
}

void frm_SelectSkyTexture::storeBaseSets() {
    QStringList& names = session().state<SkySetCounts>().skyBaseSets;
    names.clear();
    for (const QCheckBox* box : chkStsGroup_)
        if (box->isChecked()) names << box->text();
    enableCounts();
}

void frm_SelectSkyTexture::enableCounts() {
    const QStringList& names = session().state<SkySetCounts>().skyBaseSets;
    const bool hasOvercast = names.contains(overcastBaseSet);
    boxes_.back()->setEnabled(hasOvercast);
    const bool hasOther = names.size() > (hasOvercast ? 1 : 0);
    std::for_each(boxes_.begin(), boxes_.end() - 1, [=](CountEdit* box) { box->setEnabled(hasOther); });
}

} // namespace morvane
