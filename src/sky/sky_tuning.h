#pragma once

#include "core/reported.h"
#include "sets/slider_values.h"
#include "sky/sky_sample.h"

#include <optional>

namespace morvane {

/// The work behind the colour page of the sky: ten groups of six numbers, one group in hand at a time, laid
/// on a sky texture. The sliders and the painting are the page's. Whoever gets slider values from here sets
/// the page's sliders to them without a preview in between: the preview has run, for the group that is in
/// hand now, and another one would write one group's numbers into the next.
class SkyTuning {
public:
    explicit SkyTuning(Session& session) : session_(session), sample_(session, SkyTable::palette) {}

    /// Loads the state when it was not loaded in this run, and the sample of the tuned base set. Gives the
    /// sliders of the group in hand.
    SliderValues open();
    /// Loads a texture and colours it.
    Reported openSkyImage(const FilePath& path);
    /// Asks for the base set (frm_SelectBaseSky) and loads its sample.
    void openBaseSkyImage();

    const cDIBSection& sourceDib() const { return sample_.sourceDib(); }
    const cDIBSection& resultDib() const { return sample_.resultDib(); }

    /// Writes the sliders into the record of the group in hand and colours the texture by all ten.
    void SkyProcess(const SliderValues& sliders);
    /// The numbers of the group in hand, cut to whole ones.
    SliderValues sliders() const;
    /// A click on the palette picture: takes the group under it in hand, gives it its region, runs
    /// `SkyProcess` and gives its sliders. Between two columns the group in hand stays.
    SliderValues clickPalette(float x, float y);
    /// Draws numbers for the group in hand, runs `SkyProcess` and gives them.
    SliderValues randomizeSky();
    /// The label of a drawn number; here 0 is "0%" and not "default", as nobody set it back.
    static QString drawnLabel(int value) { return QString::number(value) + u'%'; }

    /// The text that names the group in hand.
    const QString& selectedText() const;
    /// The tip for a place on the palette picture; nothing where the last one is to stay.
    static std::optional<QString> tipAt(float x, float y);
    /// The cloud cover at that place of the page, 0 to 4; any other raises "Subscript out of range".
    void optCloudCover(int index);

private:
    Reported openSelectedBaseSky();

    Session& session_;
    SkySample sample_;
};

} // namespace morvane
