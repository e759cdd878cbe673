#pragma once

#include "ground/ground_tuning.h"
#include "ui/page_form.h"

#include <array>

class QLabel;
class QRadioButton;

namespace morvane {

class PictureFrame;
class SliderRow;

/// The colour page of the ground: six sliders, and a sample texture in their colours. The sliders keep their
/// places while the program runs.
class frm_GroundColorize : public PageForm {
    Q_OBJECT
public:
    explicit frm_GroundColorize(Shell& shell);

    void format() override;

    /// The large keys.
    void openTexture();
    void randomGroundValues();
    void addFavourite();

private:
    void addPictures();
    void addCoverOptions();
    void addSliders();
    void addKeys();
    void optCloudCover(int index);
    SliderValues sliderValues() const;
    /// All six without a preview between them, then one.
    void setSliders(const SliderValues& values);
    void showColourPreview();

    GroundTuning tuning_;
    bool isSettingSliders_ = false;
    PictureFrame *picImage_, *picDemo_;
    QLabel* lblSample_;
    std::array<QRadioButton*, 5> optCloudCover_{};
    std::array<SliderRow*, 6> sliders_{}; ///< in the order of a `ColorSettings` text
};

} // namespace morvane
