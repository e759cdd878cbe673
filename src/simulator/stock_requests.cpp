#include "simulator/stock_requests.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "ground/ground_sets.h"
#include "night/night_sets.h"
#include "sets/undo_step.h"
#include "simulator/backup_files.h"
#include "simulator/backups.h"
#include "simulator/kept_stock.h"

#include <algorithm>

namespace morvane {

namespace {

/// What goes into the simulator as it is, and what an import changes of it.
const QStringList bodyFolders{
    u"GENERIC WORLD"_s, u"GENERIC WORLD NIGHT"_s, u"DUTCH"_s, u"DUTCH NIGHT"_s, u"UTIND"_s, u"UT EUROPE"_s};

void tell(Session& session, MessageKind kind, const QString& text) {
    session.user.hideMessage();
    session.user.showMessage({kind, stockTitle, text});
}

template <class Sets>
bool isSetInstalled(const Sets& sets) {
    return std::ranges::any_of(sets, [](const auto& set) { return set->Installed; });
}

/// The newest of those that are whole; of the others when none is.
const clsBackup* newestBackup(Session& session) {
    if (!session.rows<clsBackups>() && !clsBackups::reload(session)) return nullptr;
    const clsBackup* newest = nullptr;
    const auto rank = [&](const clsBackup& backup) {
        return std::pair(isBackupComplete(session, backup.BackupName), backup.BackupDateTime);
    };
    for (const auto& backup : *session.rows<clsBackups>())
        if (!newest || rank(*newest) < rank(*backup)) newest = backup.get();
    return newest;
}

std::optional<StockSource> sourceFromBackup(Session& session) {
    const clsBackup* backup = newestBackup(session);
    if (!backup) {
        tell(session, MessageKind::exclamation,
             u"A Morvane texture set is installed in Flight Simulator now and there is no backup of your own "
             "textures.  Restore them first, then try again."_s);
        return std::nullopt;
    }
    const QString taken = dayText(backup->BackupDateTime, u"yyyy-MM-dd hh:mm"_s);
    if (!session.user.ask(Question::backup, stockTitle,
                          u"A Morvane texture set is installed in Flight Simulator now.  Would you like to "
                          u"use the textures of your newest backup, "_s +
                              backup->BackupName + u" of "_s + taken + u", instead?"_s))
        return std::nullopt;
    const auto [world, addOn] = backupPlaces(session, backup->BackupName);
    return StockSource{world.backup, addOn.backup};
}

std::optional<StockSource> sourceFromSimulator(Session& session, bool isConfirmed) {
    if (!refreshGroundSets(session) || !refreshNightSets(session)) return std::nullopt;
    if (isSetInstalled(loadedGroundSets(session)) || isSetInstalled(loadedNightSets(session)))
        return sourceFromBackup(session);
    const QString question =
        u"Would you like Morvane to make its base images from the textures of your Flight Simulator?  The "
        "images that are there now are kept, so that you can go back to them."_s;
    if (!isConfirmed && !session.user.ask(Question::backup, stockTitle, question)) return std::nullopt;
    return StockSource{session.FSPath / u"Scenery\\World\\Texture",
                       session.FSPath / u"Scenery\\UTEurLC\\Texture"};
}

QString unreadableText(const StockImportReport& report) {
    return u"Left out, as they could not be read as textures: "_s + namesText(report.unreadable);
}

QString endedText(const StockImportReport& report) {
    const QString how = report.isCancelled ? u"was cancelled"_s : u"ended"_s;
    QString text = u"The import %1 after %2 of %3.  "_s.arg(how, countText(report.files),
                                                            countText(report.planned, u"file"_s));
    if (!report.failure.isEmpty()) text += report.failure + u".  "_s;
    return text + (report.files == 0 ? u"No base image was replaced."_s
                                     : u"What stood there before is kept and can be put back."_s);
}

qsizetype emptyKinds(const StockImportReport& report) {
    qsizetype count = 0;
    for (const StockCategory& category : report.categories)
        count += category.emptyPatterns.size();
    return count;
}

DoneLine doneLine(const StockImportReport& report) {
    const qsizetype leftOut = report.unreadable.size(), kinds = emptyKinds(report);
    DoneLine line{countText(report.files, u"file"_s) + u" imported"_s};
    if (leftOut > 0) line.text += u", %1 left out"_s.arg(countText(leftOut));
    if (kinds > 0) line.remark = u"Morvane's own for "_s + countText(kinds, u"kind"_s) + u" of land"_s;
    line.hasLeftOut = leftOut > 0;
    return line;
}

void tellEnd(Session& session, const StockImportReport& report, const StockSource& source) {
    if (!report.failure.isEmpty()) return tell(session, MessageKind::error, endedText(report));
    if (report.isCancelled) return tell(session, MessageKind::information, endedText(report));
    if (report.files == 0)
        return tell(session, MessageKind::exclamation,
                    u"No textures of Flight Simulator were found in "_s + source.world.text() +
                        (report.unreadable.isEmpty() ? QString() : u".  "_s + unreadableText(report)));
    session.user.hideMessage();
    if (!report.unreadable.isEmpty()) tell(session, MessageKind::information, unreadableText(report));
    session.user.tellDone(doneLine(report));
}

} // namespace

std::optional<StockImportReport> importStock(Session& session, const StockSource& source) {
    std::optional<StockImportReport> report;
    {
        const Job job(session, u"import of base textures"_s);
        if (!job) return report;
        reportFailures(session.user, morvaneError, [&] {
            saveForUndo(session, bodyFolders);
            report = importStock(session, job, source);
        });
    }
    session.user.hideMessage();
    if (report) tellEnd(session, *report, source);
    return report;
}

std::optional<StockImportReport> importSimulatorStock(Session& session, bool isConfirmed) {
    std::optional<StockSource> source;
    reportFailures(session.user, morvaneError, [&] { source = sourceFromSimulator(session, isConfirmed); });
    return source ? importStock(session, *source) : std::nullopt;
}

std::optional<int> restoreStock(Session& session, bool isConfirmed) {
    const QString question =
        u"Would you like Morvane to use the delivered base images again?  Those that were made from your "
        "own textures go; they can be made again."_s;
    std::optional<int> count;
    if (!isConfirmed && !session.user.ask(Question::backup, stockTitle, question)) return count;
    const Job job(session, u"return to the delivered base textures"_s);
    if (!job) return count;
    reportFailures(session.user, morvaneError, [&] {
        saveForUndo(session, bodyFolders);
        count = KeptStock(session.files, session.AppPath).restore();
    });
    if (count) session.user.tellDone({countText(*count, u"delivered file"_s) + u" put back"_s});
    return count;
}

bool hasKeptStock(Session& session) {
    return !KeptStock(session.files, session.AppPath).isEmpty();
}

} // namespace morvane
