#pragma once

namespace morvane {

class Store;

/// Adds the rows of the night sets that come with the program: "Default" and four biases, all activated, none
/// installed.
void addDeliveredNightSets(Store& store);

} // namespace morvane
