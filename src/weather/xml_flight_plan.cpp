#include "weather/xml_flight_plan.h"

#include "core/error.h"
#include "core/numbers.h"
#include "weather/coordinates.h"

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <cmath>

namespace morvane {

namespace {

/// As the simulator writes one, "N47* 26.88'"; empty for a number that is no such angle.
QString coordinateText(std::optional<double> degrees, const char (&hemispheres)[3], double most) {
    if (!degrees || !(std::abs(*degrees) <= most)) return {};
    constexpr int minutesPerDegree = 60, partsPerMinute = 100, parts = minutesPerDegree * partsPerMinute;
    const int rounded = static_cast<int>(std::lround(std::abs(*degrees) * parts));
    return u"%1%2* %3'"_s.arg(QLatin1Char(hemispheres[*degrees < 0 ? 1 : 0]))
        .arg(rounded / parts)
        .arg(static_cast<double>(rounded % parts) / partsPerMinute, 0, 'f', 2);
}

QString latitudeText(std::optional<double> degrees) {
    return coordinateText(degrees, "NS", 90);
}

QString longitudeText(std::optional<double> degrees) {
    return coordinateText(degrees, "EW", 180);
}

/// "N33° 56' 22.26\"", with any marks, and seconds or none.
double degreesOf(const QRegularExpressionMatch& match) {
    const auto number = [&](int part) { return storedDegrees(match.captured(part)).value_or(0); };
    const double degrees = number(2) + number(3) / 60 + number(4) / 3600;
    const QString hemisphere = match.captured(1);
    return hemisphere == u"S" || hemisphere == u"W" ? -degrees : degrees;
}

/// Latitude, longitude and height in one text.
void takePosition(const QString& text, Waypoint& waypoint) {
    static const QRegularExpression angle(
        uR"(([NSEW])\s*(\d{1,3})\D{1,2}\s*(\d{1,2}(?:[.,]\d+)?)\D(?:\s*(\d{1,2}(?:[.,]\d+)?))?)"_s);
    auto matches = angle.globalMatch(text);
    if (!matches.hasNext()) return;
    waypoint.latitude = latitudeText(degreesOf(matches.next()));
    if (matches.hasNext()) waypoint.longitude = longitudeText(degreesOf(matches.next()));
}

class XmlPlanReader {
public:
    explicit XmlPlanReader(const QString& text) : xml_(text) { xml_.setNamespaceProcessing(false); }
    std::optional<FlightPlan> read();

private:
    bool enterRoot();
    template <class Take>
    void readChildren(Take take);
    template <class Read>
    void readChild(QStringView name, Read read);
    QString text() { return trimmedBlanks(xml_.readElementText(QXmlStreamReader::SkipChildElements)); }
    void readSimulatorPlan();
    void readSimulatorWaypoint();
    void readNavmapPlan();
    void readNavmapHeader();
    void readNavmapWaypoint();

    QXmlStreamReader xml_;
    FlightPlan plan_;
    bool isPlan_ = false;
};

bool XmlPlanReader::enterRoot() {
    while (!xml_.atEnd()) {
        const auto token = xml_.readNext();
        if (token == QXmlStreamReader::DTD) return false;
        if (token == QXmlStreamReader::StartElement) return true;
    }
    return false;
}

/// `take` gets each child's name and says whether it has read the child.
template <class Take>
void XmlPlanReader::readChildren(Take take) {
    while (xml_.readNextStartElement())
        if (!take(xml_.name())) xml_.skipCurrentElement();
}

/// Every child of that name.
template <class Read>
void XmlPlanReader::readChild(QStringView name, Read read) {
    readChildren([&](QStringView child) {
        if (child != name) return false;
        read();
        return true;
    });
}

std::optional<FlightPlan> XmlPlanReader::read() {
    if (!enterRoot()) return std::nullopt;
    if (xml_.name() == u"SimBase.Document")
        readChild(u"FlightPlan.FlightPlan", [this] { readSimulatorPlan(); });
    else if (xml_.name() == u"LittleNavmap")
        readChild(u"Flightplan", [this] { readNavmapPlan(); });
    if (!isPlan_) return std::nullopt;
    if (xml_.hasError())
        throw Error::withDescription(
            ErrorCode::ioFailure,
            u"The flight plan is damaged in line %1: %2"_s.arg(xml_.lineNumber()).arg(xml_.errorString()));
    return plan_;
}

void XmlPlanReader::readSimulatorPlan() {
    isPlan_ = true;
    QString departureCode, destinationCode;
    readChildren([&](QStringView name) {
        if (name == u"DepartureName")
            plan_.departure = text();
        else if (name == u"DestinationName")
            plan_.destination = text();
        else if (name == u"DepartureID")
            departureCode = text();
        else if (name == u"DestinationID")
            destinationCode = text();
        else if (name == u"CruisingAlt")
            plan_.altitude = text();
        else if (name == u"ATCWaypoint")
            readSimulatorWaypoint();
        else
            return false;
        return true;
    });
    if (plan_.departure.isEmpty()) plan_.departure = departureCode;
    if (plan_.destination.isEmpty()) plan_.destination = destinationCode;
}

/// The code in `ICAO` counts before the element's own name, which may be any text.
void XmlPlanReader::readSimulatorWaypoint() {
    Waypoint waypoint{.name = trimmedBlanks(xml_.attributes().value(u"id"_s).toString())};
    readChildren([&](QStringView name) {
        if (name == u"ATCWaypointType")
            waypoint.type = getWaypointType(text().left(1));
        else if (name == u"WorldPosition")
            takePosition(text(), waypoint);
        else if (name == u"ATCAirway")
            waypoint.airway = text();
        else if (name == u"ICAO")
            readChild(u"ICAOIdent", [&] {
                if (const QString code = text(); !code.isEmpty()) waypoint.name = code;
            });
        else
            return false;
        return true;
    });
    plan_.waypoints.push_back(waypoint);
}

/// Alternates have waypoints' elements, too, and are none of the route.
void XmlPlanReader::readNavmapPlan() {
    isPlan_ = true;
    readChildren([&](QStringView name) {
        if (name == u"Header")
            readNavmapHeader();
        else if (name == u"Waypoints")
            readChild(u"Waypoint", [this] { readNavmapWaypoint(); });
        else
            return false;
        return true;
    });
}

void XmlPlanReader::readNavmapHeader() {
    readChildren([&](QStringView name) {
        if (name != u"CruisingAlt" && name != u"CruisingAltF") return false;
        plan_.altitude = text().section(u'.', 0, 0);
        return true;
    });
}

/// The first waypoint is the departure, the last one the destination.
void XmlPlanReader::readNavmapWaypoint() {
    Waypoint waypoint;
    QString longName;
    readChildren([&](QStringView name) {
        if (name == u"Ident")
            waypoint.name = text();
        else if (name == u"Name")
            longName = text();
        else if (name == u"Airway")
            waypoint.airway = text();
        else if (name == u"Type") {
            const QString type = text();
            waypoint.type = getWaypointType(type == u"WAYPOINT" ? u"i"_s : type.left(1));
        } else if (name == u"Pos") {
            const QXmlStreamAttributes place = xml_.attributes();
            waypoint.latitude = latitudeText(storedDegrees(place.value(u"Lat"_s).toString()));
            waypoint.longitude = longitudeText(storedDegrees(place.value(u"Lon"_s).toString()));
            xml_.skipCurrentElement();
        } else
            return false;
        return true;
    });
    plan_.destination = longName.isEmpty() ? waypoint.name : longName;
    if (plan_.waypoints.empty()) plan_.departure = plan_.destination;
    plan_.waypoints.push_back(waypoint);
}

} // namespace

std::optional<FlightPlan> parseXmlFlightPlan(const QString& text) {
    return XmlPlanReader(text).read();
}

} // namespace morvane
