#pragma once

#include "weather/metar_tokens.h"

#include <QString>

namespace morvane {

/// Reads the characters of wind tokens. Direction and speed stand together in one text, which the decoder
/// cuts: "24015", "VRB03", "///10".
class WindReader {
public:
    /// Adds a token's characters. A token of nothing but slashes leaves the text empty.
    void read(const MetarToken& token);

    const QString& text() const { return text_; }
    bool gusting() const { return gusting_; }
    const QString& gust() const { return gust_; }

private:
    /// Both take the index of their opening character; the gust gives the index behind its last digit.
    qsizetype readGust(const MetarToken& token, qsizetype start);
    void readSlashes(const MetarToken& token, qsizetype start);

    QString text_;
    bool gusting_ = false;
    QString gust_;
};

} // namespace morvane
