#pragma once

#include "sets/options_in_force.h"

#include <span>

namespace morvane {

class Session;

/// An option: where it is kept, what it does, how the console calls it and what its page shows. Another one
/// is a flag, a row of the table and, where the store keeps it, a column of the schema.
struct SimulatorOption {
    const char16_t* name; ///< the console's word
    bool OptionsInForce::*flag;
    const char16_t* column = nullptr; ///< of `TEXTURE_SWITCH`; none for a value of the registry
    bool (*isSetInRegistry)(const Session&) = nullptr;
    /// Takes effect at once. False after the message of a refusal.
    bool (*set)(Session&, bool);
    int place;                   ///< of its box on the page: row by row, from the left
    const char16_t *box, *label; ///< names of the controls
    const char16_t *caption, *text;
};

/// All options, in the order of the console.
std::span<const SimulatorOption> simulatorOptions();
/// The option of the flag.
const SimulatorOption& optionOf(bool OptionsInForce::*flag);
/// What an undo calls the change of that option: "Use customized halo: on".
QString optionPart(bool OptionsInForce::*flag, bool isOn);

} // namespace morvane
