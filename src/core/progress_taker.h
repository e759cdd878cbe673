#pragma once

#include "core/user_interface.h"

namespace morvane {

/// A screen that runs jobs itself: it shows how far they are and keeps what they tell, in the place of the
/// message screen. Questions are asked by that one all the same.
class ProgressTaker {
public:
    virtual ~ProgressTaker() = default;
    virtual void takeProgress(double percent) = 0;
    virtual void takeMessage(const Message& message) = 0;
};

/// The one that is at work; null for none.
struct TakenProgress {
    ProgressTaker* taker = nullptr;
};

} // namespace morvane
