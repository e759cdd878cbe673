#include "simulator/stock_import.h"

#include "core/error.h"
#include "core/failure_report.h"
#include "core/ordered_work.h"
#include "core/safe_copy.h"
#include "ground/ground_sets.h"
#include "imaging/picture_reader.h"
#include "imaging/pixel_buffer.h"
#include "night/night_sets.h"
#include "simulator/backup_files.h"
#include "simulator/backups.h"

#include <algorithm>

namespace morvane {

namespace {

const QString title = u"Use My Simulator's Textures"_s;

void tell(Session& session, MessageKind kind, const QString& text) {
    session.user.hideMessage();
    session.user.showMessage({kind, title, text});
}

template <class Sets>
bool isSetInstalled(const Sets& sets) {
    return std::ranges::any_of(sets, [](const auto& set) { return set->Installed; });
}

/// The newest of those that are whole; of the others when none is.
const clsBackup* newestBackup(Session& session) {
    if (!session.gBackups && !clsBackups::reload(session)) return nullptr;
    const clsBackup* newest = nullptr;
    const auto rank = [&](const clsBackup& backup) {
        return std::pair(isBackupComplete(session, backup.BackupName), backup.BackupDateTime);
    };
    for (const auto& backup : *session.gBackups)
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
    const QString taken = backup->BackupDateTime.toString(u"yyyy-MM-dd hh:mm");
    if (!session.user.ask(Question::backup, title,
                          u"A Morvane texture set is installed in Flight Simulator now.  Would you like to "
                          u"use the textures of your newest backup, "_s +
                              backup->BackupName + u" of "_s + taken + u", instead?"_s))
        return std::nullopt;
    const FilePath folder = (session.AppPath / u"Backup").child(backup->BackupName);
    return StockSource{folder / u"Texture", folder / u"UTEurLC"};
}

std::optional<StockSource> sourceFromSimulator(Session& session, bool isConfirmed) {
    if (!refreshGroundSets(session) || !refreshNightSets(session)) return std::nullopt;
    if (isSetInstalled(loadedGroundSets(session)) || isSetInstalled(loadedNightSets(session)))
        return sourceFromBackup(session);
    const QString question =
        u"Would you like Morvane to make its base images from the textures of your Flight Simulator?  The "
        "images that are there now are kept, so that you can go back to them."_s;
    if (!isConfirmed && !session.user.ask(Question::backup, title, question)) return std::nullopt;
    return StockSource{session.FSPath / u"Scenery\\World\\Texture",
                       session.FSPath / u"Scenery\\UTEurLC\\Texture"};
}

/// Makes the file that is to stand in its place, beside it. Nothing for a file that is no picture: one broken
/// texture must not cost the pilot all others.
bool makePart(FileSystem& files, const StockFile& file, const FilePath& part) {
    if (!file.isPicture) {
        files.copyContents(file.source, part);
        return true;
    }
    cDIBSection image;
    try {
        image.CreateFromPicture(loadPicture(files, file.source));
    } catch (const Error& error) {
        if (error.code() != ErrorCode::invalidPicture) throw;
    }
    if (!image.isCreated()) return false;
    if (!image.SavePicture(part)) throw Error(ErrorCode::diskFull, part.text());
    return true;
}

class StockImport {
public:
    StockImport(Session& session, const Job& job, const StockSource& source)
        : session_(session), job_(job), plan_(planStockImport(session, source)),
          kept_(session.files, session.AppPath) {
        session.user.showMessage({MessageKind::progress, title,
                                  u"Morvane is making base images from your textures.  Please wait......."_s,
                                  false, true, true});
    }

    StockImportReport run() {
        if (!plan_.files.empty()) {
            announce();
            report_.isCancelled = !bringAll();
            clearParts();
        }
        report_.categories = std::move(plan_.categories);
        return std::move(report_);
    }

private:
    void announce() {
        std::vector<InstallFile> targets;
        for (const StockFile& file : plan_.files) {
            targets.push_back(file.target);
            const QString& folder = file.target.folder;
            if (folders_.contains(folder)) continue;
            session_.files.makeFolder(session_.AppPath / folder);
            folders_.insert(folder, (session_.AppPath / folder).resolved());
        }
        clearParts();
        kept_.announce(targets);
    }

    /// Of files that were made ahead of a cancel, or of a run that died.
    void clearParts() {
        for (const FilePath& folder : folders_)
            removePartialCopies(session_.files, folder);
    }

    FilePath partOf(const StockFile& file) const {
        return folders_.value(file.target.folder).exactChild(file.target.name + partialCopySuffix);
    }

    /// False when it was cancelled.
    bool bringAll() {
        const std::size_t count = plan_.files.size();
        OrderedWork<bool> work(static_cast<int>(count), [&](int i) {
            const StockFile& file = plan_.files[static_cast<std::size_t>(i)];
            return makePart(session_.files, file, partOf(file));
        });
        for (std::size_t i = 0; i < count; ++i) {
            session_.user.updateProgress({}, {}, 100 * static_cast<double>(i) / static_cast<double>(count));
            if (job_.isCancelled()) return false;
            bring(plan_.files[i], work.next());
        }
        return true;
    }

    void bring(const StockFile& file, bool isMade) {
        if (!isMade) {
            report_.unreadable << file.source.fileName();
            return;
        }
        kept_.replace(file.target, partOf(file));
        ++report_.files;
        ++plan_.categories[file.category].count;
    }

    Session& session_;
    const Job& job_;
    StockPlan plan_;
    KeptStock kept_;
    QHash<QString, FilePath> folders_;
    StockImportReport report_;
};

QString closingText(const StockImportReport& report) {
    if (report.isCancelled)
        return u"The import was cancelled after %1 files.  What stood there before is kept and can be put back."_s
            .arg(report.files);
    qsizetype missing = 0;
    for (const StockCategory& category : report.categories)
        missing += category.emptyPatterns.size();
    QString text = u"%1 base images and annotation files were made from your textures.  "
                   "%2 kinds of land have no texture among them and keep Morvane's own."_s.arg(report.files)
                       .arg(missing);
    if (!report.unreadable.isEmpty())
        text += u"  %1 files could not be read as pictures."_s.arg(report.unreadable.size());
    return text;
}

} // namespace

StockImportReport importStock(Session& session, const Job& job, const StockSource& source) {
    return StockImport(session, job, source).run();
}

std::optional<StockImportReport> importStock(Session& session, const StockSource& source) {
    std::optional<StockImportReport> report;
    Job job(session);
    if (!job) return report;
    if (!reportFailures(session.user, {}, [&] { report = importStock(session, job, source); })) return {};
    job.end();
    if (report->files == 0 && !report->isCancelled)
        tell(session, MessageKind::exclamation,
             u"No textures of Flight Simulator were found in "_s + source.world.text());
    else
        tell(session, MessageKind::information, closingText(*report));
    return report;
}

std::optional<StockImportReport> importSimulatorStock(Session& session, bool isConfirmed) {
    std::optional<StockSource> source;
    reportFailures(session.user, {}, [&] { source = sourceFromSimulator(session, isConfirmed); });
    return source ? importStock(session, *source) : std::nullopt;
}

std::optional<int> restoreStock(Session& session) {
    std::optional<int> count;
    Job job(session);
    if (!job) return count;
    reportFailures(session.user, {}, [&] {
        count = KeptStock(session.files, session.AppPath).restore();
        job.end();
        tell(session, MessageKind::information,
             u"%1 base images and annotation files were put back."_s.arg(*count));
    });
    return count;
}

bool hasKeptStock(Session& session) {
    return !KeptStock(session.files, session.AppPath).isEmpty();
}

} // namespace morvane
