#include "core/program_runner.h"

#include "core/file_helpers.h"
#include "core/program_start.h"
#include "core/registry.h"
#include "core/wine_prefixes.h"

namespace morvane {

namespace {

/// The prefix that the program lies in, or whose registry names it on another drive.
std::optional<WinePrefix> prefixOf(Session& session, const FilePath& program) {
    if (const auto above = winePrefixAbove(session.files, program)) return above;
    for (const PrefixSimulator& found : simulatorsInPrefixes(session.files))
        if (isSameFolder(found.folder, program.parent())) return found.prefix;
    return std::nullopt;
}

/// What a user has to do about a program that needs a runner.
QString runnerAdvice(const QString& name, const std::optional<WinePrefix>& prefix) {
    if (!prefix)
        return name + u" is a Windows program and needs a runner on this system. Set the value "
                      u"\"SimulatorRunner\" of Morvane's registry.ini to its command, such as wine."_s;
    return name +
           u" lies in a Wine prefix of %1, which Morvane only reads. Let %1 start it, or have these lines in "
           u"Morvane's registry.ini:\n[HKEY_LOCAL_MACHINE\\%2]\nSimulatorRunner=\"%3\""_s.arg(
               prefix->keeper, morvaneKey, prefix->runner);
}

} // namespace

Reported startWithRunner(Session& session, const QString& name, const FilePath& program,
                         const FilePath& document) {
    QString runner = ownValue(session.registry, u"SimulatorRunner"_s);
    std::optional<WinePrefix> prefix;
    if (lacksRunner(program, runner)) {
        prefix = prefixOf(session, program);
        if (!prefix || !prefix->keeper.isEmpty()) {
            tellNotStarted(session, name, runnerAdvice(name, prefix));
            return false;
        }
        runner = prefix->runner;
    }
    if (startProgram(program, document, runner, prefix ? prefix->folder : QString())) return true;
    tellNotStarted(session, name,
                   name + u" could not be started: "_s + program.text() +
                       (runner.isEmpty() ? QString() : u"\nThe runner is "_s + runner));
    return false;
}

void tellNotStarted(Session& session, const QString& name, const QString& why) {
    session.user.showMessage({MessageKind::exclamation, name + u" Not Started"_s, why});
}

} // namespace morvane
