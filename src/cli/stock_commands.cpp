#include "cli/stock_commands.h"

#include "cli/command_helpers.h"
#include "cli/json_output.h"
#include "simulator/stock_requests.h"

#include <QJsonArray>

namespace morvane {

namespace {

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

} // namespace

bool stockImport(CommandContext& context) {
    const QStringList& arguments = context.arguments;
    const bool hasFolder = arguments.size() == 2 && arguments[0] == u"--from";
    if (!arguments.isEmpty() && !hasFolder) return false;
    std::optional<StockImportReport> report;
    if (hasFolder) {
        const FilePath folder = pathOfArgument(arguments[1]);
        report = importStock(context.session, {folder, folder / u"UTEurLC"});
    } else {
        report = importSimulatorStock(context.session, true);
    }
    if (!report)
        fail(context, u"No textures were taken."_s);
    else
        printJson(QJsonDocument(toJson(*report)));
    return true;
}

bool stockRestore(CommandContext& context) {
    if (!hasKeptStock(context.session))
        fail(context, u"No base images are kept: nothing was imported."_s);
    else
        restoreStock(context.session, true);
    return true;
}

} // namespace morvane
