#include "sets/screens/colour_page.h"

#include "sets/cloud_cover.h"
#include "ui/controls/labels.h"
#include "ui/controls/option_picture.h"
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

constexpr int keyRow = 398, optionColumn = 510;

struct SliderPlace {
    const char16_t* caption;
    QPoint place;
};

constexpr SliderPlace sliderPlaces[] = {{u"Saturation", {14, 319}},  {u"Red", {14, 342}},
                                        {u"Green", {14, 365}},       {u"Blue", {306, 319}},
                                        {u"Brightness", {306, 342}}, {u"Contrast", {306, 365}}};

} // namespace

std::vector<ColourPageSetup::Option> coverOptions() {
    std::vector<ColourPageSetup::Option> options;
    for (int index = 0; index < cloudCoverCount; ++index) {
        const CloudCover& cover = cloudCovers()[index];
        options.push_back({cover.word, u"cover_"_s + cover.tag.mid(2, 3).toLower() + u".bmp"_s});
    }
    return options;
}

ColourPage::ColourPage(Shell& shell, const QString& name, const ColourPageSetup& setup)
    : PageForm(shell, name, u"page_colour.bmp"_s, Paper::Title::compact),
      subject_(makeLabel(paper(), {}, {14, 300, 490, 18}, TextRole::body)) {
    subject_->setObjectName(setup.subjectName);
    addOptions(setup);
    addResetAll(setup.resetAllName);
    addSliders(setup);
    addKeys(setup);
}

void ColourPage::placePicture(PictureFrame& picture, const QString& name, const QString& caption, int left) {
    makeLabel(paper(), caption, {left, 39, 240, 14}, TextRole::fieldCaption);
    picture.setObjectName(name);
    picture.setAccessibleName(caption);
    picture.placePicture({left, 55, 240, 240});
}

void ColourPage::addOptions(const ColourPageSetup& setup) {
    for (int index = 0; const ColourPageSetup::Option& option : setup.options) {
        QRadioButton* button = addOption(option, 60 + 40 * index);
        button->setObjectName(setup.optionName + QString::number(index));
        connect(button, &QRadioButton::clicked, this, [this, index] {
            markChoice();
            chooseOption(index);
        });
        options_.push_back(button);
        ++index;
    }
}

QRadioButton* ColourPage::addOption(const ColourPageSetup::Option& option, int top) {
    auto* button = new QRadioButton(QString(option.caption).replace(u' ', u'\n'), paper());
    button->setAccessibleName(option.caption);
    button->setGeometry(optionColumn, top - 8, 63, 32);
    button->setFont(fontOf(TextRole::longHelp));
    setCaptionOffset(*button, 18);
    if (option.disc.isEmpty()) return button;
    new OptionPicture(*button, skin(), option.disc, {574, top + 2, 12, 12});
    return button;
}

void ColourPage::addResetAll(const QString& name) {
    cmdResetAll_ = new QPushButton(u"Reset all"_s, paper());
    cmdResetAll_->setObjectName(name);
    cmdResetAll_->setFont(fontOf(TextRole::value));
    cmdResetAll_->setGeometry(optionColumn, 272, 74, 24);
    connect(cmdResetAll_, &QPushButton::clicked, this, [this] { setSliders({}); });
}

void ColourPage::addSliders(const ColourPageSetup& setup) {
    for (std::size_t i = 0; i < sliders_.size(); ++i) {
        const SliderRowSetup row{setup.sliders[i].slider, setup.sliders[i].label,
                                 QString::fromUtf16(sliderPlaces[i].caption), sliderPlaces[i].place};
        sliders_[i] = new SliderRow(row, paper());
        connect(sliders_[i], &SliderRow::changed, this, [this] {
            if (!isSettingSliders_) showPreview();
        });
    }
}

void ColourPage::addKeys(const ColourPageSetup& setup) {
    for (int left = 96; const ColourPageSetup::Key& key : setup.keys) {
        addButton(
            {ButtonFamily::LargeButton, key.name, key.key, key.picture, key.tip, {left, keyRow}, key.caption},
            paper());
        left += 138;
    }
}

void ColourPage::comeBeforeSliders(QWidget& control) {
    setTabOrder(cmdResetAll_, &control);
}

void ColourPage::checkOption(int index) {
    options_.at(static_cast<std::size_t>(index))->click();
}

void ColourPage::markChoice() {
    for (QRadioButton* option : options_) {
        QFont font = fontOf(TextRole::longHelp);
        font.setBold(option->isChecked());
        option->setFont(font);
    }
}

SliderValues ColourPage::sliderValues() const {
    SliderValues values{};
    std::ranges::transform(sliders_, values.begin(), &SliderRow::value);
    return values;
}

void ColourPage::putSliders(const SliderValues& values, QString (*label)(int)) {
    const QScopedValueRollback setting(isSettingSliders_, true);
    for (std::size_t i = 0; i < sliders_.size(); ++i)
        sliders_[i]->setValue(values[i], label(values[i]));
}

void ColourPage::setSliders(const SliderValues& values) {
    putSliders(values);
    showPreview();
}

void ColourPage::showSubject(const QString& text) {
    subject_->setText(text);
}

} // namespace morvane
