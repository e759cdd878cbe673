#include "weather/metar_tokens.h"

#include <algorithm>

namespace morvane {

namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Keeps the length whatever the letters are, which QString::toLower does not: both views of a token are cut
/// at the same places.
QString lowered(QStringView text) {
    QString lower = text.toString();
    for (QChar& c : lower)
        if (c >= u'A' && c <= u'Z') c = QChar(c.unicode() + (u'a' - u'A'));
    return lower;
}

bool opensTrendOrRemark(const MetarToken& token) {
    return token.lower == u"tempo" || token.lower == u"rmk" || token.lower == u"nosig";
}

bool endsGroups(const MetarToken& token) {
    return opensTrendOrRemark(token) || token.lower.startsWith(u'q');
}

} // namespace

MetarTokens::MetarTokens(QStringView report) : lower_(lowered(report)) {
    const QStringView lower = lower_;
    qsizetype start = 0;
    for (qsizetype blank = report.indexOf(u' '); blank >= 0; blank = report.indexOf(u' ', start)) {
        append(report.mid(start, blank - start), lower.mid(start, blank - start));
        start = blank + 1;
    }
    append(report.mid(start), lower.mid(start));
    findEnds();
}

void MetarTokens::append(QStringView text, QStringView lower) {
    const bool hasDigit = std::any_of(text.begin(), text.end(), isDigit);
    tokens_.append({text, lower, lower.startsWith(u"auto"), hasDigit});
}

void MetarTokens::findEnds() {
    const auto first = tokens_.cbegin();
    groupsEnd_ = std::find_if(first + 1, tokens_.cend(), endsGroups) - first;
    pressureEnd_ = std::find_if(first, tokens_.cend(), opensTrendOrRemark) - first;
}

} // namespace morvane
