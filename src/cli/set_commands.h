#pragma once

#include "cli/command_helpers.h"
#include "cli/json_output.h"
#include "sets/set_kind.h"
#include "sets/set_sharing.h"

#include <QJsonArray>

namespace morvane {

inline const QString authorOption = u"--author"_s;
inline const Operand lookFile{u"FILE"_s, u"a file of the kind .morvaneset"_s};

/// The commands that every kind of set has (sets/set_kind.h).
template <class Kind>
struct SetCommands {
    /// `example` is the name of such a set, `activation` what its activation means.
    static std::vector<Command> all(const QString& example,
                                    const QString& activation = u"rebuilds a set's files"_s) {
        const QString word = kindWord();
        const auto onOne = [&](const QString& verb, void (*run)(CommandContext&), const QString& meaning) {
            const QString words = word + u' ' + verb;
            return Command{.words = words,
                           .operands = {setName},
                           .writes = true,
                           .run = run,
                           .meaning = meaning,
                           .example = words + u" \""_s + example + u'"'};
        };
        return {{.words = word + u" list"_s,
                 .run = list,
                 .meaning = u"all %1 sets"_s.arg(word),
                 .example = word + u" list"_s},
                onOne(u"activate"_s, activate, activation),
                onOne(u"deactivate"_s, deactivate, u"takes a set's files away but keeps its colours"_s),
                onOne(u"delete"_s, remove, u"removes a set"_s),
                onOne(u"install"_s, install, u"copies a set into the simulator"_s),
                {.words = word + u" export"_s,
                 .operands = {setName, lookFile},
                 .options = {{authorOption, u"what you say of yourself"_s, {u"TEXT"_s, {}}}},
                 .run = exportLook,
                 .meaning = u"writes a set's colours into a small file for other pilots"_s,
                 .example = word + u" export \""_s + example + u"\" storm.morvaneset"_s},
                {.words = word + u" import"_s,
                 .operands = {lookFile},
                 .writes = true,
                 .run = importLook,
                 .meaning = u"takes a set's colours out of such a file, as a set to be activated"_s,
                 .example = word + u" import storm.morvaneset"_s}};
    }

    /// The set of the first argument, selected as by a click on its row; nothing after the message of what is
    /// wrong with it.
    static auto clickedSet(CommandContext& context) {
        const QString& name = context.arguments[0];
        auto set = findSet<Kind>(context.session, name);
        if (!set) fail(context, u"There is no %1 texture set named '%2'"_s.arg(kindWord(), name));
        if (set && !clickSetNamed<Kind>(context.session, name)) set = nullptr;
        return set;
    }

private:
    static QString kindWord() { return Kind::facts().word.toLower(); }

    static void list(CommandContext& context) {
        QJsonArray sets;
        for (const auto& set : loadedSets<Kind>(context.session))
            sets << toJson(*set, context.session.DecimalSep);
        printJson(QJsonDocument(sets));
    }

    static void activate(CommandContext& context) {
        const auto set = clickedSet(context);
        if (set && !Kind::activatesAgain && activationOf(*set) == flagText(true))
            refuse(context, nameOf(*set), u"is activated already"_s);
        else if (set)
            Kind::activate(context.session);
    }

    static void deactivate(CommandContext& context) {
        if (clickedSet(context)) Kind::remove(context.session, true);
    }

    static void remove(CommandContext& context) {
        if (clickedSet(context)) Kind::remove(context.session, false);
    }

    static void install(CommandContext& context) {
        const auto set = clickedSet(context);
        if (set && activationOf(*set) != flagText(true))
            refuse(context, nameOf(*set), u"is not activated"_s);
        else if (set)
            Kind::install(context.session, nameOf(*set));
    }

    static void exportLook(CommandContext& context) {
        const auto set = clickedSet(context);
        if (set)
            exportSet(context.session, setKind<Kind>(), nameOf(*set), pathOfArgument(context.arguments[1]),
                      context.options.value(authorOption));
    }

    static void importLook(CommandContext& context) {
        const SetKind* kind = importSharedSet(context.session, pathOfArgument(context.arguments[0]));
        if (!kind) return;
        printJson(QJsonDocument(QJsonObject{{u"kind"_s, kind->facts.word.toLower()},
                                            {u"name"_s, kind->inHand(context.session).name}}));
    }

    static void refuse(CommandContext& context, const QString& name, const QString& reason) {
        fail(context, u"The %1 texture set '%2' %3"_s.arg(kindWord(), name, reason));
    }
};

} // namespace morvane
