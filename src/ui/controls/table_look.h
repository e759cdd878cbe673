#pragma once

class QTreeView;

namespace morvane {

/// How every list with columns looks and moves: its head, its rows of one height, the corner over its scroll
/// bar, a border that shows the focus. The list's columns are not set here.
void giveTableLook(QTreeView& table);

} // namespace morvane
