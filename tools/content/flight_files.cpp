#include "flight_files.h"

#include "core/literals.h"

namespace morvane {

namespace {

struct SavedFlight {
    QString name, description;
    QString position; ///< latitude, longitude, altitude as the simulator writes them
    QString weather;  ///< the station's layer; empty for a flight without weather
};

const SavedFlight deliveredFlights[] = {
    {u"Schiphol Evening"_s, u"Short of runway 18L with the sun low"_s, u"N52 19.27,E4 46.80,-11.0"_s,
     u"EHAM 241825Z 24008KT 9999 FEW030 14/08 Q1019"_s},
    {u"Seattle Rain"_s, u"At the gate under a low overcast"_s, u"N47 26.88,W122 18.62,433.0"_s,
     u"KSEA 230231Z 11004KT 5SM RA BR FEW022 BKN045 OVC055 06/06 A2950"_s},
    {u"Island Hop"_s, u"Lined up for the next island"_s, u"S9 11.48,E160 56.92,23.0"_s,
     u"AGAF 240300Z 09006KT 9999 SCT018 29/24 Q1010"_s},
};

const SavedFlight pilotsFlights[] = {
    {u"Schiphol Evening"_s, u"The pilot's own, saved under the delivered name"_s,
     u"N52 18.52,E4 45.83,-11.0"_s, u"EHAM 250625Z 00000KT 0300 FG VV001 03/03 Q1031"_s},
    {u"My Circuit"_s,
     u"Downwind at home, in whatever weather there is"_s,
     u"N51 34.05,E4 55.92,1000.0"_s,
     {}},
};

QByteArray flightText(const SavedFlight& flight) {
    const QString lines = u"[Main]\r\nTitle=%1\r\nDescription=%2\r\n[SimVars.0]\r\nPosition=%3\r\n"_s;
    return lines.arg(flight.name, flight.description, flight.position).toLatin1();
}

QByteArray weatherText(const SavedFlight& flight) {
    return u"[Weather]\r\nStation=%1\r\n"_s.arg(flight.weather).toLatin1();
}

template <class Flights>
void writeAll(FileSystem& files, const Flights& flights, const FilePath& folder) {
    files.makeFolder(folder);
    for (const SavedFlight& flight : flights) {
        files.write(folder.child(flight.name + u".flt"_s), flightText(flight));
        if (!flight.weather.isEmpty()) files.write(folder.child(flight.name + u".wx"_s), weatherText(flight));
    }
}

} // namespace

void writeFlights(FileSystem& files, const FilePath& home, const FilePath& simulator) {
    writeAll(files, deliveredFlights, home / u"Flights");
    if (simulator.isEmpty()) return;
    writeAll(files, deliveredFlights, simulator / u"Flights\\Morvane");
    writeAll(files, pilotsFlights, simulator / u"Flights");
    files.write(simulator / u"Flights\\Lost.wx", weatherText(pilotsFlights[0]));
}

} // namespace morvane
