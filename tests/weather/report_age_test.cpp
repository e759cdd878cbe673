#include "weather/report_age.h"

#include "core/registry.h"
#include "support/printing.h"
#include "support/small_install.h"
#include "weather/report_rows.h"
#include "weather/reports.h"
#include "weather/weather_state.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

QDateTime utc(const QString& text) {
    QDateTime moment = QDateTime::fromString(text, u"yyyy-MM-dd hh:mm"_s);
    moment.setTimeSpec(Qt::UTC);
    return moment;
}

TEST(ReportAge, aReportIsOfTheLastSuchMomentUpToAnHourAhead) {
    const struct {
        QString clock, day, time, moment;
    } cases[] = {
        {u"2026-11-21 03:04"_s, u"21"_s, u"0404"_s, u"2026-11-21 04:04"_s},
        {u"2026-11-21 03:04"_s, u"21"_s, u"0405"_s, u"2026-10-21 04:05"_s},
        {u"2027-03-01 00:10"_s, u"31"_s, u"2350"_s, u"2027-01-31 23:50"_s}, // February has none
        {u"2026-11-21 03:04"_s, u"32"_s, u"0200"_s, {}},
        {u"2026-11-21 03:04"_s, u"21"_s, u"2400"_s, {}},
    };
    for (const auto& [clock, day, time, moment] : cases)
        EXPECT_EQ(observationTime(day, time, utc(clock)).toString(u"yyyy-MM-dd hh:mm"), moment)
            << (clock + u" / "_s + day + time).toStdString();
}

TEST(ReportAge, theLineCountsFromTheYoungestByWhatTheReportsSay) {
    test::SmallInstall install;
    Session& session = install.session;
    EXPECT_EQ(reportAgeText(session), "No reports yet");
    const auto add = [&](const QString& icao, const QString& day, const QString& time) {
        clsWxFinder report;
        report.WxFinderIcao = icao;
        report.WxFinderDate = day;
        report.WxFinderTime = time;
        storeReport(session, report);
        clsWxFinders::reload(session);
    };
    install.clock.now = utc(u"2026-11-21 03:04"_s);
    add(u"AAAA"_s, {}, {});
    EXPECT_EQ(reportAgeText(session), "1 report, none with a time");
    add(u"CCCC"_s, u"03"_s, u"2350"_s);
    add(u"DDDD"_s, u"21"_s, u"0200"_s);
    add(u"EEEE"_s, u"21"_s, u"0150"_s);
    const std::pair<QString, QString> ages[] = {
        {u"2026-11-21 02:01"_s, u"1 minute"_s},
        {u"2026-11-23 01:59"_s, u"47 hours"_s},
        {u"2026-11-23 02:00"_s, u"2 days"_s},
    };
    for (const auto& [clock, age] : ages) {
        install.clock.now = utc(clock);
        EXPECT_EQ(reportAgeText(session), u"4 reports, the youngest of 02:00Z 21 Nov, "_s + age + u" old"_s);
    }
}

} // namespace
} // namespace morvane
