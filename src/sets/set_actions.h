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
int SetActions<Kind>::install(Session& session, const QString& name) {
    typename Kind::Installation installation(session);
    installation.install(name);
    return installation.filesCopied();
}

template <class Kind>
Reported SetActions<Kind>::installInside(Session& session, Job& job, const QString& name) {
    return typename Kind::Installation(session).installInside(job, name);
}

} // namespace morvane
