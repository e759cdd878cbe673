#include "simulator/program_runner.h"

#include "core/registry.h"
#include "simulator/program_start.h"

namespace morvane {

bool startWithRunner(Session& session, const QString& name, const FilePath& program,
                     const FilePath& document) {
    const QString runner =
        session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"SimulatorRunner"_s);
    if (lacksRunner(program, runner)) {
        session.user.showMessage(
            {MessageKind::exclamation, name + u" Not Started"_s,
             name + u" is a Windows program and needs a runner on this system. Set the value "
                    u"\"SimulatorRunner\" of Morvane's registry.ini to its command, such as wine."_s});
        return false;
    }
    startProgram(program, document, runner);
    return true;
}

} // namespace morvane
