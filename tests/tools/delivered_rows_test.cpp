#include "made_install.h"

#include "core/row_set.h"
#include "core/store.h"
#include "support/printing.h"

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
    const QString delivered = files.read(FilePath(QStringLiteral(MORVANE_TEST_FOLDER "/delivered_rows.txt")));
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

} // namespace
} // namespace morvane
