#pragma once

#include "sets/set_kind.h"

namespace morvane {

// For the one file of each kind that brings its own classes and says `template struct SetActions<...>`.

template <class Kind>
void SetActions<Kind>::activate(Session& session) {
    typename Kind::Activation(session).activateInHand();
}

template <class Kind>
void SetActions<Kind>::remove(Session& session, bool deactivateMode) {
    typename Kind::Activation(session).deleteInHand(deactivateMode);
}

template <class Kind>
bool SetActions<Kind>::install(Session& session) {
    return typename Kind::Installation(session).install();
}

template <class Kind>
InstalledFiles SetActions<Kind>::install(Session& session, const QString& name) {
    typename Kind::Installation installation(session);
    const Reported isWhole = installation.install(name);
    return {installation.filesCopied(), isWhole};
}

template <class Kind>
Reported SetActions<Kind>::installInside(Session& session, Job& job, const QString& name) {
    return typename Kind::Installation(session).installInside(job, name);
}

template <class Kind>
SharedSet SetActions<Kind>::share(Session& session, const QString& name) {
    const auto set = findSet<Kind>(session, name);
    SharedSet shared = Kind::Sharing::share(session, *set);
    shared.kind = Kind::facts().word.toLower();
    shared.name = nameWithoutKey(nameOf(*set));
    shared.description = set->Description;
    if constexpr (requires { set->CloudCover; }) shared.cover = set->CloudCover;
    return shared;
}

template <class Kind>
Reported SetActions<Kind>::receive(Session& session, const SharedSet& shared) {
    typename Kind::Record record;
    record.*Kind::Record::table().rows.name = shared.name;
    record.Description = sharedDescription(shared);
    if constexpr (requires { record.CloudCover; }) record.CloudCover = checkedCover(shared);
    return Kind::Sharing::save(session, std::move(record), shared);
}

} // namespace morvane
