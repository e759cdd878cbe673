#pragma once

#include "sets/recoloured_kind.h"
#include "sets/screens/kind_list_form.h"
#include "sets/texture_sample.h"
#include "ui/controls/paper_style.h"

namespace morvane {

/// What ground and night have in common: names and places of the controls. Their words, their columns and the
/// key "create" are each one's own.
SetListSetup textureListPage(const QString& instructions, const std::vector<SetColumn>& columns,
                             const SetListSetup::Key& create = {});

/// The window of a kind whose sets are shown on a sample of the base files. The keys and the tip of the
/// window are the ground's, also at night.
template <class Kind>
class TextureListForm : public KindListForm<Kind> {
public:
    void formatList() override {
        int row = this->rowInHand();
        this->formatSets(row);
    }

protected:
    TextureListForm(Shell& shell, const QString& name, const WindowLook& look, const QString& colourPage,
                    const SetListSetup& page)
        : KindListForm<Kind>(
              shell, name, look,
              {u"texture sets"_s, u"ground"_s, u"btn_2d"_s, u"Click to minimize Ground Textures screen."_s},
              colourPage, page),
          sample_(this->session(), this->selection().colours) {}

    /// The base file on which every set is shown.
    virtual FilePath sampleFile() = 0;

private:
    SetRow rowOf(const typename Kind::Record& set) const override {
        SetRow row{listKeyOf(set),
                   {nameOf(set), activationOf(set)},
                   {nameOf(set), u"Activated?"_s},
                   set.Installed ? installedSetColour : paper::text.day};
        if constexpr (requires { set.CloudCover; }) {
            row.texts << set.CloudCover;
            row.tips << u"Cloud Cover"_s;
        }
        return row;
    }
    bool takeSet(const QString& listKey) override {
        const bool hasColours = loadSelection<Kind>(this->session(), listKey);
        this->showDescription(this->selection().*Kind::descriptionInHand);
        showSample();
        this->list().selectName(this->selection().*Kind::nameInHand);
        return hasColours;
    }
    void showNoSet() override { showSample(); }
    void showSample() {
        sample_.openImage(sampleFile());
        this->showPictures(sample_.sourceDib(), sample_.resultDib());
    }

    TextureSample sample_;
};

} // namespace morvane
