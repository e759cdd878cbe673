#include "simulator/set_matching.h"

#include "core/error.h"
#include "core/failure_report.h"
#include "core/numbers.h"
#include "core/options.h"
#include "ground/cloud_cover.h"
#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "ground/no_repeat.h"
#include "simulator/simulator_launch.h"
#include "weather/metar_decoder.h"

#include <algorithm>

namespace morvane {

namespace {

/// An obscured sky ("6"), an empty and an unknown element all count as scattered.
int cloudValue(const QString& element) {
    const QString text = trimmedBlanks(element);
    if (text == u"1") return 1;
    if (text == u"2") return 2;
    if (text == u"4") return 4;
    if (text == u"5") return 5;
    return 3;
}

int strengthValue(const QString& element) {
    const QString text = trimmedBlanks(element);
    if (text == u"Light" || text == u"Moderate") return 1;
    return text == u"Heavy" ? 2 : 0;
}

bool isActivatedFor(const clsTextureSet& set, const QString& cover) {
    return set.Actvated == flagText(true) && trimmedBlanks(set.CloudCover) == trimmedBlanks(cover);
}

} // namespace

std::int16_t SetMatching::getAverageCloudCover() {
    std::int16_t average = 0;
    reportFailures(session_.user, {u"getIcaoWxDetails Error"_s, MessageKind::exclamation}, [&] {
        int sum = 0;
        for (const QString& element : session_.WxCloudList)
            sum += cloudValue(element);
        for (const QString& element : session_.WxStrengthList)
            sum += strengthValue(element);
        if (session_.WxCloudList.isEmpty()) return; // an unknown word on the command line: no error, class 0
        average = roundToInteger(static_cast<double>(sum) / static_cast<double>(session_.WxCloudList.size()));
    });
    return average;
}

QString SetMatching::coverWord(int cloudClass) {
    const int number = cloudClass < 1 ? 3 : std::min(cloudClass, cloudCoverCount);
    return cloudCover(number)->word;
}

bool SetMatching::askInstallMatchingSets() {
    const QString cover = coverWord(getAverageCloudCover());
    const QString start =
        u"Do you wish Morvane to select and install Ground and Sky Textures to match the weather "
        "conditions obtained"_s;
    const QString end = session_.CommandLineRun ? u" from Active Sky?"_s : u"?"_s;
    const bool wanted = session_.user.ask(Question::installMatchingSets, u"Install Textures?"_s, start + end);
    if (wanted) installMatchingSets(cover);
    return wanted;
}

QString SetMatching::getClosestCloudCover(const QString& cover) {
    // The chain bounces between 3 and 4 and never comes back to the ends: wanted.
    static const int next[cloudCoverCount] = {2, 3, 4, 3, 4};
    const CloudCover* known = cloudCover(cover);
    return known ? cloudCover(next[known->number - 1])->word : QString();
}

int SetMatching::getRandomIndex(int upper) {
    clsNoRepeat draws(session_.user, session_.random);
    const auto numbers = draws.Non_Repeating_Numbers(1, upper, 0);
    return numbers ? numbers->front() : 0;
}

QString SetMatching::chooseGroundSet(const QString& cover) {
    QStringList candidates;
    for (const auto& set : *session_.gTextureSets)
        if (isActivatedFor(*set, cover)) candidates << QString::number(set->TsID);
    if (!candidates.isEmpty()) {
        // The draw stops short of the upper index, so the last candidate never comes, and of two always the
        // first. It stays as it is.
        const int upper = static_cast<int>(candidates.size()) - 1;
        return session_.gTextureSets->GetKey(candidates[upper == 0 ? 0 : getRandomIndex(upper)])->TextureSet;
    }
    session_.user.showMessage({MessageKind::information, u"No Activated Ground Texture Sets"_s,
                               u"you have no activated ground texture sets equivalent to "_s + cover +
                                   u" MV will now install the closest ground texture set to "_s + cover,
                               true, false, false});
    return closestGroundSet(cover);
}

QString SetMatching::closestGroundSet(const QString& cover) {
    QString current = cover;
    for (int round = 0; round < 4; ++round) {
        current = getClosestCloudCover(current);
        for (const auto& set : *session_.gTextureSets)
            if (isActivatedFor(*set, current)) return set->TextureSet;
    }
    return {};
}

void SetMatching::installMatchingSets(const QString& cover) {
    // The kind is misspelt here and nowhere else in this file: it names an icon of its own.
    reportFailures(session_.user, {u"getIcaoWxDetails Error"_s, MessageKind::exlamation}, [&] {
        loadedGroundSets(session_);
        const QString name = chooseGroundSet(cover);
        session_.ground.SelectedGroundSet = name.isEmpty() ? u"Default"_s : name;
        GroundInstallation installation(session_);
        installation.installTextureSet(true);
        filesCopied_ = installation.filesCopied();
    });
}

bool processMetarString(Session& session, const QString& metar) {
    clsDecodeMetar report(session.user);
    report.decodeMetarString(trimmedBlanks(metar));
    session.WxCloudList = QStringList{QString::number(report.MetarMaxCloud)};
    session.WxStrengthList = QStringList{QString()};
    if (report.MetarMaxCloud != 0) return true;
    session.user.showMessage({MessageKind::error, u"METAR Format Error!"_s,
                              u"METAR String format not recognised please enter new string to process"_s,
                              true, false, false});
    return false;
}

int flyNow(Session& session) {
    session.CoverCancelled = false;
    SetMatching matching(session);
    const int copied = matching.askInstallMatchingSets() ? matching.filesCopied() : -1;
    if (!session.CoverCancelled) startSavedFlight(session);
    if (!session.CoverCancelled && !session.modal.FlightSelected) launchFlightSimulator(session);
    return copied;
}

} // namespace morvane
