#pragma once

#include "walk/walk.h"

namespace morvane::test {

/// One table a family of screens; ctest runs them side by side.
std::vector<WalkScreen> mainScreens();
std::vector<WalkScreen> groundScreens();
std::vector<WalkScreen> skyScreens();
std::vector<WalkScreen> nightScreens();
std::vector<WalkScreen> weatherScreens();
std::vector<WalkScreen> coverScreens();
std::vector<WalkScreen> setDialogs();
std::vector<WalkScreen> messageScreens();

/// Gives the program at least two of everything that a list can show, an address for every link, and an
/// installed set of each kind, so that every control has something to do.
void furnish(WindowProgram& program);
/// The main window on its own page, whatever stood before.
void openHome(Walk& walk);
/// A list window, entered from there.
void openHost(Walk& walk, const QString& name);
/// Opens a dialog as the engine does.
std::function<void(Walk&)> dialog(
    Screen screen, const std::function<void(Session&)>& prepare = [](Session&) {});
/// The main window's keys, but for the one of the page that stands, which is dead.
WalkRows mainWindowRows(const QString& deadKey);
/// What every dialog with OK and Cancel has.
WalkRows answerRows(const std::function<bool(Session&)>& isConfirmed);
/// Both, one behind the other.
template <class Entry>
std::vector<Entry> operator+(std::vector<Entry> first, const std::vector<Entry>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace morvane::test
