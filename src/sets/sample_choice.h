#pragma once

#include <QString>
#include <vector>

namespace morvane {

/// An entry of the sample dialog: what is stored of the choice and what the user reads.
struct SampleChoice {
    QString key;
    QString caption;
};

using SampleChoices = std::vector<SampleChoice>;

/// Position of the choice of that key; behind the last when there is none.
std::size_t indexOfSample(const SampleChoices& choices, const QString& key);
/// Its caption; empty when there is none.
QString captionOf(const SampleChoices& choices, const QString& key);

} // namespace morvane
