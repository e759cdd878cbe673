#include "ui/count_edit.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "core/session.h"
#include "ui/form.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QValidator>
#include <algorithm>

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
    {u"txtOvercastClouds", nullptr},
};

bool isDropped(QChar letter) {
    return letter != u'.' && !isDigits(QStringView(&letter, 1));
}

/// Takes out of a text what is no part of a count, from wherever it came.
class CountLetters : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& text, int& cursor) const override {
        cursor -= static_cast<int>(std::count_if(text.begin(), text.begin() + cursor, isDropped));
        text.removeIf(isDropped);
        return Acceptable;
    }
};

} // namespace

CountEdit::CountEdit(Form& form, std::int16_t& count, std::int16_t whenEmpty)
    : QLineEdit(&form), form_(form), count_(count), whenEmpty_(whenEmpty) {
    setFont(fontOf(TextRole::value));
    setValidator(new CountLetters(this));
    connect(this, &CountEdit::textChanged, this, &CountEdit::storeCount);
}

void CountEdit::showCount() {
    setText(QString::number(count_));
}

void CountEdit::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        return event->ignore(); // the dialog's
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void CountEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    selectAll();
}

void CountEdit::focusOutEvent(QFocusEvent* event) {
    if (text().isEmpty()) setText(QString::number(whenEmpty_));
    QLineEdit::focusOutEvent(event);
}

/// The press took back what the focus had selected. A part that the mouse was drawn over stays selected.
void CountEdit::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && !hasSelectedText()) selectAll();
}

void CountEdit::storeCount() {
    const auto store = [&] { count_ = text().isEmpty() ? whenEmpty_ : roundToInteger(textToNumber(text())); };
    if (reportFailures(form_.session().user, {}, store)) return;
    const QSignalBlocker quiet(this);
    showCount();
}

std::array<CountEdit*, 5> addCountBoxes(Form& form, std::array<std::int16_t, 5>& counts,
                                        const CountColumn& column) {
    std::array<CountEdit*, 5> boxes{};
    for (std::size_t index = 0; index < boxes.size(); ++index) {
        const auto& [name, usual] = boxSetups[index];
        const QString caption = usual ? QString::fromUtf16(usual) : column.overcastCaption;
        const int drop = column.pitch * static_cast<int>(index);
        makeLabel(&form, caption, column.firstCaption.translated(0, drop), column.captionRole);
        boxes[index] = new CountEdit(form, counts[index]);
        boxes[index]->setObjectName(QString::fromUtf16(name));
        boxes[index]->setAccessibleName(caption);
        boxes[index]->setGeometry(column.firstBox.translated(0, drop));
    }
    return boxes;
}

} // namespace morvane
