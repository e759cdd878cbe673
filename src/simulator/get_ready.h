#pragma once

#include "core/literals.h"

#include <QString>
#include <array>
#include <functional>

namespace morvane {

class Session;

/// What a new pilot needs before the first flight, in this order: every weather then has a set that fits.
enum class ReadyStep : std::size_t { simulator, backup, baseTextures, sets, weather };
inline constexpr std::size_t readyStepCount = 5;

enum class ReadyMark { waiting, working, done, leftOut, failed };

/// A step as it stands.
struct ReadyLine {
    ReadyMark mark = ReadyMark::waiting;
    QString text = {};   ///< "1,183 files, 64 MB, in Backup\\1-Backup"
    double percent = -1; ///< of one that is worked on; below 0 where that is not known
};

/// Of each cloud cover, ground and sky: the choice for a flight never takes the last of several.
inline constexpr int usualSetsOfEach = 3;

/// What new sets are made from.
enum class BaseTextures { asTheyAre, delivered, own };

struct ReadyWishes {
    std::array<bool, readyStepCount> isWanted{true, true, true, true, true};
    BaseTextures baseTextures = BaseTextures::asTheyAre;
    int setsOfEach = usualSetsOfEach;
};

/// "Three sets for each cloud cover, ground and sky".
QString readyCaption(ReadyStep step, int setsOfEach);

/// Does what is wanted and not done yet. Each step is a job of its own and tells its failures; one that fails
/// costs no other. What was done stays.
class GetReady {
public:
    using Told = std::function<void(ReadyStep step, const ReadyLine& line)>;

    /// The wishes may change until a step begins.
    GetReady(Session& session, const ReadyWishes& wishes) : session_(session), wishes_(wishes) {}

    /// Done already, or waiting.
    ReadyLine lineOf(ReadyStep step) const;
    /// Tells each line as it changes. False when it was cancelled or a step failed.
    bool run(const Told& told);
    /// Ends the run behind the file in hand.
    void cancel();

private:
    bool isDone(ReadyStep step) const;
    QString textOf(ReadyStep step) const;
    bool doStep(ReadyStep step, const Told& told);
    bool prepareBaseTextures();
    bool makeSets(const Told& told);

    Session& session_;
    const ReadyWishes& wishes_;
    bool isCancelled_ = false;
};

} // namespace morvane
