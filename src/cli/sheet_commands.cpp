#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "core/file_helpers.h"
#include "core/numbers.h"
#include "sheets/set_sheets.h"
#include "sheets/sheet_drawing.h"
#include "sheets/simulator_sheet.h"

namespace morvane {

namespace {

const QString zoomOption = u"--zoom"_s, besideOption = u"--beside"_s;
constexpr int savedZoom = 64;

bool isZoom(const QString& word) {
    return isDigits(word) && word.size() < 4 && word.toInt() >= smallestZoom && word.toInt() <= largestZoom;
}

/// The last argument is the file.
void save(CommandContext& context, Sheet sheet) {
    const FilePath target = pathOfArgument(context.arguments.last());
    if (sheet.textures.empty()) return fail(context, u"There are no textures to show"_s);
    if (!mayReplace(context.session, target)) return;
    const QString done = sheet.title + u": "_s + sheet.summary();
    SheetPictures pictures(context.session.files, context.session.AppPath, std::move(sheet));
    const int zoom = context.options.value(zoomOption, QString::number(savedZoom)).toInt();
    saveSheet(context.session.files,
              drawnSheet(pictures, zoom, {.isCut = context.options.contains(besideOption)}), target);
    context.user.tellDone({done, target.text()});
}

using MakeSheet = std::optional<Sheet> (*)(Session& session, const QString& name);

template <MakeSheet make>
void saveOfSet(CommandContext& context) {
    std::optional<Sheet> sheet = make(context.session, context.arguments[0]);
    if (!sheet) return fail(context, u"There is no texture set named '"_s + context.arguments[0] + u'\'');
    save(context, std::move(*sheet));
}

void saveOfSimulator(CommandContext& context) {
    save(context, simulatorSheet(context.session));
}

Command sheetCommand(const QString& word, const std::vector<Operand>& operands, void (*run)(CommandContext&),
                     const QString& meaning, const QString& example) {
    const Operand size{.name = u"PIXELS"_s, .takes = u"a whole number from 24 to 128"_s, .isTaken = isZoom};
    return {.words = word + u" sheet"_s,
            .operands = operands,
            .options = {{zoomOption, u"the side of a texture, 64 when nothing is said"_s, size},
                        {besideOption, u"the left half of each texture is that of the base"_s}},
            .run = run,
            .meaning = meaning,
            .example = word + u" sheet "_s + example};
}

} // namespace

std::vector<Command> sheetCommands() {
    const Operand out{u"OUT"_s, u"the file that is written, a PNG"_s};
    const QString meaning = u"a whole set as one picture, not activated sets, too"_s;
    return {sheetCommand(u"ground"_s, {setName, out}, saveOfSet<groundSheet>, meaning,
                         u"\"17-11-21-2026 21-14-09\" set.png"_s),
            sheetCommand(u"sky"_s, {setName, out}, saveOfSet<skySheet>, meaning, u"\"40-Storm\" sky.png"_s),
            sheetCommand(u"night"_s, {setName, out}, saveOfSet<nightSheet>, meaning,
                         u"\"2-Cold lights\" night.png"_s),
            sheetCommand(u"originals"_s, {out}, saveOfSimulator,
                         u"what lies in the simulator now as one picture, over your own files"_s,
                         u"--beside now.png"_s)};
}

} // namespace morvane
