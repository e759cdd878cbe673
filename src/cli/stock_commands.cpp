#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "simulator/stock_requests.h"

#include <QJsonArray>

namespace morvane {

namespace {

const QString fromOption = u"--from"_s;

QJsonObject toJson(const StockImportReport& report) {
    QJsonArray categories;
    for (const StockCategory& category : report.categories)
        categories << QJsonObject{{u"category"_s, category.name},
                                  {u"files"_s, category.count},
                                  {u"emptyPatterns"_s, QJsonArray::fromStringList(category.emptyPatterns)}};
    return {{u"files"_s, report.files},
            {u"categories"_s, categories},
            {u"unreadable"_s, QJsonArray::fromStringList(report.unreadable)},
            {u"cancelled"_s, report.isCancelled}};
}

void import(CommandContext& context) {
    std::optional<StockImportReport> report;
    if (context.options.contains(fromOption)) {
        const FilePath folder = pathOfArgument(context.options[fromOption]);
        report = importStock(context.session, {folder, folder / u"UTEurLC"});
    } else {
        report = importSimulatorStock(context.session, true);
    }
    if (!report)
        fail(context, u"No textures were taken."_s);
    else
        printJson(QJsonDocument(toJson(*report)));
}

void restore(CommandContext& context) {
    if (!hasKeptStock(context.session))
        fail(context, u"No base images are kept: nothing was imported."_s);
    else
        restoreStock(context.session, true);
}

} // namespace

std::vector<Command> stockCommands() {
    const CommandOption from{
        fromOption, u"the textures of that folder, not the simulator's"_s, {u"DIR"_s, {}}};
    return {{.words = u"stock import"_s,
             .options = {from},
             .writes = true,
             .run = import,
             .meaning = u"base images made of the simulator's own textures, or of those of a folder"_s,
             .example = u"stock import --from ~/textures"_s},
            {.words = u"stock restore"_s,
             .writes = true,
             .run = restore,
             .meaning = u"back to the base images of before"_s,
             .example = u"stock restore"_s}};
}

} // namespace morvane
