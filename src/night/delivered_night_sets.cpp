#include "night/delivered_night_sets.h"

#include "core/literals.h"
#include "core/row_set.h"
#include "core/store.h"
#include "sets/set_names.h"

namespace morvane {

void addDeliveredNightSets(Store& store) {
    const QString sets[][3] = {
        {defaultSetName, u"0:0:0:0:0:0"_s, u"Default Morvane Night Texture Set with no extra settings"_s},
        {u"Green Bias"_s, u"13:0:16:18.2:-8.4:0"_s, u"Morvane created set with green bias"_s},
        {u"Red Bias"_s, u"0:13:-5.2:0:-6.6:0"_s, u"Morvane created set with red bias"_s},
        {u"Orange Bias"_s, u"20:10:0:0:-6.6:0"_s, u"Morvane created set with orange bias"_s},
        // The quote at its end is a part of the text.
        {u"White Bias"_s, u"0:-6:-6:16:0:0"_s, u"Morvane created set with white bias\""_s},
    };
    RowSet rows(store, u"SELECT * FROM NIGHT_TEXTURE_SETS"_s);
    for (const auto& [name, colours, description] : sets) {
        rows.addNew();
        rows.setText(u"TEXTURE_SET", name);
        rows.setText(u"COLOR_SETTINGS", colours);
        rows.setText(u"DESCRIPTION", description);
        rows.setText(u"ACTIVATED", u"True"_s);
        rows.setFlag(u"INSTALLED", false);
        rows.update();
    }
}

} // namespace morvane
