#pragma once

#include "core/numbers.h"
#include "sets/favourite_name.h"
#include "sets/favourite_saving.h"
#include "sets/slider_values.h"
#include "sets/texture_sample.h"

namespace morvane {

/// The work behind the colour page of the ground or of the night: a sample texture in the colours of six
/// sliders, and their saving as a favourite. The sliders and the painting are the page's.
template <class Kind>
class TextureTuning {
public:
    virtual ~TextureTuning() = default;

    const cDIBSection& sourceDib() const { return sample_.sourceDib(); }
    const cDIBSection& resultDib() const { return sample_.resultDib(); }

    /// Recolours the sample by the sliders and makes their effective values the session's colours, so that
    /// they are the ones that a favourite is saved with.
    void showColourPreview(const SliderValues& sliders) {
        selection().colours = effectiveColours(sliders);
        sample_.process();
    }

    /// Asks for name and description (frm_AddFav) and saves the favourite.
    void newFavourite() {
        if (askFavouriteName(session_))
            reportFailures(session_.user, morvaneError,
                           [this] { saveNamed(session_.state<FavouriteAnswer>()); });
    }

protected:
    explicit TextureTuning(Session& session)
        : session_(session), sample_(session, session.state<typename Kind::Selection>().colours) {}

    /// Fills in what only this kind has.
    virtual void complete(typename Kind::Record&) const {}

    Session& session_;
    TextureSample sample_;

private:
    auto& selection() { return session_.state<typename Kind::Selection>(); }

    void saveNamed(const FavouriteAnswer& answer) {
        typename Kind::Record record;
        record.ColorSettings = colourSettingsText(selection().colours);
        record.TextureSet = trimmedBlanks(answer.favName);
        record.Description = trimmedBlanks(answer.favDescription);
        complete(record);
        saveFavourite<Kind>(session_, std::move(record));
    }
};

} // namespace morvane
