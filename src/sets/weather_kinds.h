#pragma once

#include "sets/set_choice.h"

namespace morvane {

class Job;

/// The sets of a kind that the weather chooses, as those of the other such kind see them.
class WeatherKind {
public:
    virtual ~WeatherKind() = default;

    /// Sets there are, activated or not.
    virtual std::int32_t count(Session& session) const = 0;
    virtual std::vector<ActivatedSet> activated(Session& session) const = 0;
    /// Takes the named set in hand and installs it as a part of the job. False when the store refused.
    virtual bool installInside(Session& session, Job& job, const QString& name) const = 0;
};

/// Both of them; the start of the program brings them together.
struct WeatherKinds {
    const WeatherKind* ground = nullptr;
    const WeatherKind* sky = nullptr;
};

} // namespace morvane
