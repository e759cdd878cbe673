#include "ground/screens/ground_colour_screen.h"

#include "ground/cloud_cover.h"
#include "ui/buffer_picture.h"
#include "ui/controls/labels.h"
#include "ui/controls/paper_style.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/slider_row.h"
#include "ui/skin.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <algorithm>

namespace morvane {

namespace {

constexpr int keyRow = 398, coverColumn = 510, leftSliders = 14, rightSliders = 306;

QString captionOf(const std::vector<SampleChoice>& choices, const QString& key) {
    const auto found = std::ranges::find(choices, key, &SampleChoice::key);
    return found == choices.end() ? QString() : found->caption;
}

} // namespace

frm_GroundColorize::frm_GroundColorize(Shell& shell)
    : PageForm(shell, u"frm_GroundColorize"_s, u"page_colour.bmp"_s, Paper::Title::compact),
      tuning_(session()) {
    addPictures();
    addCoverOptions();
    addSliders();
    addKeys();
}

void frm_GroundColorize::addPictures() {
    const auto add = [this](const QString& name, const QString& caption, int left) {
        makeLabel(paper(), caption, {left, 39, 240, 14}, TextRole::fieldCaption);
        auto* picture = new PictureFrame(paper());
        picture->setObjectName(name);
        picture->setAccessibleName(caption);
        picture->placePicture({left, 55, 240, 240});
        return picture;
    };
    picImage_ = add(u"picImage"_s, u"Sample texture"_s, 14);
    picDemo_ = add(u"picDemo"_s, u"With these settings"_s, 262);
    lblSample_ = makeLabel(paper(), u"Cities, Summer"_s, {14, 300, 490, 15}, TextRole::body);
    lblSample_->setObjectName(u"lblSample"_s);
}

void frm_GroundColorize::addCoverOptions() {
    for (int index = 0; index < cloudCoverCount; ++index) {
        const CloudCover& cover = cloudCovers()[index];
        const int top = 60 + 40 * index;
        auto* option = new QRadioButton(QString(cover.word).replace(u' ', u'\n'), paper());
        option->setObjectName(u"optCloudCover"_s + QString::number(index));
        option->setAccessibleName(cover.word);
        option->setGeometry(coverColumn, top - 8, 63, 32);
        setCaptionOffset(*option, 18);
        connect(option, &QRadioButton::toggled, this, [this, index](bool isSet) {
            if (isSet) optCloudCover(index);
        });
        optCloudCover_[static_cast<std::size_t>(index)] = option;
        auto* disc = new QLabel(paper());
        disc->setPixmap(skin().picture(u"cover_"_s + cover.tag.mid(2, 3).toLower() + u".bmp"_s));
        disc->setGeometry(574, top + 2, 12, 12);
    }
    optCloudCover_[0]->setChecked(true);
    auto* cmdResetAll = new QPushButton(u"Reset all"_s, paper());
    cmdResetAll->setObjectName(u"cmdResetAll"_s);
    cmdResetAll->setFont(fontOf(TextRole::value));
    cmdResetAll->setAccessibleName(u"Reset all"_s);
    cmdResetAll->setGeometry(coverColumn, 272, 74, 24);
    connect(cmdResetAll, &QPushButton::clicked, this, [this] { setSliders({}); });
}

void frm_GroundColorize::addSliders() {
    const SliderRowSetup rows[] = {
        {u"vcSaturation"_s, u"lblSat"_s, u"Saturation"_s, {leftSliders, 319}},
        {u"vcRed"_s, u"lblRed"_s, u"Red"_s, {leftSliders, 342}},
        {u"vcGreen"_s, u"lblGreen"_s, u"Green"_s, {leftSliders, 365}},
        {u"vcBlue"_s, u"lblBlue"_s, u"Blue"_s, {rightSliders, 319}},
        {u"vcBright"_s, u"lblBright"_s, u"Brightness"_s, {rightSliders, 342}},
        {u"vcContrast"_s, u"lblContrast"_s, u"Contrast"_s, {rightSliders, 365}},
    };
    std::ranges::transform(rows, sliders_.begin(), [this](const SliderRowSetup& setup) {
        auto* row = new SliderRow(setup, paper());
        connect(row, &SliderRow::changed, this, &frm_GroundColorize::showColourPreview);
        return row;
    });
}

void frm_GroundColorize::addKeys() {
    const auto add = [this](const QString& name, const QString& key, const QString& picture,
                            const QString& tip, const QString& caption, int left) {
        addButton({ButtonFamily::LargeButton, name, key, picture, tip, {left, keyRow}, caption}, paper());
    };
    add(u"btn_OpenTexture"_s, u"open texture"_s, u"btn_Load_Image"_s, u"Click open a texture type to view."_s,
        u"Open Texture"_s, 96);
    add(u"btn_Random"_s, u"random advanced"_s, u"btn_Random"_s,
        u"Click for MV to select random color settings."_s, u"Random"_s, 234);
    add(u"btn_AddFavorite"_s, u"add fav"_s, u"btn_Accept"_s,
        u"Click to add the seleted texture set setting."_s, u"Add Favorite"_s, 372);
}

void frm_GroundColorize::format() {
    markKey(u"ground"_s);
    paper()->setTitle(u"icon_Ground.bmp"_s, u"Ground Color"_s);
    if (!tuning_.tuningSourceDib().isCreated()) tuning_.openDefaultSample();
    // The list page had a set of its own in hand; a favourite is saved with these colours.
    showColourPreview();
}

/// Neither the sliders nor the preview change.
void frm_GroundColorize::optCloudCover(int index) {
    tuning_.optCloudCover(index);
    for (QRadioButton* option : optCloudCover_) {
        QFont font = fontOf(TextRole::longHelp);
        font.setBold(option->isChecked());
        option->setFont(font);
    }
}

SliderValues frm_GroundColorize::sliderValues() const {
    SliderValues values{};
    std::ranges::transform(sliders_, values.begin(), &SliderRow::value);
    return values;
}

void frm_GroundColorize::setSliders(const SliderValues& values) {
    {
        const QScopedValueRollback setting(isSettingSliders_, true);
        for (std::size_t i = 0; i < sliders_.size(); ++i)
            sliders_[i]->setValue(values[i]);
    }
    showColourPreview();
}

void frm_GroundColorize::showColourPreview() {
    if (isSettingSliders_) return;
    tuning_.showColourPreview(sliderValues());
    picImage_->setPicture(pictureOf(tuning_.tuningSourceDib()));
    picDemo_->setPicture(pictureOf(tuning_.tuningResultDib()));
}

void frm_GroundColorize::openTexture() {
    if (tuning_.openSample()) {
        const ModalState& modal = session().modal;
        lblSample_->setText(captionOf(sampleTextureTypes(), modal.selectedTextureType) + u", "_s +
                            captionOf(sampleSeasons(), modal.selectedSeason));
    }
    showColourPreview();
}

void frm_GroundColorize::randomGroundValues() {
    setSliders(tuning_.randomGroundValues());
}

void frm_GroundColorize::addFavourite() {
    tuning_.newFavTexture();
}

} // namespace morvane
