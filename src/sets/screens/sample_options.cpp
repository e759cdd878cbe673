#include "sets/screens/sample_options.h"

#include "core/literals.h"
#include "ui/controls/labels.h"

#include <QButtonGroup>
#include <QRadioButton>

namespace morvane {

QButtonGroup* addSampleOptions(QWidget* parent, const SampleChoices& choices, const QString& namePrefix,
                               QRect (*place)(int)) {
    auto* group = new QButtonGroup(parent);
    for (int index = 0; const SampleChoice& choice : choices) {
        // A single "&" would mark a letter for the keyboard.
        auto* option = new QRadioButton(QString(choice.caption).replace(u"&"_s, u"&&"_s), parent);
        option->setObjectName(namePrefix + choice.key);
        option->setAccessibleName(choice.caption);
        option->setFont(fontOf(TextRole::longHelp));
        option->setGeometry(place(index));
        group->addButton(option, index++);
    }
    return group;
}

void checkSample(const QButtonGroup& group, const SampleChoices& choices, const QString& key) {
    const std::size_t index = indexOfSample(choices, key);
    group.button(index < choices.size() ? static_cast<int>(index) : 0)->setChecked(true);
}

const QString& checkedSample(const QButtonGroup& group, const SampleChoices& choices) {
    return choices[static_cast<std::size_t>(group.checkedId())].key;
}

} // namespace morvane
