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

} // namespace morvane
