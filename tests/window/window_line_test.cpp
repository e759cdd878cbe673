#include "window/window_line.h"

#include "core/literals.h"
#include "support/printing.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(WindowLine, wordsAreACoverCodeButForThoseWithADash) {
    const std::tuple<QStringList, QString, QString, QString> cases[] = {
        // words; home, cover code, slip
        {{u"fog"_s}, {}, u"fog"_s, {}}, // unknown, and taken: wanted
        {{u"OVC"_s, u"010"_s}, {}, u"OVC 010"_s, {}},
        {{u"OVC"_s, u"--home=/a b"_s}, u"/a b"_s, u"OVC"_s, {}},
        {{u"--hlep"_s}, {}, {}, u"Unknown option 'hlep'."_s},
        {{u"--"_s, u"-OVC"_s}, {}, u"-OVC"_s, u"Unknown option '-OVC'."_s},
        {{u"--home"_s}, {}, {}, u"Missing value after '--home'."_s},
        {{u"--home="_s}, {}, {}, u"--home stands without its value"_s},
    };
    for (const auto& [words, home, coverCode, slip] : cases) {
        const WindowLine line = readWindowLine(words);
        EXPECT_EQ((QStringList{line.home, line.coverCode, line.slip, line.output}),
                  (QStringList{home, coverCode, slip, {}}))
            << words.join(u' ').toStdString();
    }
}

TEST(WindowLine, theProgramAnswersWithoutADisplay) {
    const std::tuple<QString, int, QByteArray, QByteArray> cases[] = {
        {u"--help"_s, 0, "Usage: morvane [--home DIR]", ""},
        {u"--version"_s, 0, "morvane 2.", ""},
        {u"--hlep"_s, 2, "", "morvane: Unknown option 'hlep'.\n"},
    };
    for (const auto& [word, status, output, errors] : cases) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"MORVANE_HOME"_s, u"/nowhere at all"_s);
        for (const QString& display : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(display);
        if (status != 0) environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(MORVANE_BIN_DIR "/morvane"), {word});
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitCode(), status) << word.toStdString();
        const QByteArray said = program.readAllStandardOutput();
        EXPECT_TRUE(said.startsWith(output) && said.isEmpty() == output.isEmpty()) << said.constData();
        EXPECT_TRUE(program.readAllStandardError().replace("\r\n", "\n").endsWith(errors));
    }
}

} // namespace
} // namespace morvane
