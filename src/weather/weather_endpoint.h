#pragma once

#include "core/registry.h"
#include "weather/cycle_lines.h"

#include <QNetworkInterface>
#include <QUrl>
#include <optional>

namespace morvane {

/// Where the hourly cycle files come from: the string values WeatherServer ("https://host:port"),
/// WeatherPath ("/weather/" when absent) and WeatherFormat ("noaa", anything else is plain) under the
/// program's registry key.
struct WeatherEndpoint {
    QUrl server;
    QString path; ///< begins and ends with "/"
    CycleForm form = CycleForm::plain;

    QUrl urlOf(const QString& fileName) const;
};

/// Nothing when no server is named. Raises "Type mismatch" for one that is no http or https address.
std::optional<WeatherEndpoint> weatherEndpoint(const Registry& registry);

/// A server on this machine is always within reach; any other when one of the interfaces beside the loopback
/// is up.
bool isOnline(const WeatherEndpoint& endpoint, const QList<QNetworkInterface>& interfaces);

} // namespace morvane
