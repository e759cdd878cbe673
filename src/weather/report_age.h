#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace morvane {

class Session;

/// When a report of that day ("23") and time ("0153") was made: the last such moment that is not more than an
/// hour ahead of the clock, as a report names no month. In UTC; invalid for texts that are none.
QDateTime observationTime(const QString& day, const QString& time, const QDateTime& utc);

/// Minutes since the youngest observation of the stored reports, 0 for one that is ahead of the clock;
/// nothing without a report that has a time.
std::optional<qint64> youngestReportAge(const Session& session);
/// Minutes since an observation, as above; nothing for texts that are no time.
std::optional<qint64> observationAge(const Session& session, const QString& day, const QString& time);
/// "5 minutes old", in hours from two hours on and in days from two days on.
QString ageText(qint64 minutes);

/// How many reports are stored, and when the youngest of them was made, by what they say themselves, so that
/// it is right after a restart, too.
struct StoredReports {
    int count = 0;
    QDateTime youngest = {}; ///< UTC; invalid where none says it
};
/// Raises what the store raises; without an open store there are none.
StoredReports storedReports(const Session& session);
/// "611 reports of 02:00Z, 21 Nov; the youngest is 9 minutes old", of what is stored: the hour is that of the
/// youngest. Where no source answered the last refresh, "No source answered; 611 stored reports, the
/// youngest 3 hours old".
QString reportAgeText(const Session& session);
/// Where they come from: "Source: Active Sky", "Source: noaa, cycle files"; where that is not known, which
/// source will be asked first.
QString reportSourceText(const Session& session);
/// "02:31Z, 14 minutes old", of one report; empty where it says no time.
QString reportAgeText(const Session& session, const QString& report);

} // namespace morvane
