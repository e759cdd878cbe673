#pragma once

#include "core/registry.h"
#include "weather/cycle_lines.h"

#include <QNetworkInterface>
#include <QUrl>
#include <vector>

namespace morvane {

/// Where reports come from.
struct WeatherSource {
    QString name; ///< "noaa"; of the pilot's own server its host
    QUrl address; ///< one that ends in "/" is a folder of hourly files, any other a file
    CycleForm form = CycleForm::plain;
    QString problem = {}; ///< why it cannot be asked, where that is known before
    bool isOwn = false;   ///< that of WeatherServer. What an earlier version wrote there itself is none

    bool isHourly() const { return address.path().endsWith(u'/'); }
    /// What is to be fetched of it for the cycle "00" to "23".
    QUrl fileOf(const QString& cycle) const;
    /// "noaa, cycle files"
    QString text() const;
};

/// Text values under the program's key. WeatherServer ("https://host:port"), WeatherPath ("/weather/" when
/// absent) and WeatherFormat ("noaa" or "awc", anything else is plain) are the pilot's own server, which
/// comes first. WeatherSources has the names behind it, joined by ";": a name is one of those delivered
/// (noaa, awc, vatsim) or one that the pilot made with a value "WeatherSource-" and the name, which holds
/// form and address ("awc https://host/file.csv.gz"). Such a value also takes the place of a delivered
/// address, should that service move.
///
/// Unknown names and repetitions are passed over; a value without any known name counts as absent and gives
/// noaa and awc. The word "none" stands for no name.
std::vector<WeatherSource> weatherSources(const Registry& registry);

/// The names in force, the own server left out.
QStringList weatherSourceNames(const Registry& registry);
/// What is wrong with a text for WeatherSources; empty when nothing is.
QString weatherSourcesProblem(const Registry& registry, const QString& text);
/// Stores the names in that order; "none" where there is none.
void storeWeatherSourceNames(Registry& registry, const QStringList& names);
/// The names that can be in the list without a value of the pilot's.
QStringList deliveredSourceNames();

/// Stores an address ("https://host/reports/") as the pilot's own server, of that form; an empty one takes it
/// away. Gives what is wrong with the address, and then stores nothing; empty when nothing is.
QString storeOwnWeatherServer(Registry& registry, const QString& typed, CycleForm form);

/// An address on this machine.
bool isLoopback(const QUrl& address);
/// A server on this machine is always within reach; any other when one of the interfaces beside the loopback
/// is up.
bool isOnline(const QUrl& address, const QList<QNetworkInterface>& interfaces);

} // namespace morvane
