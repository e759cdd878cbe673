#include "core/user_answers.h"

namespace morvane {

void UserAnswers::answer(bool ok) {
    for (std::size_t i = 0; i < questionCount; ++i) {
        if (!pending_.test(i)) continue;
        answered_.set(i);
        // The weather choice asks "go on?" but its flag says "cancelled": wanted, its readers test it so.
        flags_[i] = i == index(Question::weatherChoice) ? !ok : ok;
        return;
    }
}

} // namespace morvane
