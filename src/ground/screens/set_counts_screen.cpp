#include "ground/screens/set_counts_screen.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "core/session.h"
#include "ui/controls/labels.h"

#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>

namespace morvane {

namespace {

struct BoxSetup {
    const char16_t* name;
    const char16_t* caption;
};

constexpr BoxSetup boxSetups[] = {
    {u"txtNoClouds", u"Clear Skies (SKC)"},
    {u"txtLightClouds", u"Mostly Clear (FEW)"},
    {u"txtMediumClouds", u"Partly Cloudy  (SCT)"},
    {u"txtLightOvcClouds", u"Mostly Cloudy (BKN)"},
    {u"txtOvercastClouds", u"Overcast Cloud Cover (OVC)"},
};

bool isDropped(const QString& typed) {
    const bool isControl = typed.isEmpty() || typed[0] == u'\b' || typed[0] == u'\t' || typed[0] == u'\x7f';
    return !isControl && typed != u"." && !isDigits(typed);
}

std::int16_t countIn(const QString& text) {
    return text.isEmpty() ? std::int16_t(0) : roundToInteger(textToNumber(text));
}

} // namespace

void CountEdit::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        return event->ignore(); // the dialog's
    default:
        if (!isDropped(event->text())) QLineEdit::keyPressEvent(event);
    }
}

void CountEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    selectAll();
}

void CountEdit::focusOutEvent(QFocusEvent* event) {
    if (text().isEmpty()) setText(u"0"_s);
    QLineEdit::focusOutEvent(event);
}

frm_TsRequired::frm_TsRequired(Shell& shell)
    : DialogForm(shell, u"frm_TsRequired"_s, messageLook, u"Select Texture Quantities"_s) {
    for (std::size_t index = 0; index < boxes_.size(); ++index) {
        const int top = 88 + 27 * static_cast<int>(index);
        const QString caption = QString::fromUtf16(boxSetups[index].caption);
        makeLabel(this, caption, {26, top, 220, 22}, TextRole::value);
        auto* box = new CountEdit(this);
        box->setObjectName(QString::fromUtf16(boxSetups[index].name));
        box->setAccessibleName(caption);
        box->setFont(fontOf(TextRole::value));
        box->setGeometry(284, top, 90, 22);
        connect(box, &CountEdit::textChanged, this, [this, index] { storeCount(index); });
        boxes_[index] = box;
    }
    addAnswerKeys(u"Click to create the texture sets."_s, u"Click to cancel the creation."_s);
}

void frm_TsRequired::prepare() {
    for (std::size_t index = 0; index < boxes_.size(); ++index)
        boxes_[index]->setText(QString::number(session().modal.setCounts[index]));
    boxes_[0]->setFocus();
}

void frm_TsRequired::confirm() {
    session().modal.setCountsConfirmed = true;
}

/// What is no count ("1.2.3", or more than 16 bits) is told, and the box goes back to the last one that was.
void frm_TsRequired::storeCount(std::size_t index) {
    std::int16_t& count = session().modal.setCounts[index];
    if (reportFailures(session().user, {}, [&] { count = countIn(boxes_[index]->text()); })) return;
    const QSignalBlocker quiet(boxes_[index]);
    boxes_[index]->setText(QString::number(count));
}

} // namespace morvane
