#include "sets/set_installation.h"

#include "core/failure_report.h"
#include "sets/cloud_cover.h"
#include "sets/options_in_force.h"
#include "sets/simulator_note.h"
#include "sets/undo_step.h"

namespace morvane {

bool SetInstallation::install() {
    const bool isInstalled = runAlone(true) == Outcome::installed;
    // The job has ended by now: what the user does before the answer is no part of it.
    return isInstalled && !session_.CommandLineRun && kind_.match.has_value();
}

Reported SetInstallation::install(const QString& name) {
    set_.inHand(session_).name = name;
    return runAlone(false) == Outcome::installed;
}

Reported SetInstallation::installInside(Job& job, const QString& name) {
    set_.inHand(session_).name = name;
    return run(job, false) != Outcome::storeRefused;
}

SetInstallation::Outcome SetInstallation::runAlone(bool isByHand) {
    if (session_.jobRunning) return Outcome::failed;
    Job job(session_, u"install of a %1 set"_s.arg(set_.facts.word.toLower()), Job::Start::behindQuestions);
    return run(job, isByHand);
}

SetInstallation::Outcome SetInstallation::run(Job& job, bool isByHand) {
    filesCopied_ = 0;
    Outcome outcome = Outcome::failed;
    reportFailures(session_.user, morvaneError, [&] {
        UndoStep step(session_); // with the match
        if (isByHand && !prepareByHand(job)) return;
        if (!job.begin() || !claimSimulator(session_)) return;
        const QString name = set_.inHand(session_).name;
        step.add(set_.facts.word + u" set "_s + name);
        outcome = installSet(name) ? Outcome::installed : Outcome::storeRefused;
    });
    if (outcome != Outcome::installed || session_.CommandLineRun) return outcome;
    session_.user.refreshScreen(Screen::frm_Main);
    if (!isByHand) return outcome;
    set_.inHand(session_).refreshList = true;
    session_.user.refreshScreen(set_.facts.listScreen);
    return outcome;
}

bool SetInstallation::prepareByHand(Job& job) {
    if (set_.inHand(session_).selection.selectedRows.size() > 1) {
        // The title is misspelt: the message's own word.
        session_.user.showMessage({MessageKind::exclamation, u"Multiple Selection Detetected!"_s,
                                   kind_.severalRowsText, true, false, false});
        return false;
    }
    if (!kind_.match) return true;
    // Both questions stand under the ground's title, also the one that offers a sky.
    const bool isMatchWanted = session_.user.ask(
        Question::setInstall, u"Install Matching Ground Texture Set?"_s, kind_.match->question);
    return !isMatchWanted || installMatch(job, *kind_.match);
}

/// False when the store refused.
bool SetInstallation::installMatch(Job& job, const MatchOffer& match) {
    const SetKind& other = *(session_.state<WeatherKinds>().*match.otherKind);
    if (match.needsAnySet && other.count(session_) == 0) return true;
    const QStringList names = namesForCover(other.activated(session_), set_.inHand(session_).cover);
    return other.installInside(session_, job, drawName(session_, names, names.size() - match.neverDrawn));
}

FileCopy SetInstallation::splashCopy(const CloudCover& cover) const {
    return {session_.AppPath / u"Media" / cover.splash, splashTarget(session_)};
}

void SetInstallation::prepare(SimulatorCopier& copier, std::vector<FileCopy> copies,
                              const CloudCover* splash) {
    if (splash) copies.insert(copies.begin(), splashCopy(*splash)); // as it is put
    copier.prepare(copies);
}

void SetInstallation::showProgress() {
    session_.user.showMessage(
        {MessageKind::progress, u"Morvane Information"_s,
         u"Processing your "_s + set_.facts.word +
             u" Texture Files.  Please wait until the process has finished.  This may take a few moments!"_s,
         false, false, true});
}

void SetInstallation::showCover(const QString& tagged) {
    session_.user.setProgressFile(u"Installing "_s + tagged + u' ' + set_.facts.word.toLower() +
                                  u" textures"_s);
}

/// No messages are let through and no cancel is read: an install once begun goes through its list.
void SetInstallation::copyAll(SimulatorCopier& copier, const std::vector<FileCopy>& copies) {
    const double steps = static_cast<double>(copies.size()) + kind_.stepsBesideFiles;
    const double step = copies.empty() ? 100.0 : 100.0 / steps;
    double position = 0;
    for (const FileCopy& copy : copies) {
        copier.copy(copy);
        ++filesCopied_;
        session_.user.updateProgress({}, {}, position += step);
    }
}

void SetInstallation::finish(SimulatorCopier& copier) {
    session_.user.updateProgress({}, {}, 100);
    session_.user.hideMessage();
    copier.finish(); // may wait for the disk, which is nobody else's concern
}

void SetInstallation::putSet(const QString& coverWord, const std::vector<FileCopy>& copies) {
    const CloudCover* cover = cloudCover(coverWord);
    const bool withSplash = cover && !session_.state<OptionsInForce>().InhibitCustomSplash;
    showProgress();
    showCover(coverWord + (cover ? cover->tag : QString()));
    SimulatorCopier copier(session_);
    prepare(copier, copies, withSplash ? cover : nullptr);
    if (withSplash) copier.copy(splashCopy(*cover));
    copyAll(copier, copies);
    finish(copier);
}

} // namespace morvane
