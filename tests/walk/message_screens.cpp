#include "core/job.h"
#include "walk/walk_tables.h"

namespace morvane::test {

namespace {

bool hasSaidYes(Session& session) {
    return session.user.answers().flag(Question::launch);
}

/// Both answers show in the flag, which begins as neither of them would leave it by mistake.
std::function<void(Walk&)> question(bool offersFastExit) {
    return [=](Walk& walk) {
        openHome(walk);
        walk.session().user.answers().setFlag(Question::launch, false);
        Message message{MessageKind::question, u"Really?"_s, u"A question."_s, true, true};
        message.offersFastExit = offersFastExit;
        walk.session().user.ask(Question::launch, message);
    };
}

void openInformation(Walk& walk) {
    openHome(walk);
    walk.session().user.showMessage({MessageKind::information, u"Done"_s, u"That was it."_s});
}

void openProgress(Walk& walk) {
    openHome(walk);
    const Job job(walk.session(), u"work"_s);
    UserInterface& user = walk.session().user;
    user.showMessage({MessageKind::progress, u"Working"_s, u"Please wait..."_s, false, true, true});
    while (user.isMessageVisible())
        user.pumpMessages();
}

bool boxAnswer = false;

std::function<void(Walk&)> box(SystemBoxButtons buttons) {
    return [=](Walk& walk) {
        openHome(walk);
        boxAnswer = false;
        boxAnswer = walk.session().user.systemBox(u"A question."_s, u"Really?"_s, buttons);
    };
}

} // namespace

std::vector<WalkScreen> messageScreens() {
    const auto gone = [](Session&) { return true; };
    return {
        {"question", u"frm_Msg"_s, question(false), true, answerRows(hasSaidYes)},
        {"exit_question", u"frm_Msg"_s, question(true), true, answerRows(hasSaidYes)},
        {"information", u"frm_Msg"_s, openInformation, true,
         WalkRows{{u"btn_Ok"_s, closes(gone, true)},
                  {u"(Enter)"_s, closes(gone, true)},
                  {u"(Escape)"_s, closes(gone, true)},
                  {u"(close)"_s, closes(gone, true)}}},
        {"progress", u"frm_Msg"_s, openProgress, true,
         WalkRows{{u"cmdCancel"_s, shows(u"box Cancel Operation?"_s)},
                  {u"(Escape)"_s, shows(u"box Cancel Operation?"_s)},
                  {u"(close)"_s, shows(u"box Exit Morvane?"_s)},
                  {u"(Enter)"_s, nothing("a key too many must not end an hour's work")}}},
        {"box",
         {},
         box(SystemBoxButtons::okCancel),
         true,
         WalkRows{{u"OK"_s, closes(gone, true)},
                  {u"Cancel"_s, closes(gone, true)},
                  {u"(Enter)"_s, closes(gone, true)},
                  {u"(Escape)"_s, closes(gone, true)}}},
        {"folder_browser",
         {},
         [](Walk& walk) {
             openHome(walk);
             walk.session().user.browseForFolder({});
         },
         true,
         WalkRows{{u"(Escape)"_s, closes(gone, true)}}},
    };
}

} // namespace morvane::test
