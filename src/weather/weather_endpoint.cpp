#include "weather/weather_endpoint.h"

#include "core/error.h"
#include "core/numbers.h"

#include <QHostAddress>
#include <algorithm>

namespace morvane {

namespace {

QString endpointValue(const Registry& registry, const QString& name) {
    return trimmedBlanks(registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, name));
}

QUrl serverOf(const QString& text) {
    const QUrl server(text, QUrl::StrictMode);
    const bool isWeb = server.scheme() == u"http" || server.scheme() == u"https";
    if (!server.isValid() || !isWeb || server.host().isEmpty())
        throw Error(ErrorCode::typeMismatch, u"WeatherServer \""_s + text + u'"');
    return server;
}

QString pathOf(QString text) {
    if (text.isEmpty()) return u"/weather/"_s;
    if (!text.startsWith(u'/')) text.prepend(u'/');
    if (!text.endsWith(u'/')) text.append(u'/');
    return text;
}

bool isLoopback(const QString& host) {
    return host == u"localhost" || QHostAddress(host).isLoopback();
}

} // namespace

QUrl WeatherEndpoint::urlOf(const QString& fileName) const {
    QUrl url = server;
    url.setPath(path + fileName);
    return url;
}

std::optional<WeatherEndpoint> weatherEndpoint(const Registry& registry) {
    const QString server = endpointValue(registry, u"WeatherServer"_s);
    if (server.isEmpty()) return std::nullopt;
    const bool isNoaa = endpointValue(registry, u"WeatherFormat"_s) == u"noaa";
    return WeatherEndpoint{serverOf(server), pathOf(endpointValue(registry, u"WeatherPath"_s)),
                           isNoaa ? CycleForm::noaa : CycleForm::plain};
}

bool isOnline(const WeatherEndpoint& endpoint, const QList<QNetworkInterface>& interfaces) {
    if (isLoopback(endpoint.server.host())) return true;
    return std::any_of(interfaces.begin(), interfaces.end(), [](const QNetworkInterface& interface) {
        const auto flags = interface.flags();
        return flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning) &&
               !flags.testFlag(QNetworkInterface::IsLoopBack);
    });
}

} // namespace morvane
