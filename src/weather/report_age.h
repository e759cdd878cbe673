#pragma once

#include <QDateTime>
#include <QString>

namespace morvane {

class Session;

/// When a report of that day ("23") and time ("0153") was made: the last such moment that is not more than an
/// hour ahead of the clock, as a report names no month. In UTC; invalid for texts that are none.
QDateTime observationTime(const QString& day, const QString& time, const QDateTime& utc);

/// "611 reports, the youngest of 02:00Z 21 Nov, 64 minutes old", of the reports in memory: told by what they
/// say themselves, so that it is right after a restart, too.
QString reportAgeText(const Session& session);
/// Where the next reports come from: "Source: Active Sky", "Source: tgftp.nws.noaa.gov".
QString reportSourceText(const Session& session);

} // namespace morvane
