#include "sky/screens/base_sky_screen.h"

#include "core/numbers.h"
#include "core/session.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_tuning_state.h"
#include "ui/controls/labels.h"

#include <QLabel>
#include <QRadioButton>

namespace morvane {

frm_SelectBaseSky::frm_SelectBaseSky(Shell& shell)
    : DialogForm(shell, u"frm_SelectBaseSky"_s, messageLook, {}) {
    makeLabel(this, u"Select Base Sky Texture To Work From"_s, {26, 54, 348, 16}, TextRole::value)
        ->setObjectName(u"lblSkyBaseSelect"_s);
    for (std::size_t index = 0; index < optBaseSky_.size(); ++index) {
        const QString& name = skyBaseSetOptions()[static_cast<qsizetype>(index)];
        auto* option = new QRadioButton(u"Use The %1 Type Base texture Set"_s.arg(name), this);
        option->setObjectName(u"optBaseSky%1"_s.arg(index));
        option->setFont(fontOf(TextRole::longHelp));
        option->setGeometry(26, 78 + 21 * static_cast<int>(index), 348, 20);
        connect(option, &QRadioButton::clicked, this,
                [this, name] { session().state<SkyTuningState>().baseSet = name; });
        optBaseSky_[index] = option;
    }
    addAnswerKeys(u"Click to answer Yes or to continue."_s, u"Click to answer No or to close window."_s);
}

void frm_SelectBaseSky::prepare() {
    const auto index = skyBaseSetOptions().indexOf(trimmedBlanks(session().state<SkyTuningState>().baseSet));
    if (index < 0) return;
    QRadioButton* option = optBaseSky_[static_cast<std::size_t>(index)];
    option->setChecked(true);
    setFirstFocus(option);
}

void frm_SelectBaseSky::confirm() {
    session().state<BaseSkyAnswer>().baseSkyConfirmed = true;
}

} // namespace morvane
