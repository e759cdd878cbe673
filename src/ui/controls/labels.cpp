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
    Ink ink;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool wraps = false;
};

constexpr Qt::Alignment atTop = Qt::AlignLeft | Qt::AlignTop;
constexpr Qt::Alignment atRight = Qt::AlignRight | Qt::AlignVCenter;

constexpr RoleStyle roleStyles[] = {
    {TextRole::pageTitle, 16, QFont::Bold, Ink::text},
    {TextRole::messageTitle, 15, QFont::Bold, Ink::signalRed},
    {TextRole::optionCaption, 13, QFont::Medium, Ink::text},
    {TextRole::body, 12, QFont::Normal, Ink::text, atTop, true},
    {TextRole::sliderName, 12, QFont::Normal, Ink::text},
    {TextRole::sliderValue, 12, QFont::Normal, Ink::text, atRight},
    {TextRole::value, 12, QFont::Medium, Ink::text},
    {TextRole::number, 12, QFont::Medium, Ink::text, atRight},
    {TextRole::total, 12, QFont::Bold, Ink::text, atRight},
    {TextRole::longHelp, 11, QFont::Normal, Ink::text, atTop, true},
    {TextRole::remark, 11, QFont::Normal, Ink::text, atRight},
    {TextRole::fieldCaption, 11, QFont::Medium, Ink::text},
    {TextRole::sectionHeading, 11, QFont::Bold, Ink::text},
    {TextRole::listHead, 11, QFont::Bold, Ink::text},
    {TextRole::darkTitle, 13, QFont::Medium, Ink::bright},
    {TextRole::darkBody, 12, QFont::Normal, Ink::quiet, atTop, true},
    {TextRole::darkCaption, 12, QFont::Medium, Ink::bright},
    {TextRole::darkRemark, 11, QFont::Normal, Ink::quiet, atRight},
    {TextRole::progressText, 12, QFont::Normal, Ink::bright, Qt::AlignLeft | Qt::AlignBottom, true},
    {TextRole::valueTip, 12, QFont::Medium, Ink::bright, Qt::AlignCenter},
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
    setInk(*label, style.ink);
    label->setText(text);
    label->setGeometry(place);
    return label;
}

QWidget* makeRule(QWidget* parent, const QRect& place) {
    QWidget* rule = makeHair(parent, place);
    rule->setBackgroundRole(QPalette::Dark);
    return rule;
}

QWidget* makeHair(QWidget* parent, const QRect& place) {
    auto* hair = new QWidget(parent);
    hair->setBackgroundRole(QPalette::Midlight);
    hair->setAutoFillBackground(true);
    hair->setGeometry(place);
    return hair;
}

void setInk(QLabel& label, Ink ink) {
    switch (ink) {
    case Ink::text:
        return label.setForegroundRole(QPalette::WindowText);
    case Ink::signalRed:
        return label.setForegroundRole(QPalette::BrightText);
    case Ink::quietTitle:
        return label.setForegroundRole(QPalette::LinkVisited);
    case Ink::bright:
    case Ink::quiet:
        break;
    }
    QPalette colours = label.palette();
    colours.setColor(QPalette::WindowText,
                     QColor::fromRgb(ink == Ink::bright ? palette::textBright : palette::textQuiet));
    label.setPalette(colours);
}

} // namespace morvane
