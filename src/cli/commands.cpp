#include "cli/commands.h"

#include "app/logged_run.h"
#include "app/start_up.h"
#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "core/failure_report.h"
#include "core/install_folder.h"
#include "core/private_texts.h"
#include "core/store_connection.h"
#include "core/writing.h"
#include "sets/options_in_force.h"
#include "simulator/options.h"
#include "weather/active_sky.h"

#include <algorithm>
#include <optional>

namespace morvane {

namespace {

/// Those that share their first word stand together.
void add(const Command& command, std::vector<Command>& table) {
    const auto isKin = [&](const Command& each) { return subjectOf(each) == subjectOf(command); };
    const auto lastKin = std::find_if(table.rbegin(), table.rend(), isKin);
    table.insert(lastKin == table.rend() ? table.end() : lastKin.base(), command);
}

InstallUse useOf(const Command& command, const QHash<QString, QString>& options) {
    if (options.contains(dryRunOption.name)) return InstallUse::trial;
    return command.writes ? InstallUse::writing : InstallUse::reading;
}

/// Of a closed list of words nothing was typed that could be the pilot's own.
void keepTypedPrivate(const Command& command, const CommandContext& context) {
    QStringList typed = context.options.values();
    for (qsizetype i = 0; i < context.arguments.size(); ++i) {
        const auto last = static_cast<qsizetype>(command.operands.size()) - 1;
        const Operand& operand = command.operands[static_cast<std::size_t>(std::min(i, last))];
        if (operand.entries.isEmpty()) typed << context.arguments[i];
    }
    std::vector<PrivateText> texts;
    for (const QString& text : typed)
        for (const auto& some : {typedTexts(text), folderTexts(pathOfArgument(text).text(), u"<typed>"_s)})
            texts.insert(texts.end(), some.begin(), some.end());
    context.session.state<PrivateTexts>().sources.emplace_back([texts] { return texts; });
}

/// False after the message of what is missing.
bool makeReady(const Command& command, InstallUse use, Session& session) {
    if (command.needs == Needs::simulator) {
        if (!startUp(session, use)) return false;
        // What copies sets has to know whether a splash goes with them.
        session.state<OptionsInForce>().InhibitCustomSplash = isCustomSplashInhibited(session);
        // Whatever else runs is not held up by a weather program it does not ask.
        if (subjectOf(command) == u"metar") tellActiveSkyProblem(session);
    } else if (command.needs == Needs::folder) {
        const QString problem = installFolderProblem(session.files, session.AppPath, use);
        if (!problem.isEmpty()) session.user.systemBox(problem, {}, SystemBoxButtons::ok);
        return problem.isEmpty();
    }
    return true;
}

} // namespace

QStringView subjectOf(const Command& command) {
    const qsizetype end = command.words.indexOf(u' ');
    return QStringView(command.words).first(end < 0 ? command.words.size() : end);
}

const std::vector<Command>& commandTable() {
    static const std::vector<Command> table = [] {
        std::vector<Command> all;
        for (const auto commandsOfSubject :
             {cycleCommands, airportCommands, routeCommands, groundCommands, skyCommands, nightCommands,
              flightCommands, optionCommands, originalsCommands, stockCommands, spaceCommands, configCommands,
              pictureCommands, sheetCommands, readyCommands, reportCommands})
            for (const Command& command : commandsOfSubject())
                add(command, all);
        return all;
    }();
    return table;
}

int runCommand(const Command& command, CommandContext context) {
    const InstallUse use = useOf(command, context.options);
    std::optional<LoggedRun> run;
    if (command.needs != Needs::nothing && use != InstallUse::trial) {
        keepTypedPrivate(command, context);
        run.emplace(context.session, u"morvane-cli"_s, command.words);
    }
    bool isReady = false;
    try {
        std::optional<Writing> writing; // before the first look at what will be changed
        if (use == InstallUse::writing) writing.emplace(context.session);
        isReady = (!writing || *writing) && makeReady(command, use, context.session);
        if (isReady) reportFailures(context.user, {}, [&] { command.run(context); });
    } catch (const RoadEnded&) {
        isReady = false;
    }
    closeDatabase(context.session);
    return isReady && !context.user.hasFailed() && !context.user.wasLeftOpen() ? exitDone : exitFailed;
}

} // namespace morvane
