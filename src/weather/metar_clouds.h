#pragma once

#include <QString>
#include <QStringView>
#include <bitset>
#include <cstdint>

namespace morvane {

/// One kind of cloud group.
struct CloudLayer {
    QStringView word;            ///< in small letters
    bool isWholeToken = false;   ///< the token is the word; else it begins with it
    std::int16_t cloudClass = 0; ///< 1 to 6, for MetarMaxCloud
    QStringView text;            ///< for MetarCloud
    bool takesMarks = true;      ///< a cumulus mark at the token's end counts, even when the layer does not
};

/// The kind of a token in small letters, nullptr when it is no cloud group.
const CloudLayer* findCloudLayer(QStringView token);

/// Cumulus marks of all layers of a report.
class CumulusMarks {
public:
    /// Looks at the end of a cloud token in small letters.
    void note(QStringView token);
    /// What is appended to the cloud text, in one fixed order whatever the order of the layers.
    QString text() const;

private:
    std::bitset<3> seen_;
};

} // namespace morvane
