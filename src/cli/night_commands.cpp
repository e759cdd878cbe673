#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/set_commands.h"
#include "imaging/slider_steps.h"
#include "night/night_sets.h"
#include "night/night_tuning.h"
#include "sets/favourite_name.h"
#include "sets/slider_values.h"

#include <algorithm>

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

void addFavourite(CommandContext& context) {
    context.user.onModal = [&](Screen screen) {
        if (screen != Screen::frm_AddFav) return;
        context.session.state<FavouriteAnswer>().favName = context.arguments[0];
        context.session.state<FavouriteAnswer>().favConfirmed = true;
    };
    NightTuning tuning(context.session);
    tuning.showColourPreview(slidersOf(context.arguments[1]).value());
    tuning.newFavourite();
}

} // namespace

std::vector<Command> nightCommands() {
    const Operand sliders{
        .name = u"SLIDERS"_s,
        .meaning = u"saturation, red, green, blue, brightness, contrast, each -100 to 100, joined by \":\""_s,
        .takes = u"six whole numbers from -100 to 100 joined by \":\""_s,
        .isTaken = [](const QString& word) { return slidersOf(word).has_value(); }};
    std::vector<Command> commands{{.words = u"night favourite"_s,
                                   .operands = {setName, sliders},
                                   .writes = true,
                                   .run = addFavourite,
                                   .meaning = u"adds a night set with those slider values"_s,
                                   .example = u"night favourite \"Cold lights\" 0:-30:-30:80:0:0"_s}};
    std::ranges::move(SetCommands<NightKind>::all(u"2-Cold lights"_s), std::back_inserter(commands));
    return commands;
}

} // namespace morvane
