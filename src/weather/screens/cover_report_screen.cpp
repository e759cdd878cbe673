#include "weather/screens/cover_report_screen.h"

#include "core/numbers.h"
#include "core/session.h"
#include "ui/controls/description_edit.h"
#include "ui/controls/labels.h"
#include "weather/cover_choice.h"
#include "weather/weather_state.h"

#include <QKeyEvent>

namespace morvane {

namespace {

constexpr int left = 26, paperWidth = 348, coverLeft = left + 100, coverTop = 182;

} // namespace

frm_CC_From_Metar_String::frm_CC_From_Metar_String(Shell& shell)
    : CoverDialog(shell, u"frm_CC_From_Metar_String"_s, messageLook,
                  u"Enter full METAR String for processing"_s),
      txtMetarString_(new DescriptionEdit(this)),
      caption_(makeLabel(this, u"Average Cloud:"_s, {left, coverTop, coverLeft - left, CoverLabel::side},
                         TextRole::fieldCaption)),
      cover_(*this, {u"picCloudCover"_s, u"lblCloudCover"_s}, {coverLeft, coverTop},
             left + paperWidth - coverLeft - CoverLabel::side - 10) {
    txtMetarString_->setObjectName(u"txtMetarString"_s);
    txtMetarString_->setAccessibleName(u"METAR"_s);
    txtMetarString_->setGeometry(left, 86, paperWidth, 88);
    connect(txtMetarString_, &QPlainTextEdit::textChanged, this, [this] {
        session().state<WeatherState>().MetarStringInput = trimmedBlanks(txtMetarString_->toPlainText());
    });
    addButton({ButtonFamily::LargeButton,
               u"btn_MetarProcess"_s,
               u"process metar string"_s,
               u"btn_MetarProcess"_s,
               u"Click to process the METAR."_s,
               {20, height() - 58},
               u"Process\nMETAR"_s});
    addAnswerKeys(coverOkTip, coverCancelTip);
}

void frm_CC_From_Metar_String::prepare() {
    txtMetarString_->clear();
    caption_->hide();
    cover_.clear();
    setFirstFocus(txtMetarString_);
}

void frm_CC_From_Metar_String::processMetarString() {
    // A report that was pasted over several lines is one.
    const QString report = session().state<WeatherState>().MetarStringInput.simplified();
    const std::int16_t cloudClass = morvane::processMetarString(session(), report);
    session().state<CoverChoice>().cloudClass = cloudClass;
    caption_->setVisible(cloudClass != 0);
    if (cloudClass != 0)
        cover_.showCover(cloudClass);
    else
        cover_.clear();
}

void frm_CC_From_Metar_String::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && txtMetarString_->hasFocus())
        processMetarString();
    else
        CoverDialog::keyPressEvent(event);
}

} // namespace morvane
