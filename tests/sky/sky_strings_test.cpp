#include "sky/sky_strings.h"

#include "sky/sky_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct StringsTest : testing::Test {
    /// The six numbers of every group.
    QStringList drawnNumbers(int cloudIndex, const QString& baseSet) {
        QStringList numbers;
        for (const QString& text : drawSkyStrings(session, cloudIndex, baseSet))
            numbers << text.section(u':', 0, 5);
        return numbers;
    }

    test::SmallInstall install;
    Session& session = install.session;
};

/// Which groups draw, in which order, and which take another's numbers: the sum holds all ten groups of a set
/// whose draws are all different.
TEST_F(StringsTest, everyGroupFollowsItsRule) {
    const struct {
        int cloudIndex;
        int familyA, familyB; ///< sums
    } cases[] = {
        {1, 65409, 55394}, {2, 51212, 57609}, {3, 12433, 4566}, {4, 26304, 34117}, {5, 33039, 33039}};
    const QStringList familyA{"Default", "Default Softer", "Horizons", "Pro Sky"},
        familyB{"Sunny", "Tropical"};
    for (const auto& [cloudIndex, sumOfA, sumOfB] : cases)
        for (const QString& base : familyA + familyB) {
            QStringList sets;
            for (const double end : {0.0, 0.5, 0.99999999}) {
                install.random.numbers = {end};
                sets += drawnNumbers(cloudIndex, base);
            }
            install.random = {};
            install.random.numbers = test::mixedNumbers(99991);
            sets += drawnNumbers(cloudIndex, base);
            EXPECT_EQ(qChecksum(sets.join(u' ').toLatin1()), familyA.contains(base) ? sumOfA : sumOfB)
                << cloudIndex << base.toStdString();
        }
}

} // namespace
} // namespace morvane
