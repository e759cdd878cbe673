#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/terminal.h"
#include "simulator/get_ready.h"

namespace morvane {

namespace {

const QString ownTexturesOption = u"--own-textures"_s, setsOption = u"--sets"_s;
constexpr int mostSets = 50;

QString markText(ReadyMark mark) {
    switch (mark) {
    case ReadyMark::waiting:
        return u"waiting"_s;
    case ReadyMark::working:
        return u"working"_s;
    case ReadyMark::done:
        return u"done"_s;
    case ReadyMark::leftOut:
        return u"left out"_s;
    case ReadyMark::failed:
        break;
    }
    return u"not done"_s;
}

void getReady(CommandContext& context) {
    const int setsOfEach = context.options.value(setsOption, QString::number(usualSetsOfEach)).toInt();
    const ReadyWishes wishes{.baseTextures = context.options.contains(ownTexturesOption)
                                                 ? BaseTextures::own
                                                 : BaseTextures::asTheyAre,
                             .setsOfEach = setsOfEach};
    const bool isReady = GetReady(context.session, wishes).run([&](ReadyStep step, const ReadyLine& line) {
        if (line.mark == ReadyMark::working) return; // progress tells of it
        writeStandardOutput(readyCaption(step, setsOfEach) + u": "_s + markText(line.mark) +
                            (line.text.isEmpty() ? QString() : u", "_s + line.text) + u'\n');
    });
    if (!isReady) fail(context, u"Not everything is ready; call \"ready\" again to go on."_s);
}

} // namespace

std::vector<Command> readyCommands() {
    const Operand sets{
        .name = u"N"_s, .takes = u"a whole number from 1 to 50"_s, .isTaken = [](const QString& word) {
            return isNumberWithin(word, 1, mostSets) && word.toInt() > 0;
        }};
    return {
        {.words = u"ready"_s,
         .options = {{ownTexturesOption, u"new sets are made from the simulator's own textures"_s},
                     {setsOption,
                      u"so many sets of each cloud cover, ground and sky; 3 when nothing is said"_s, sets}},
         .writes = true,
         .makesInstall = true,
         .run = getReady,
         .meaning =
             u"makes all that a first flight needs: install folder, backup, sets for every weather, reports"_s,
         .example = u"ready"_s}};
}

} // namespace morvane
