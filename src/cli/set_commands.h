#pragma once

#include "cli/command_helpers.h"
#include "cli/json_output.h"
#include "core/options.h"

#include <QJsonArray>

namespace morvane {

/// The commands that every kind of set has. `Kind` is one of those in cli/set_kinds.h.
template <class Kind>
struct SetCommands {
    static bool list(CommandContext& context) {
        QJsonArray sets;
        for (const auto& set : Kind::sets(context.session))
            sets << Kind::json(context.session, *set);
        printJson(QJsonDocument(sets));
        return true;
    }

    static bool activate(CommandContext& context) {
        const auto set = clickedSet(context);
        if (set && Kind::refusesActivated && Kind::activation(*set) == flagText(true))
            refuse(context, nameOf(*set), u"is activated already"_s);
        else if (set)
            Kind::activate(context.session);
        return true;
    }

    static bool deactivate(CommandContext& context) {
        if (clickedSet(context)) Kind::remove(context.session, true);
        return true;
    }

    static bool remove(CommandContext& context) {
        if (clickedSet(context)) Kind::remove(context.session, false);
        return true;
    }

    static bool install(CommandContext& context) {
        const auto set = clickedSet(context);
        if (set && Kind::activation(*set) != flagText(true))
            refuse(context, nameOf(*set), u"is not activated"_s);
        else if (set)
            Kind::install(context.session);
        return true;
    }

    /// The set of the first argument, selected as by a click on its row; nothing after the message of what is
    /// wrong with it.
    static auto clickedSet(CommandContext& context) {
        const QString& name = context.arguments[0];
        auto set = Kind::find(context.session, name);
        if (!set) fail(context, u"There is no %1 texture set named '%2'"_s.arg(Kind::word(), name));
        if (set && !Kind::click(context.session, name)) set = nullptr;
        return set;
    }

private:
    static void refuse(CommandContext& context, const QString& name, const QString& reason) {
        fail(context, u"The %1 texture set '%2' %3"_s.arg(Kind::word(), name, reason));
    }
};

} // namespace morvane
