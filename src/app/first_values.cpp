#include "app/first_values.h"

#include "core/registry.h"

namespace morvane {

void writeFirstValues(Registry& registry) {
    storeOwnValue(registry, u"FirstTime"_s, u"True"_s);
    const std::pair<QString, QString> values[] = {{u"IsWideClient"_s, u"False"_s},
                                                  {u"WeatherServer"_s, u"https://tgftp.nws.noaa.gov"_s},
                                                  {u"WeatherPath"_s, u"/data/observations/metar/cycles/"_s},
                                                  {u"WeatherFormat"_s, u"noaa"_s}};
    for (const auto& [name, value] : values)
        if (!registry.hasValue(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, name))
            storeOwnValue(registry, name, value);
}

} // namespace morvane
