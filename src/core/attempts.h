#pragma once

#include "core/error.h"

#include <optional>

namespace morvane {

/// Runs a step whose failure is wanted to go unnoticed; false when there was one.
template <class Step>
bool attempt(Step step) {
    try {
        step();
        return true;
    } catch (const Error&) {
        return false;
    }
}

/// What the step raises, for the one who will deal with it.
template <class Step>
std::optional<Error> failureOf(Step step) {
    try {
        step();
        return std::nullopt;
    } catch (const Error& error) {
        return error;
    }
}

/// For a loop in which the failure of one step costs no other: the first one is raised at the end.
class FirstFailure {
public:
    template <class Step>
    void attempt(Step step) {
        try {
            step();
        } catch (const Error& error) {
            if (!failure_) failure_ = error;
        }
    }
    const std::optional<Error>& error() const { return failure_; }
    void raise() const {
        if (failure_) throw *failure_;
    }

private:
    std::optional<Error> failure_;
};

} // namespace morvane
