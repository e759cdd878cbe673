#pragma once

#include "core/reported.h"
#include "ground/ground_sets.h"
#include "sets/catalogue_file.h"
#include "sets/set_generation.h"
#include "sets/slider_values.h"

#include <array>

namespace morvane {

/// frm_TsRequired: sets wanted for the cloud covers 1 to 5, and whether OK was pressed.
struct GroundSetCounts {
    std::array<std::int16_t, 5> setCounts{};
    bool setCountsConfirmed = false;
};

/// Makes, rebuilds and removes ground sets. A set's row is written first and its files after it, set by set;
/// a cancel ends the whole run and takes the unfinished set with it.
class GroundGeneration : public SetGeneration {
public:
    explicit GroundGeneration(Session& session);

    /// Asks for the quantities (frm_TsRequired) and makes the sets, all of one cloud cover before the next.
    /// `fromMain` tells which screen started the run and comes back at its end.
    void createTextureSets(bool fromMain);
    /// One set in random colours for the cloud cover of that number, 1 to 5, as a part of the job. A cancel
    /// takes it away again. False when the store refused it, which was told: it would refuse another one,
    /// too.
    Reported createOneSet(const Job& job, int cloudNumber, int number, int total);

private:
    bool createAll(const Job& job, int total, bool fromMain);
    void dropUnfinishedSet();
    Reported createRandomSet(const Job& job, int cloudNumber, Counters counters, bool fromMain);
    bool createSet(const Job& job, int cloudNumber, const SliderValues& sliders, Counters counters,
                   bool fromMain);
    void reportDuration(const QTime& start, const QTime& end, int total);
    void endRun(bool fromMain);

    std::vector<CatalogueFile> baseFilesOf(const QString& name) override;
};

/// Minutes between two times of day as the report counts them.
int reportedMinutes(const QTime& start, const QTime& end);

} // namespace morvane
