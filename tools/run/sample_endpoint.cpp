#include "sample_endpoint.h"

#include "sample_cycle.h"

namespace morvane {

SampleEndpoint::SampleEndpoint(Registry& real)
    : real_(real), server_(LoopbackServer::RequestHandler(sampleReply)) {}

QString SampleEndpoint::GetRegString(int root, const QString& key, const QString& name,
                                     const QString& machine) const {
    if (name == u"WeatherServer") return address();
    if (name == u"WeatherPath") return u"/weather/"_s;
    if (name == u"WeatherFormat") return u"noaa"_s;
    if (name == u"WeatherSources") return u"none"_s;
    return real_.GetRegString(root, key, name, machine);
}

void SampleEndpoint::SetRegString(int root, const QString& key, const QString& name, const QString& text,
                                  const QString& machine) {
    real_.SetRegString(root, key, name, text, machine);
}

bool SampleEndpoint::RegValueIsDword(int root, const QString& key, const QString& name,
                                     const QString& machine) const {
    return real_.RegValueIsDword(root, key, name, machine);
}

bool SampleEndpoint::hasValue(int root, const QString& key, const QString& name) const {
    return name.startsWith(u"Weather") || real_.hasValue(root, key, name);
}

bool SampleEndpoint::CreateRegKey(int root, const QString& key) {
    return real_.CreateRegKey(root, key);
}

} // namespace morvane
