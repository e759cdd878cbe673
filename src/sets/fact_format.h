#pragma once

#include "sets/original_facts.h"

#include <QByteArrayView>
#include <utility>

namespace morvane {

/// What a list of originals is written and read by.
inline constexpr QByteArrayView factFormatName = "morvane-originals";
inline constexpr int factFormatVersion = 2, baseOfModes = 8;

inline constexpr std::pair<FactKind, QByteArrayView> factWords[] = {
    {FactKind::kept, "kept"}, {FactKind::added, "added"},   {FactKind::ours, "ours"},
    {FactKind::mode, "mode"}, {FactKind::folder, "folder"}, {FactKind::gone, "gone"}};

} // namespace morvane
