#include "support/version_two_install.h"

#include "core/row_set.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "ground/texture_sets.h"
#include "sets/resource_folders.h"

namespace morvane::test {

namespace {

QByteArray airportLines() {
    QByteArray text = "ID;ICAO;NAME;CITY;COUNTRY;STATE;LAT;LONG;ELEVATION;REGION;BLOCK;STATION\r\n";
    for (int i = 1; i < newAirports; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += number + ";KAA" + number + ";Field " + number +
                ";Town;United States;Washington;47-27N;122-19W;131;4;72;79" + number + "\r\n";
    }
    // A blank number, and a letter beyond ASCII in a single byte.
    return text + "9;LSZ1;Z\xfcrich;Z\xfcrich;Switzerland;;47-28N;8-33E;;   ;;\r\n";
}

QByteArray reportLine(const QByteArray& station, const QByteArray& gusting, const QByteArray& cloud) {
    return "1;" + station + " 020153Z 20010KT;" + station + ";10;KT;200;" + gusting + ";;;;;Overcast;" +
           cloud + ";10;SM;;;;12;10;29.92;02;11;2011;0153;02;47-27N;122-19W\r\n";
}

} // namespace

void makeVersionTwo(SmallInstall& install) {
    install.addGroundSet(u"2-Own Á"_s, u"Overcast"_s, true);
    install.addGroundSet(u"3-Own B"_s, u"Sky Clear"_s, true);
    Store& store = *install.session.adoConn;
    for (const char* statement :
         {"ALTER TABLE AIRPORTDATA DROP COLUMN STATE", "ALTER TABLE DECODED_METAR DROP COLUMN METAR_LAT",
          "ALTER TABLE DECODED_METAR DROP COLUMN METAR_LONG", "ALTER TABLE TEXTURE_SETS DROP COLUMN DUTCH",
          "DROP TABLE TEXTURE_SWITCH", "DROP TABLE NIGHT_TEXTURE_SETS",
          "DELETE FROM RESOURCE_FOLDERS WHERE RESOURCE_NAME = 'DUTCH'",
          "CREATE TABLE COUNTRIES(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, COUNTRY TEXT(50))",
          "INSERT INTO AIRPORTDATA(ICAO) VALUES('OLD1')", "INSERT INTO AIRPORTDATA(ICAO) VALUES('OLD2')",
          "INSERT INTO DECODED_METAR(METAR_ICAO) VALUES('OLD1')"})
        store.execute(QString::fromLatin1(statement));
    closeDatabase(install.session);
    install.session.rows<clsTextureSets>().reset();
    install.session.rows<clsResourceFolders>().reset();
    writeFile(install.home() / u"AIRPORTDATA.txt", airportLines());
    writeFile(install.home() / u"DECODED_METAR.txt",
              "heading\r\n" + reportLine("KAA1", "True", "5") + reportLine("KAA2", "", "") +
                  reportLine("KAA3", "False", "3") + reportLine("KAA4", "-1", "0"));
    writeFile(install.home() / u"Resources\\GENERIC WORLD\\002b2su1.bmp", smallBitmap(16, 70));
    writeFile(install.home() / u"Resources\\GENERIC WORLD\\022a2wi1.bmp", smallBitmap(16, 140));
    install.files.removeFolder(install.home() / u"TempBitmaps\\Dutch");
}

} // namespace morvane::test
