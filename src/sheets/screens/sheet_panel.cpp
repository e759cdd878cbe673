#include "sheets/screens/sheet_panel.h"

#include "sheets/screens/divided_picture.h"
#include "ui/controls/labels.h"

namespace morvane {

namespace {

constexpr int left = 652, across = 202, colourRows = 3, firstColour = 378, colourPitch = 20;

QRect inPanel(const QRect& inForm) {
    return inForm.translated(-SheetPanel::place.topLeft());
}

QString sizeText(const QSize& size) {
    return size.isEmpty() ? u"cannot be read"_s : u"%1 x %2"_s.arg(size.width()).arg(size.height());
}

} // namespace

SheetPanel::SheetPanel(QWidget* parent) : QWidget(parent), picture_(new DividedPicture(this)) {
    setGeometry(place);
    const auto add = [this](const QString& name, const QRect& inForm, TextRole role) {
        QLabel* label = makeLabel(this, {}, inPanel(inForm), role);
        label->setObjectName(name);
        return label;
    };
    lblBase_ = add(u"lblBase"_s, {left, 86, 100, 14}, TextRole::fieldCaption);
    lblOwn_ = add(u"lblOwn"_s, {left + across - 100, 86, 100, 14}, TextRole::fieldCaption);
    lblOwn_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    picture_->setObjectName(u"picTexture"_s);
    picture_->placePicture(inPanel({left + 1, 104, 200, 200}));
    lblTexture_ = add(u"lblTexture"_s, {left, 312, across, 17}, TextRole::value);
    lblPlace_ = add(u"lblPlace"_s, {left, 329, across, 17}, TextRole::longHelp);
    lblColours_ = add(u"lblColours"_s, {left, 357, across, 14}, TextRole::sectionHeading);
    makeHair(this, inPanel({left, 375, across, 1}));
    for (int i = 0; i < 2 * colourRows; ++i) {
        const int x = left + (i < colourRows ? 0 : 108), y = firstColour + i % colourRows * colourPitch;
        colours_.push_back({add(u"lblColour%1"_s.arg(i), {x, y, 94, 20}, TextRole::sliderName),
                            add(u"lblValue%1"_s.arg(i), {x, y, 94, 20}, TextRole::number)});
        // The smaller letters: "Brightness" and "default" stand side by side.
        colours_.back().name->setFont(fontOf(TextRole::longHelp));
        colours_.back().value->setFont(fontOf(TextRole::fieldCaption));
    }
    makeHair(this, inPanel({left, 444, across, 1}));
    makeLabel(this,
              u"Hold Space to see the base textures in all places. Double click shows one texture alone."_s,
              inPanel({left, 449, across, 48}), TextRole::longHelp);
}

void SheetPanel::showSheet(const Sheet& sheet) {
    lblBase_->setText(sheet.baseCaption);
    lblOwn_->setText(sheet.ownCaption);
    lblColours_->setText(sheet.colourHeading);
    lblTexture_->clear();
    lblPlace_->clear();
    picture_->setPair({});
    showColours(sheet);
}

/// Six short ones in two columns; names of sets are long, and stand below each other.
void SheetPanel::showColours(const Sheet& sheet) {
    const bool isWide = sheet.colours.size() <= colourRows;
    for (std::size_t i = 0; i < colours_.size(); ++i) {
        const auto& [name, value] = colours_[i];
        const bool isThere = i < sheet.colours.size();
        name->setText(isThere ? sheet.colours[i].first : QString());
        const QRect area = name->geometry();
        value->setGeometry(isWide ? QRect(area.left() + 46, area.top(), across - 46, area.height()) : area);
        const QString text = isThere ? sheet.colours[i].second : QString();
        value->setText(value->fontMetrics().elidedText(text, Qt::ElideRight, value->width()));
        value->setToolTip(isWide ? text : QString());
        name->setVisible(isThere);
        value->setVisible(isThere);
    }
}

void SheetPanel::showTexture(const Sheet& sheet, const SheetTexture& texture, const SheetPair& whole) {
    picture_->setPair(whole);
    lblTexture_->setText(texture.name);
    lblPlace_->setText(sheet.placeOf(texture) + u"; "_s + sizeText(whole.whole));
}

void SheetPanel::showBase(bool isWanted) {
    picture_->showBase(isWanted);
}

} // namespace morvane
