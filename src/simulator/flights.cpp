#include "simulator/flights.h"

#include "core/attempts.h"
#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/flights_folder.h"
#include "core/ini_file.h"
#include "core/numbers.h"
#include "core/safe_copy.h"
#include "sets/options_in_force.h"
#include "sets/simulator_copy.h"

#include <algorithm>

namespace morvane {

const QString flightsProgressText = u"Loading saved flights data into Morvane\n"
                                    "This may take a few moments.  Please wait........"_s;

namespace {

const QString flightMask = u"*.flt"_s, flightEnding = u".flt"_s, weatherEnding = u".wx"_s;
const QString section = u"Flights"_s, totalKey = u"total"_s;

FilePath flightsFolder(const Session& session) {
    return session.AppPath / u"Flights";
}

FilePath deliveredFlightsFolder(const Session& session) {
    return session.FSPath / u"Flights\\Morvane";
}

FilePath listFile(const Session& session) {
    return flightsFolder(session) / u"flights.cfg";
}

/// Cut at the first ".flt": wanted, "A.flt.old.flt" stands for the flight "A".
QString baseName(const QString& fileName) {
    return fileName.left(fileName.indexOf(flightEnding, 0, Qt::CaseInsensitive));
}

/// Nothing there is replaced: another "A.flt" becomes "A (2).flt". One that is there already just goes.
void moveToBackups(Session& session, const FilePath& file) {
    FileSystem& files = session.files;
    const FilePath folder = session.AppPath / u"Backup\\Flights";
    const QString name = file.fileName(), stem = name.section(u'.', 0, -2), ending = name.mid(stem.size());
    FilePath place = folder.child(name);
    for (int number = 2; files.exists(place); ++number) {
        if (files.read(place) == files.read(file)) return files.remove(file);
        place = folder.child(u"%1 (%2)%3"_s.arg(stem).arg(number).arg(ending));
    }
    files.makeFolder(folder);
    files.rename(file, place);
}

/// Copies go. What none of the sources holds may have been saved right here, and is not ours to delete.
/// Weather that has lost its flight stays as long as no flight is there.
void clearFlights(Session& session, const std::vector<FilePath>& sources) {
    const FilePath folder = flightsFolder(session);
    const QStringList flights = session.files.list(folder, flightMask);
    if (flights.isEmpty()) return;
    for (const QString& name : flights + session.files.list(folder, u"*.wx"_s)) {
        const bool isCopy = std::ranges::any_of(
            sources, [&](const FilePath& source) { return session.files.exists(source.child(name)); });
        if (isCopy)
            session.files.remove(folder.child(name));
        else
            moveToBackups(session, folder.child(name));
    }
}

/// Whether the folder may be cleared: it has to be ours alone and none of those that the flights come from. A
/// pilot who chose it as the folder of the saved flights has them there and nowhere else.
bool holdsOnlyCopies(Session& session, const std::vector<FilePath>& sources) {
    const FilePath own = flightsFolder(session);
    const auto isOwn = [&own](const FilePath& source) { return isSameFolder(own, source); };
    const bool isChosen = sources.size() == 1 && isOwnFlightsFolder(session, storedFlightsFolder(session));
    return !session.files.isLink(own) && !isChosen && std::ranges::none_of(sources, isOwn);
}

std::vector<FileCopy> flightCopies(Session& session, const FilePath& source, const FilePath& target) {
    std::vector<FileCopy> copies;
    for (const QString& fileName : session.files.list(source, flightMask)) {
        const QString name = baseName(fileName);
        if (trimmedBlanks(name).isEmpty()) continue; // the list could not hold it
        for (const QString& ending : {flightEnding, weatherEnding})
            if (session.files.exists(source.child(name + ending)))
                copies.push_back({source.child(name + ending), target.child(name + ending)});
    }
    return copies;
}

/// One that cannot be copied costs no other; the first such failure is raised at the end.
template <class Copy>
void copyEach(const std::vector<FileCopy>& flights, Copy copy) {
    FirstFailure failure;
    for (const FileCopy& flight : flights)
        failure.attempt([&] { copy(flight); });
    failure.raise();
}

/// Entries of an older list beyond the new total stay in the file, unread. Written at one go, as a pilot may
/// have hundreds.
void writeList(Session& session) {
    const FilePath file = listFile(session);
    IniFile list = loadIni(session.files, file);
    const QStringList flights = session.files.list(flightsFolder(session), flightMask);
    list.setRawValue(section, totalKey, QString::number(flights.size()));
    for (qsizetype i = 0; i < flights.size(); ++i)
        list.setRawValue(section, QString::number(i + 1), baseName(flights[i]));
    session.files.write(file, list.toBytes());
}

} // namespace

void copyDeliveredFlights(Session& session) {
    const FilePath folder = deliveredFlightsFolder(session);
    const std::vector<FileCopy> flights = flightCopies(session, flightsFolder(session), folder);
    SimulatorCopier copier(session);
    copier.makeFolder(folder);
    copier.prepare(flights);
    copyEach(flights, [&](const FileCopy& flight) { copier.copy(flight); });
    copier.finish();
}

void loadFlightFiles(Session& session) {
    if (session.state<OptionsInForce>().IsWideClient) return;
    // The kind is misspelt, as that of one failure of the weather's road: it names an icon of its own.
    const FailureReport report{u"Morvane Error"_s, MessageKind::exlamation};
    reportFailures(session.user, report, [&] {
        session.files.makeFolder(flightsFolder(session));
        std::vector<FilePath> sources{deliveredFlightsFolder(session)};
        if (const FilePath folder = userFlightsFolder(session); !folder.isEmpty()) sources.push_back(folder);
        if (!holdsOnlyCopies(session, sources)) return;
        clearFlights(session, sources);
        FirstFailure failure; // of one folder costs the other's flights nothing
        for (const FilePath& source : sources)
            failure.attempt([&] {
                copyEach(flightCopies(session, source, flightsFolder(session)), [&](const FileCopy& flight) {
                    replaceFile(session.files, flight.source, flight.target);
                });
            });
        failure.raise();
    });
    reportFailures(session.user, report, [&] { writeList(session); }); // of those that were copied
}

QStringList savedFlights(Session& session) {
    const FilePath file = listFile(session);
    if (!session.files.exists(file)) {
        session.user.showMessage({MessageKind::error, u"Morvane Fatal Error"_s,
                                  u"Your flight.cfg file has not been found.\n\n"
                                  "Morvane will not be able to load any flights.\n\n"
                                  "Press the checkmark to Exit."_s});
        return {};
    }
    QStringList names;
    const int total = GetIniInt(session.files, section, totalKey, file);
    while (names.size() < total) {
        const QString name = GetIniString(session.files, section, QString::number(names.size() + 1), file);
        if (name.isEmpty()) break; // the total was edited by hand
        names << name;
    }
    session.state<KnownFlights>().names = names;
    return names;
}

QStringList flightsToGather(Session& session) {
    QStringList names;
    for (const FilePath& folder :
         {flightsFolder(session), deliveredFlightsFolder(session), FilePath(usersFlightsFolder(session))})
        if (!folder.isEmpty())
            for (const QString& fileName : session.files.list(folder, flightMask))
                names << baseName(fileName);
    names.removeDuplicates();
    session.state<KnownFlights>().names = names;
    return names;
}

FilePath savedFlightFile(const Session& session, const QString& name) {
    return flightsFolder(session).child(name + u".FLT"_s);
}

} // namespace morvane
