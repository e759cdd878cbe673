#include "sets/sample_choice.h"

#include <algorithm>

namespace morvane {

std::size_t indexOfSample(const SampleChoices& choices, const QString& key) {
    return static_cast<std::size_t>(std::ranges::find(choices, key, &SampleChoice::key) - choices.begin());
}

QString captionOf(const SampleChoices& choices, const QString& key) {
    const std::size_t index = indexOfSample(choices, key);
    return index < choices.size() ? choices[index].caption : QString();
}

} // namespace morvane
