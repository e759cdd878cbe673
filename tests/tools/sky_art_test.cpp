#include "sky_art.h"

#include "core/error.h"
#include "core/literals.h"
#include "support/printing.h"

#include <QCryptographicHash>
#include <QSet>
#include <gtest/gtest.h>

namespace morvane {
namespace {

constexpr int side = 32;

/// Whoever changes the art on purpose looks at the sky sets' colours and writes the new digest here.
TEST(SkyArt, everyFolderHasADayOfMapsOfItsOwn) {
    EXPECT_EQ(skyFolders().join(u'|'),
              u"Default|Default Softer|Horizons|Pro Sky|Sunny|Tropical|Overcast|Sunrise|Sunset"_s);
    QSet<QByteArray> maps;
    QCryptographicHash digest(QCryptographicHash::Sha1);
    QSet<QString> names; // in one set's folder those of all times must find room
    for (const QString& folder : skyFolders())
        for (int index = 0; const QString& name : skyMapNames(folder)) {
            const Picture map = drawSkyMap(folder, index++);
            ASSERT_EQ(map.rows.size(), std::size_t{side * side * 3});
            const QByteArray bytes(reinterpret_cast<const char*>(map.rows.data()), map.rows.size());
            maps.insert(bytes);
            digest.addData(bytes);
            names << name;
        }
    EXPECT_EQ(maps.size(), 9 * 24);
    EXPECT_EQ(digest.result().toHex().toStdString(), "5c11e2ca0a1dd4f13dc6455b1b2fb12483dbf9d9");
    EXPECT_EQ(names.size(), 3 * 24);
    EXPECT_EQ(skyMapNames(u"Overcast"_s), skyMapNames(u"Default"_s));
    EXPECT_THROW(drawSkyMap(u"Average"_s, 0), Error);
}

} // namespace
} // namespace morvane
