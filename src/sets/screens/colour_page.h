#pragma once

#include "imaging/slider_steps.h"
#include "sets/slider_values.h"
#include "ui/page_form.h"

#include <array>

class QLabel;
class QPushButton;
class QRadioButton;

namespace morvane {

class PictureFrame;
class SliderRow;

/// What tells the colour page of one kind of sets from that of another.
struct ColourPageSetup {
    struct Option {
        QString caption, disc; ///< the picture beside it; empty for none
    };
    struct Slider {
        QString slider, label; ///< names of the controls
    };
    struct Key {
        QString name, key, picture, tip, caption;
    };
    std::vector<Option> options;   ///< of the column beside the pictures, only one of them chosen
    QString optionName;            ///< of each control, with its number from 0 behind it
    std::array<Slider, 6> sliders; ///< saturation, red, green, blue, brightness, contrast
    QString resetAllName;
    QString subjectName; ///< of the line that tells what is being coloured
    std::array<Key, 3> keys;
};

/// The five cloud covers as options.
std::vector<ColourPageSetup::Option> coverOptions();

/// The page on which the colours of a set are tuned: a column of options, six sliders, and what they do to a
/// picture. The sliders keep their places while the program runs.
class ColourPage : public PageForm {
    Q_OBJECT
protected:
    ColourPage(Shell& shell, const QString& name, const ColourPageSetup& setup);

    static constexpr int sourceLeft = 14, resultLeft = 262;
    /// Puts one of the two pictures in its place, under its caption.
    void placePicture(PictureFrame& picture, const QString& name, const QString& caption, int left);

    /// In the order of the Tab key, for a control that says what they move.
    void comeBeforeSliders(QWidget& control);

    /// The user chose the option of that place, from 0; also once more the one that was chosen already.
    virtual void chooseOption(int index) = 0;
    /// Colours the picture by the sliders and shows it.
    virtual void showPreview() = 0;

    /// As if the user had chosen it.
    void checkOption(int index);
    SliderValues sliderValues() const;
    /// All six and their labels, without a preview.
    void putSliders(const SliderValues& values, QString (*label)(int) = sliderLabel);
    /// All six, then one preview.
    void setSliders(const SliderValues& values);
    void showSubject(const QString& text);

private:
    void addOptions(const ColourPageSetup& setup);
    QRadioButton* addOption(const ColourPageSetup::Option& option, int top);
    void addResetAll(const QString& name);
    void addSliders(const ColourPageSetup& setup);
    void addKeys(const ColourPageSetup& setup);
    void markChoice();

    bool isSettingSliders_ = false;
    QLabel* subject_;
    QPushButton* cmdResetAll_ = nullptr;
    std::vector<QRadioButton*> options_;
    std::array<SliderRow*, 6> sliders_{};
};

} // namespace morvane
