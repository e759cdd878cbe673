#pragma once

namespace morvane {

class Shell;

/// Hands the shell what comes from outside its windows' own events: the end of the desktop's session, the
/// signals that ask a process to end (not on Windows), and the window manager's wish to close a window that a
/// dialog, a message or a job blocks, which the toolkit passes over. The shell must live as long as the
/// application.
void listenToEndRequests(Shell& shell);

} // namespace morvane
