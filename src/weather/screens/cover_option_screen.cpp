#include "weather/screens/cover_option_screen.h"

#include "core/session.h"
#include "sets/cloud_cover.h"
#include "ui/controls/labels.h"
#include "ui/controls/option_picture.h"
#include "ui/skin.h"
#include "weather/cover_choice.h"
#include "weather/screens/cover_label.h"

#include <QButtonGroup>
#include <QRadioButton>

namespace morvane {

namespace {

constexpr int rows = 3, scattered = 2;

/// Two columns.
QPoint placeOf(int index) {
    return {26 + 176 * (index / rows), 82 + 48 * (index % rows)};
}

} // namespace

frm_CC_From_Option::frm_CC_From_Option(Shell& shell)
    : CoverDialog(shell, u"frm_CC_From_Option"_s, messageLook, u"Select Average Cloud Cover"_s),
      optCloudCover_(new QButtonGroup(this)) {
    for (int index = 0;
         const QString& caption : {u"Skies Clear"_s, u"Few "_s, u"Scattered"_s, u"Broken"_s, u"Overcast"_s}) {
        auto* option = new QRadioButton(caption, this);
        option->setObjectName(u"optCloudCover%1"_s.arg(index));
        option->setAccessibleName(caption);
        option->setFont(fontOf(TextRole::body));
        option->setGeometry(placeOf(index).x() + CoverLabel::side + 10, placeOf(index).y() + 10, 110, 24);
        new OptionPicture(*option, skin(), coverOfClass(index + 1).picture,
                          {placeOf(index), QSize(CoverLabel::side, CoverLabel::side)});
        optCloudCover_->addButton(option, index++);
    }
    connect(optCloudCover_, &QButtonGroup::idToggled, this, [this](int index, bool isSet) {
        if (isSet) session().state<CoverChoice>().cloudClass = static_cast<std::int16_t>(index + 1);
    });
    addAnswerKeys(coverOkTip, coverCancelTip);
}

void frm_CC_From_Option::prepare() {
    optCloudCover_->button(scattered)->setChecked(true);
    setFirstFocus(optCloudCover_->button(scattered));
    session().state<CoverChoice>().cloudClass = scattered + 1;
}

} // namespace morvane
