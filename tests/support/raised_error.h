#pragma once

#include "core/error.h"

#include <optional>

namespace morvane::test {

/// The code of the Error that the action raises; nothing when it raises none.
template <class Action>
std::optional<ErrorCode> codeRaisedBy(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.code();
    }
    return std::nullopt;
}

/// The description; empty when it raises none.
template <class Action>
QString descriptionRaisedBy(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.description();
    }
    return {};
}

} // namespace morvane::test
