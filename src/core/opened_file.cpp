#include "core/opened_file.h"

#include "core/literals.h"

#include <algorithm>

namespace morvane {

const QStringList& flightPlanEndings() {
    static const QStringList endings{u".pln"_s, u".lnmpln"_s};
    return endings;
}

OpenedFile openedFile(const QString& name) {
    const auto endsWith = [&](const QString& ending) { return name.endsWith(ending, Qt::CaseInsensitive); };
    if (std::ranges::any_of(flightPlanEndings(), endsWith)) return OpenedFile::flightPlan;
    return endsWith(u".morvaneset"_s) ? OpenedFile::sharedSet : OpenedFile::none;
}

} // namespace morvane
