#include "made_install.h"

#include "core/row_set.h"
#include "core/store.h"
#include "core/text_decoding.h"
#include "support/printing.h"

#include <QRegularExpression>
#include <QSet>

namespace morvane {
namespace {

using DeliveredRows = test::StartedInstall;

TEST_F(DeliveredRows, everyTableHoldsItsCountBehindAFirstRunWithoutAQuestion) {
    EXPECT_TRUE(hasStarted);
    EXPECT_EQ(user.countOfKind(MessageKind::question), 0);
    const QString counts =
        u"AIRPORTDATA 19871|DECODED_METAR 611|MV_BACKUP 1|MV_CONFIG 4|NIGHT_TEXTURE_SETS 5|"
        u"RESOURCE_FOLDERS 4|SKY_TEXTURE_SETS 1|SKY_TEXTURE_SUB_SETS 1|TEXTURE_SETS 1|"
        u"TEXTURE_SWITCH 1|WX_STATIONS 0"_s;
    QStringList found;
    for (const QString& table : session.adoConn->tables())
        found << u"%1 %2"_s.arg(table).arg(RowSet(*session.adoConn, u"SELECT * FROM "_s + table).count());
    found.sort();
    EXPECT_EQ(found, counts.split(u'|'));
}

TEST_F(DeliveredRows, haveTheirTexts) {
    const QString delivered = files.read(test::testFile(u"delivered_rows.txt"));
    const QStringList blocks = delivered.trimmed().split(u"\n\n"_s).mid(1); // behind the file's own words
    EXPECT_EQ(blocks.size(), 10);
    for (const QString& block : blocks) {
        const QStringList lines = block.split(u'\n');
        QStringList found = lines.mid(0, 2);
        RowSet rows(*session.adoConn, u"SELECT * FROM "_s + lines[0] + u" ORDER BY ID"_s);
        for (; !rows.atEnd(); rows.next()) {
            QStringList fields;
            for (const QString& column : lines[1].split(u'|'))
                fields << rows.text(column);
            found << fields.join(u'|');
        }
        EXPECT_EQ(found, lines);
    }
}

/// The position of a row; told when it is not in signed decimal degrees.
QString positionOf(const RowSet& row) {
    static const QRegularExpression form(u"^-?\\d{1,2}(\\.\\d{1,6})? -?1?\\d{1,2}(\\.\\d{1,6})?$"_s);
    const QString position = row.text(u"METAR_LAT") + u' ' + row.text(u"METAR_LONG");
    EXPECT_TRUE(position == u" " || form.match(position).hasMatch()) << position.toStdString();
    return position;
}

/// Every station of the sample cycles.
QSet<QString> reportingStations(FileSystem& files) {
    const FilePath data(QStringLiteral(MORVANE_DATA_DIR));
    QSet<QString> stations;
    for (const char16_t* file : {u"metar\\Export_Cycle.dat", u"metar\\02Z.TXT"})
        for (const QString& line : splitLines(decodeText(files.read(data / file))))
            if (const QString word = line.section(u' ', 0, 0); !word.isEmpty() && !word.contains(u'/'))
                stations << word;
    return stations;
}

TEST_F(DeliveredRows, reportsAreThoseOfTheSampleCyclesOneAStationWithItsPosition) {
    QSet<QString> stations;
    int placed = 0;
    RowSet rows(*session.adoConn, u"SELECT * FROM DECODED_METAR"_s);
    for (; !rows.atEnd(); rows.next()) {
        const QString station = rows.text(u"METAR_ICAO");
        stations << station;
        EXPECT_TRUE(rows.text(u"METAR_STRING").startsWith(station + u' '));
        const QString cycle =
            rows.text(u"METAR_CYCLE") + rows.text(u"METAR_MONTH") + rows.text(u"METAR_YEAR");
        EXPECT_TRUE(cycle == u"2November2011" || cycle == u"16October2007") << cycle.toStdString();
        placed += positionOf(rows) != u" ";
    }
    EXPECT_EQ(stations.size(), rows.count());
    EXPECT_EQ(stations, reportingStations(files));
    EXPECT_EQ(placed, 571); // no public list knows the other forty
}

} // namespace
} // namespace morvane
