#include "cli/night_commands.h"

#include "ground/slider_steps.h"
#include "night/night_tuning.h"

namespace morvane {

namespace {

std::optional<SliderValues> slidersOf(const QString& argument) {
    const QStringList fields = argument.split(u':');
    SliderValues sliders{};
    if (fields.size() != static_cast<qsizetype>(sliders.size())) return std::nullopt;
    for (std::size_t i = 0; i < sliders.size(); ++i) {
        bool isNumber = false;
        sliders[i] = fields[static_cast<qsizetype>(i)].toInt(&isNumber);
        if (!isNumber || sliders[i] < sliderLowest || sliders[i] > sliderHighest) return std::nullopt;
    }
    return sliders;
}

} // namespace

bool nightFavourite(CommandContext& context) {
    const auto sliders = slidersOf(context.arguments[1]);
    if (!sliders) return false;
    context.user.onModal = [&](Screen screen) {
        if (screen != Screen::frm_AddFav) return;
        context.session.modal.favName = context.arguments[0];
        context.session.modal.favConfirmed = true;
    };
    NightTuning tuning(context.session);
    tuning.showColourPreview(*sliders);
    tuning.newFavNightTexture();
    return true;
}

} // namespace morvane
