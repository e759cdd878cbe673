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
bool SetActions<Kind>::install(Session& session, bool automatic) {
    return typename Kind::Installation(session).install(automatic);
}

template <class Kind>
bool SetActions<Kind>::installInside(Session& session, Job& job) {
    return typename Kind::Installation(session).installInside(job);
}

} // namespace morvane
