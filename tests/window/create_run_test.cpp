// Whole runs started by a click, on the real engine.

#include "support/window_program.h"

#include "ground/ground_sets.h"
#include "ground/texture_sets.h"

#include <QLineEdit>
#include <gtest/gtest.h>

namespace morvane {
namespace {

const QString window = u"frm_MVTextures"_s;

struct CreateRun : testing::Test {
    test::WindowProgram program;

    CreateRun() { program.shell.showHost(window); }
    /// Wants so many overcast sets.
    void create(const QString& count) {
        program.whenShown(u"frm_TsRequired"_s, [this, count](DialogForm& dialog) {
            program.control<QLineEdit>(u"frm_TsRequired"_s, u"txtOvercastClouds"_s).setText(count);
            dialog.ok();
        });
        program.press(window, u"btn_textureCreate"_s);
    }
    QStringList setNames() {
        QStringList names;
        refreshGroundSets(program.session);
        for (const auto& set : *program.session.rows<clsTextureSets>())
            names << set->TextureSet;
        return names;
    }
};

TEST_F(CreateRun, asksBeforeMoreThanTwentySets) {
    QString question;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
        question = program.text(u"frm_Msg"_s, u"lbl_Message"_s);
        message.cancel();
    });
    create(u"21"_s);
    EXPECT_TRUE(question.startsWith(u"21 ground sets: less than a minute, 1 MB of "_s))
        << question.toStdString();
    EXPECT_EQ(setNames(), QStringList{u"Default"_s});
    EXPECT_EQ(program.toldDuring([this] { create(u"20"_s); }).size(), 1) << "a report, without a question";
    EXPECT_EQ(setNames().size(), 21);
}

TEST_F(CreateRun, refusesWhatTheFreeSpaceCannotHold) {
    for (const bool isLarge : {false, true}) {
        const auto ask = [&] {
            EXPECT_FALSE(
                program.user.allowsRun({u"105 ground sets"_s, 240, 5'200'000'000, 1'100'000'000, isLarge}));
        };
        EXPECT_EQ(program.toldDuring(ask, {}, u"lbl_Message"_s),
                  QStringList{u"105 ground sets: 5.2 GB needed, 1.1 GB free"_s});
    }
}

} // namespace
} // namespace morvane
