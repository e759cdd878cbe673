#include "simulator/kept_removal.h"

#include "core/failure_report.h"
#include "core/job.h"
#include "core/numbers.h"
#include "ground/ground_sets.h"
#include "night/night_sets.h"
#include "sets/temp_bitmaps.h"
#include "sets/undo_step.h"
#include "simulator/backup_removal.h"
#include "sky/sky_sets.h"

namespace morvane {

namespace {

/// Of several the user chooses; a single one is asked about as anywhere else.
template <class Kind>
void emptySets(Session& session, const KeptItem& item) {
    const QStringList names = setsToEmpty<Kind>(session);
    const QString text =
        u"The files of %1 can go; all of them take %2.  Their colours stay, and each can be activated again, "
        "which takes as long as making it.  The set that is installed and \"Default\" keep their files.\n\n"
        "Which sets those are is asked next."_s.arg(
            countText(names.size(), Kind::facts().word.toLower() + u" set"_s), keptText(item.bytes));
    if (names.isEmpty()) return;
    if (names.size() > 1 && !session.user.ask(Question::setAction, removalTitle, text)) return;
    if (!clickSetNamed<Kind>(session, names.first())) return;
    session.state<typename Kind::Selection>().selectedRows = names;
    Kind::remove(session, true);
}

/// What goes at once, behind the question.
struct PlainRemoval {
    QString question; ///< up to what of it will be free
    QString done;
    void (*remove)(Session&);
};

void removePlainly(Session& session, const KeptItem& item, const PlainRemoval& removal) {
    Job job(session, u"removal of kept files"_s, Job::Start::behindQuestions);
    if (!job) return;
    const QString text =
        removal.question + u"  Up to %1 of the disk will be free."_s.arg(keptText(item.bytes));
    if (!session.user.ask(Question::backup, removalTitle, text) || !job.begin()) return;
    if (reportFailures(session.user, morvaneError, [&] { removal.remove(session); }))
        session.user.tellDone({removal.done});
    session.user.refreshScreen(Screen::frm_Main);
}

} // namespace

void removeKept(Session& session, const KeptItem& item) {
    if (!item.isRemovable) return;
    if (item.kind == KeptKind::groundSets) emptySets<GroundKind>(session, item);
    if (item.kind == KeptKind::skySets) emptySets<SkyKind>(session, item);
    if (item.kind == KeptKind::nightSets) emptySets<NightKind>(session, item);
    if (item.kind == KeptKind::backup) removeBackup(session, item.name);
    if (item.kind == KeptKind::undo)
        removePlainly(session, item,
                      {u"Do you wish to remove what Undo needs?  The last install can then not be taken back "
                       "by it.  Your originals stay."_s,
                       u"Undo removed"_s, forgetLastStep});
    if (item.kind == KeptKind::passing)
        removePlainly(session, item,
                      {u"Do you wish to remove the intermediate images?  They are left from making sets; the "
                       "next run makes them again."_s,
                       u"Intermediate images removed"_s, cleanTempBitmaps});
}

} // namespace morvane
