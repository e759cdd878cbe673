#include "weather/weather_sources.h"

#include "core/error.h"
#include "core/numbers.h"

#include <QHostAddress>
#include <algorithm>
#include <optional>

namespace morvane {

namespace {

constexpr qsizetype longestName = 20, longestAddress = 1000;

const std::vector<WeatherSource>& deliveredSources() {
    static const std::vector<WeatherSource> all{
        {u"noaa"_s, QUrl(u"https://tgftp.nws.noaa.gov/data/observations/metar/cycles/"_s), CycleForm::noaa},
        {u"awc"_s, QUrl(u"https://aviationweather.gov/data/cache/metars.cache.csv.gz"_s), CycleForm::awc},
        {u"vatsim"_s, QUrl(u"https://metar.vatsim.net/metar.php?id=all"_s), CycleForm::plain},
    };
    return all;
}

const QString none = u"none"_s, usualNames = u"noaa;awc"_s;

QString textValue(const Registry& registry, const QString& name) {
    return trimmedBlanks(ownValue(registry, name));
}

std::optional<CycleForm> formOf(const QString& word) {
    static const std::pair<QString, CycleForm> forms[] = {
        {u"noaa"_s, CycleForm::noaa}, {u"awc"_s, CycleForm::awc}, {u"plain"_s, CycleForm::plain}};
    for (const auto& [name, form] : forms)
        if (name == word) return form;
    return std::nullopt;
}

bool isWebAddress(const QUrl& address) {
    const bool isWeb = address.scheme() == u"http" || address.scheme() == u"https";
    return address.isValid() && isWeb && !address.host().isEmpty() &&
           address.toString().size() <= longestAddress;
}

QString problemOf(const QUrl& address, const QString& value, const QString& text) {
    if (isWebAddress(address)) return {};
    return Error(ErrorCode::typeMismatch, value + u" \""_s + text.left(longestAddress) + u'"').description();
}

/// The list comes in one file, cycles in a folder of them.
QString pathOf(QString text, CycleForm form) {
    if (text.isEmpty()) return u"/weather/"_s;
    if (!text.startsWith(u'/')) text.prepend(u'/');
    if (!text.endsWith(u'/') && form != CycleForm::awc) text.append(u'/');
    return text;
}

bool isDelivered(const WeatherSource& source) {
    return std::ranges::any_of(deliveredSources(), [&](const WeatherSource& each) {
        return each.address == source.address && each.form == source.form;
    });
}

std::optional<WeatherSource> ownSource(const Registry& registry) {
    const QString text = textValue(registry, u"WeatherServer"_s);
    if (text.isEmpty()) return std::nullopt;
    QUrl address(text, QUrl::StrictMode);
    const QString problem = problemOf(address, u"WeatherServer"_s, text);
    const auto form = formOf(textValue(registry, u"WeatherFormat"_s)).value_or(CycleForm::plain);
    address.setPath(pathOf(textValue(registry, u"WeatherPath"_s), form));
    const WeatherSource own{problem.isEmpty() ? address.host() : text, address, form, problem, true};
    return isDelivered(own) ? std::nullopt : std::optional(own);
}

/// It goes into the name of a value and of a file.
bool isGoodName(const QString& name) {
    return !name.isEmpty() && name.size() <= longestName && name != none &&
           std::ranges::all_of(name, [](QChar letter) {
               return (letter >= u'a' && letter <= u'z') || (letter >= u'0' && letter <= u'9') ||
                      letter == u'-';
           });
}

/// "awc https://host/file.csv.gz"
WeatherSource namedByPilot(const QString& name, const QString& text) {
    const QString value = u"WeatherSource-"_s + name;
    const auto form = formOf(text.section(u' ', 0, 0));
    const QUrl address(form ? trimmedBlanks(text.section(u' ', 1)) : text, QUrl::StrictMode);
    return {name, address, form.value_or(CycleForm::plain), problemOf(address, value, text)};
}

std::optional<WeatherSource> namedSource(const Registry& registry, const QString& name) {
    if (!isGoodName(name)) return std::nullopt;
    const QString text = textValue(registry, u"WeatherSource-"_s + name);
    if (!text.isEmpty()) return namedByPilot(name, text);
    const auto found = std::ranges::find(deliveredSources(), name, &WeatherSource::name);
    return found == deliveredSources().end() ? std::nullopt : std::optional(*found);
}

QStringList namesIn(const QString& text) {
    QStringList names;
    for (const QString& part : text.toLower().split(u';'))
        if (const QString name = trimmedBlanks(part); !name.isEmpty() && !names.contains(name)) names << name;
    return names;
}

} // namespace

QUrl WeatherSource::fileOf(const QString& cycle) const {
    if (!isHourly()) return address;
    QUrl url = address;
    url.setPath(address.path() + cycle + u"Z.TXT"_s); // the servers know it by an ending in capitals
    return url;
}

QString WeatherSource::text() const {
    return name + (isHourly() ? u", cycle files"_s : u", all current reports"_s);
}

std::vector<WeatherSource> weatherSources(const Registry& registry) {
    std::vector<WeatherSource> sources;
    if (const auto own = ownSource(registry)) sources.push_back(*own);
    for (const QString& name : weatherSourceNames(registry))
        sources.push_back(namedSource(registry, name).value());
    return sources;
}

QStringList weatherSourceNames(const Registry& registry) {
    const QString text = textValue(registry, u"WeatherSources"_s);
    QStringList names = namesIn(text);
    if (names == QStringList{none}) return {};
    names.removeIf([&](const QString& name) { return !namedSource(registry, name); });
    return names.isEmpty() ? usualNames.split(u';') : names;
}

QString weatherSourcesProblem(const Registry& registry, const QString& text) {
    const QStringList names = namesIn(text);
    if (names == QStringList{none}) return {};
    for (const QString& name : names)
        if (!namedSource(registry, name))
            return u"There is no weather source \"%1\". There are: %2"_s.arg(
                name, deliveredSourceNames().join(u", "));
    return {};
}

void storeWeatherSourceNames(Registry& registry, const QStringList& names) {
    storeOwnValue(registry, u"WeatherSources"_s, names.isEmpty() ? none : names.join(u';'));
}

QStringList deliveredSourceNames() {
    QStringList names;
    for (const WeatherSource& source : deliveredSources())
        names << source.name;
    return names;
}

QString storeOwnWeatherServer(Registry& registry, const QString& typed, CycleForm form) {
    const QString text = trimmedBlanks(typed);
    const QUrl address(text, QUrl::StrictMode);
    if (!text.isEmpty() && (!isWebAddress(address) || address.hasQuery() || address.hasFragment()))
        return u"That is no address such as https://host/reports/: "_s + text;
    const QString path = address.path(), format = form == CycleForm::noaa  ? u"noaa"_s
                                                  : form == CycleForm::awc ? u"awc"_s
                                                                           : u"plain"_s;
    storeOwnValue(registry, u"WeatherServer"_s,
                  text.isEmpty() ? text : address.adjusted(QUrl::RemovePath).toString());
    storeOwnValue(registry, u"WeatherPath"_s, path);
    storeOwnValue(registry, u"WeatherFormat"_s, text.isEmpty() ? text : format);
    return {};
}

bool isLoopback(const QUrl& address) {
    return address.host() == u"localhost" || QHostAddress(address.host()).isLoopback();
}

bool isOnline(const QUrl& address, const QList<QNetworkInterface>& interfaces) {
    if (isLoopback(address)) return true;
    return std::any_of(interfaces.begin(), interfaces.end(), [](const QNetworkInterface& interface) {
        const auto flags = interface.flags();
        return flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning) &&
               !flags.testFlag(QNetworkInterface::IsLoopBack);
    });
}

} // namespace morvane
