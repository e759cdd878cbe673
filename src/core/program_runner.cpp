#include "core/program_runner.h"

#include "core/program_start.h"
#include "core/registry.h"

namespace morvane {

bool startWithRunner(Session& session, const QString& name, const FilePath& program,
                     const FilePath& document) {
    const QString runner =
        session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"SimulatorRunner"_s);
    const bool isPossible = !lacksRunner(program, runner);
    const bool isStarted = isPossible && startProgram(program, document, runner);
    if (!isPossible)
        tellNotStarted(session, name,
                       name +
                           u" is a Windows program and needs a runner on this system. Set the value "
                           u"\"SimulatorRunner\" of Morvane's registry.ini to its command, such as wine."_s);
    else if (!isStarted)
        tellNotStarted(session, name,
                       name + u" could not be started: "_s + program.text() +
                           (runner.isEmpty() ? QString() : u"\nThe runner is "_s + runner));
    return isStarted;
}

void tellNotStarted(Session& session, const QString& name, const QString& why) {
    session.user.showMessage({MessageKind::exclamation, name + u" Not Started"_s, why});
}

} // namespace morvane
