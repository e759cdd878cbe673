#include "ui/controls/labels.h"

#include "core/literals.h"
#include "ui/controls/palette.h"

#include <QLabel>
#include <algorithm>

namespace morvane {

namespace {

struct RoleStyle {
    TextRole role;
    int pixels;
    QFont::Weight weight;
    QRgb colour;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool wraps = false;
};

constexpr Qt::Alignment atTop = Qt::AlignLeft | Qt::AlignTop;
constexpr Qt::Alignment atRight = Qt::AlignRight | Qt::AlignVCenter;

constexpr RoleStyle roleStyles[] = {
    {TextRole::pageTitle, 16, QFont::Bold, palette::textBlue},
    {TextRole::messageTitle, 15, QFont::Bold, palette::signalRed},
    {TextRole::optionCaption, 13, QFont::Medium, palette::textBlue},
    {TextRole::body, 12, QFont::Normal, palette::textBlue, atTop, true},
    {TextRole::sliderName, 12, QFont::Normal, palette::textBlue},
    {TextRole::sliderValue, 12, QFont::Normal, palette::textBlue, atRight},
    {TextRole::value, 12, QFont::Medium, palette::textBlue},
    {TextRole::number, 12, QFont::Medium, palette::textBlue, atRight},
    {TextRole::total, 12, QFont::Bold, palette::textBlue, atRight},
    {TextRole::longHelp, 11, QFont::Normal, palette::textBlue, atTop, true},
    {TextRole::remark, 11, QFont::Normal, palette::textBlue, atRight},
    {TextRole::fieldCaption, 11, QFont::Medium, palette::textBlue},
    {TextRole::sectionHeading, 11, QFont::Bold, palette::textBlue},
    {TextRole::listHead, 11, QFont::Bold, palette::textBlue},
    {TextRole::darkTitle, 13, QFont::Medium, palette::textBright},
    {TextRole::darkBody, 12, QFont::Normal, palette::textQuiet, atTop, true},
    {TextRole::darkCaption, 12, QFont::Medium, palette::textBright},
    {TextRole::darkRemark, 11, QFont::Normal, palette::textQuiet, atRight},
    {TextRole::progressText, 12, QFont::Normal, palette::textBright, Qt::AlignLeft | Qt::AlignBottom, true},
    {TextRole::valueTip, 12, QFont::Medium, palette::textBright, Qt::AlignCenter},
};

const RoleStyle& styleOf(TextRole role) {
    return *std::ranges::find(roleStyles, role, &RoleStyle::role);
}

} // namespace

QFont fontOf(TextRole role) {
    const RoleStyle& style = styleOf(role);
    QFont font(u"Roboto"_s);
    font.setPixelSize(style.pixels);
    font.setHintingPreference(QFont::PreferNoHinting); // whole-pixel widths would cut words
    font.setWeight(style.weight);
    if (role == TextRole::sectionHeading) {
        font.setCapitalization(QFont::AllUppercase);
        font.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
    }
    return font;
}

QLabel* makeLabel(QWidget* parent, const QString& text, const QRect& place, TextRole role) {
    const RoleStyle& style = styleOf(role);
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(fontOf(role));
    label->setAlignment(style.alignment);
    label->setWordWrap(style.wraps);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextColour(*label, style.colour);
    label->setText(text);
    label->setGeometry(place);
    return label;
}

QWidget* makeHair(QWidget* parent, const QRect& place) {
    auto* hair = new QWidget(parent);
    QPalette colours;
    colours.setColor(QPalette::Window, QColor::fromRgb(palette::hair));
    hair->setPalette(colours);
    hair->setAutoFillBackground(true);
    hair->setGeometry(place);
    return hair;
}

void setTextColour(QLabel& label, QRgb colour) {
    QPalette colours = label.palette();
    colours.setColor(QPalette::WindowText, QColor::fromRgb(colour));
    label.setPalette(colours);
}

} // namespace morvane
