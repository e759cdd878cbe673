#include "sets/simulator_note.h"

#include "core/attempts.h"
#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/ini_file.h"
#include "core/reading_limits.h"
#include "sets/simulator_copy.h"

#include <QSysInfo>

namespace morvane {

namespace {

const QString section = u"Morvane"_s, noteTitle = u"Another Morvane"_s;

FilePath noteFile(const FilePath& simulator) {
    return simulator / u"Morvane note.ini";
}

QString userAndPc() {
    QString user = qEnvironmentVariable("USERNAME");
    if (user.isEmpty()) user = qEnvironmentVariable("USER");
    return (user.isEmpty() ? QString() : user + u" on "_s) + QSysInfo::machineHostName();
}

/// Whose the textures in the simulator are.
enum class Owner {
    nobody,
    us,
    usElsewhere, ///< this install, in the folder where it was before
    another,
};

bool hasListOfThis(const Session& session, const QString& installFolder) {
    const FilePath originals = FilePath(installFolder) / u"Backup\\Originals";
    bool isThere = false;
    attempt([&] { isThere = !findOriginals(session.files, session.FSPath, originals).facts.empty(); });
    return isThere;
}

Owner ownerOf(const Session& session, const std::optional<SimulatorNote>& note) {
    if (!note) return Owner::nobody;
    if (isSameFolder(FilePath(note->installFolder), session.AppPath)) return Owner::us;
    const bool isOursMoved = !session.files.isFolder(FilePath(note->installFolder)) &&
                             hasListOfThis(session, session.AppPath.native());
    return isOursMoved ? Owner::usElsewhere : Owner::another;
}

/// A simulator whose own folder cannot be written goes without.
void writeNote(Session& session) {
    IniFile note;
    note.addSection(section);
    note.setRawValue(section, u"Name"_s, userAndPc());
    note.setRawValue(section, u"InstallFolder"_s, session.AppPath.native());
    note.setRawValue(section, u"Day"_s, session.clock.localTime().date().toString(Qt::ISODate));
    attempt([&] { session.files.write(noteFile(session.FSPath), note.toBytes()); });
}

QString questionOf(const Session& session, const SimulatorNote& note) {
    const QString day = note.day.isValid() ? u" since "_s + note.day.toString(Qt::ISODate) : QString();
    const QString who = note.name.isEmpty() ? QString() : u" of "_s + note.name;
    const QString record =
        hasListOfThis(session, note.installFolder)
            ? u"Its record and the files of your own that it keeps are copied; from then on this one puts "
              u"them "
              "back, and the other had better stay away."_s
            : u"Its record cannot be read, so what lies there counts as your own from now on."_s;
    return u"The textures in this simulator are those of another Morvane%1, in %2%3.\n\nDo you wish to take "
           u"them "
           "over?  %4\n\nWith Cancel the simulator stays as it is."_s.arg(who, note.installFolder, day,
                                                                          record);
}

} // namespace

std::optional<SimulatorNote> readSimulatorNote(FileSystem& files, const FilePath& simulator) {
    const IniFile note = IniFile::parse(readBounded(files, noteFile(simulator), largestSimulatorNote));
    const auto folder = note.rawValue(section, u"InstallFolder"_s);
    if (!folder || folder->isEmpty()) return std::nullopt;
    return SimulatorNote{
        note.rawValue(section, u"Name"_s).value_or(QString()), *folder,
        QDate::fromString(note.rawValue(section, u"Day"_s).value_or(QString()), Qt::ISODate)};
}

bool belongsToAnother(const Session& session) {
    return ownerOf(session, readSimulatorNote(session.files, session.FSPath)) == Owner::another;
}

bool claimSimulator(Session& session) {
    const auto note = readSimulatorNote(session.files, session.FSPath);
    if (ownerOf(session, note) != Owner::another) return true;
    if (!session.user.ask(Question::takeOver, noteTitle, questionOf(session, *note))) return false;
    return reportFailures(session.user, morvaneError, [&] {
        originalsOf(session).adopt(FilePath(note->installFolder));
        writeNote(session);
    });
}

void noteSimulator(Session& session) {
    const auto note = readSimulatorNote(session.files, session.FSPath);
    const Owner owner = ownerOf(session, note);
    if (owner == Owner::another)
        throw Error::withDescription(ErrorCode::permissionDenied,
                                     u"The textures in this simulator are those of another Morvane, in "_s +
                                         note->installFolder);
    if (owner != Owner::us) writeNote(session);
}

void removeSimulatorNote(Session& session) {
    const auto note = readSimulatorNote(session.files, session.FSPath);
    if (note && ownerOf(session, note) != Owner::another)
        attempt([&] { session.files.remove(noteFile(session.FSPath)); });
}

} // namespace morvane
