#pragma once

#include "core/session.h"

#include <QStringList>

namespace morvane {

/// A saved flight is a pair of files, "<name>.flt" and "<name>.wx"; its name is known without the ending. The
/// program works on copies in its own folder "\Flights", listed in "flights.cfg" there.

/// Copies the delivered flights from the program's folder to the kept ones below the simulator, each that can
/// be; the first failure is raised at the end.
void copyDeliveredFlights(Session& session);

/// Gathers the copies anew: first the flights kept below the simulator ("\Flights\Morvane"), then the user's,
/// which win over kept ones of the same name. Nothing on a WideFS client, whose flights are the server's.
/// Asks for the user's folder when there is none of the usual name; without an answer only the kept flights
/// are there. A failure is told; the list then names what was gathered before.
///
/// A flight in "\\Flights" that neither folder holds is moved to "\\Backup\\Flights". Where "\\Flights" is
/// not the program's alone, because it is a link or one of the folders that are gathered from, it stays as it
/// is and is only listed.
void loadFlightFiles(Session& session);
/// What the splash says meanwhile.
extern const QString flightsProgressText;

/// What one of the next two named last: the pilot's own words, which the log leaves out.
struct KnownFlights {
    QStringList names;
};

/// The names in "flights.cfg"; none, after a message, when that file is missing.
QStringList savedFlights(Session& session);

/// What `savedFlights` would name once the flights are gathered; nothing is asked, told or changed.
QStringList flightsToGather(Session& session);

/// The flight's file in the program's folder. A name with a separator in it raises "Path not found".
FilePath savedFlightFile(const Session& session, const QString& name);

} // namespace morvane
