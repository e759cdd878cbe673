#include "core/program_log.h"

#include "core/private_texts.h"
#include "support/home_folder.h"
#include "support/small_install.h"

#include <QDir>

namespace morvane::test {
namespace {

TEST(PrivateTexts, nothingOfThePilotsIsLeftInAText) {
    const HomeFolder homeFolder;
    const QString home = QDir::homePath(), name = home.section(u'/', -1);
    const std::vector<PrivateText> known{
        {u"40-Störm"_s, u"#40"_s}, {u"40-Störm old"_s, u"#41"_s}, {u"/mnt/my sim"_s, u"<simulator>"_s}};
    std::vector<std::pair<QString, QString>> cases{
        {u"Path not found: %1/a b/c.bmp"_s.arg(home), u"Path not found: ~/a b/c.bmp"_s},
        {home.toUpper() + u"/A"_s, u"~/A"_s},
        {home + u"x/y"_s, home + u"x/y"_s}, // another one's
        {u"The set 40-STÖRM old is gone"_s, u"The set #41 is gone"_s},
        {u"made of 40-Störm."_s, u"made of #40."_s},
        {u"\\mnt\\my  SIM\\Texture\\halo.bmp"_s, u"<simulator>\\Texture\\halo.bmp"_s},
        {u"Delete '9-Jan's own'?"_s, u"Delete '#9'?"_s}, // which no list has
        {u"of 2026/11/23:\nGround set 9-My own\nSky set 8-b"_s,
         u"of 2026/11/23: / Ground set #9 / Sky set #8"_s},
        {u"/x/Texture Sets/9-My own/Texture/a.bmp"_s, u"/x/Texture Sets/#9/Texture/a.bmp"_s},
        {u"C:\\Users\\JANSMI~1\\AppData"_s, u"C:\\Users\\~\\AppData"_s},
        {u"Nothing is taken from My own.MorvaneSet: why"_s, u"<file>.MorvaneSet: why"_s},
        {u"/mnt/x/Flight of Ann.flt is there"_s, u"/mnt/x/<file>.flt is there"_s},
        {u"a\r\nb\tc\x1b[2J\u202E"_s, u"a /  / b c [2J"_s},
    };
    if (home.startsWith(u'/')) { // as programs in Wine have them
        cases.emplace_back(QString(u"Z:"_s + home).replace(u'/', u'\\') + u"\\x"_s, u"~\\x"_s);
        cases.emplace_back(u"c:\\USERS\\%1\\y, %2"_s.arg(name.toUpper(), home), u"c:\\users/~\\y, ~"_s);
    }
    for (const auto& [text, clean] : cases)
        EXPECT_EQ(withoutPrivate(text, known), clean);
    EXPECT_LE(withoutPrivate(QString(100'000, u'a'), {}).size(), 2000);
}

TEST(PrivateTexts, whatWasTypedGoesAsAWholeAndByItsLongerWords) {
    const auto texts = typedTexts(u" EHAM  24015KT 9999 "_s);
    EXPECT_EQ(withoutPrivate(u"Not understood: eham 24015KT 9999"_s, texts), u"Not understood: <typed>"_s);
    EXPECT_EQ(withoutPrivate(u"24015kt is no wind, 999 may be"_s, texts),
              u"<typed> is no wind, 999 may be"_s);
    EXPECT_TRUE(typedTexts(u"3"_s).empty() && typedTexts(u" "_s).empty());
}

struct ProgramLogTest : InstallTest {
    ProgramLog log;
    FilePath file = logFiles(install.home())[0];

    void SetUp() override { log.open({install.files, install.clock, install.home(), u"test"_s}, clean); }
    static QString clean(const QString& text) { return text; }
    QStringList lines() const { return QString::fromUtf8(readFile(file)).split(u'\n'); }
};

TEST_F(ProgramLogTest, isRolledWithoutLosingALineAndKeepsTwo) {
    const QString thousand(1000, u'x');
    ProgramLog other;
    other.open({install.files, install.clock, install.home(), u"other"_s}, clean);
    for (int i = 0; i < 3500; ++i)
        (i % 2 ? log : other).note(u"Line"_s, QString::number(i) + thousand);
    int expected = 3500;
    for (const FilePath& each : logFiles(install.home())) {
        const QByteArray contents = readFile(each);
        EXPECT_LE(contents.size(), 1'000'000);
        QList<QByteArray> all = contents.split('\n');
        ASSERT_TRUE(all.takeLast().isEmpty());
        while (!all.isEmpty())
            ASSERT_TRUE(all.takeLast().contains(" Line " + QByteArray::number(--expected) + "xxx"));
    }
    EXPECT_TRUE(expected > 0 && expected < 1000) << expected;
    EXPECT_EQ(install.files.list(install.home(), u"*log*"_s).size(), 3) << "the lock is gone, too";
}

TEST_F(ProgramLogTest, aFailureIsTakenWithoutAWordAndTheNextLineIsWhole) {
    const auto work = [&] {
        ProgramLog fresh;
        fresh.open({install.files, install.clock, install.home(), u"test"_s}, clean);
        fresh.note(u"Line"_s, u"one"_s);
    };
    EXPECT_GT(failEachOperation(
                  install.files, Fault::once, [&] { EXPECT_NO_THROW(work()); }, [](int) {}),
              2);
    writeFile(file, "cut");
    install.files.leaveRoom(0);
    log.note(u"Line"_s, u"lost"_s);
    install.files.leaveRoom(-1);
    const int before = install.files.operations();
    log.note(u"Line"_s, u"soon behind it"_s);
    EXPECT_EQ(install.files.operations(), before) << "a disk without room is left alone for a while";
    install.clock.now = install.clock.now.addSecs(61);
    log.note(u"Line"_s, u"later"_s);
    EXPECT_EQ(lines().size(), 3);
    EXPECT_TRUE(lines()[0] == u"cut" && lines()[1].endsWith(u" Line later"_s));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ProgramLogTest, hearsMessagesAnswersAndJobsAndIsNotOpenedElsewhere) {
    log.hear(u"Error"_s, u"Title"_s, u"text"_s);
    const QDateTime now = install.clock.utcTime();
    EXPECT_TRUE(lines()[0].startsWith(now.toString(u"yyyy-MM-ddTHH:mm:ss"_s) + u"Z test "_s));
    EXPECT_TRUE(lines()[0].endsWith(u" Error Title: text"_s));
    user.setListener(&log);
    user.ask(Question::launch, u"Sure?"_s, u"text"_s);
    user.setListener(nullptr);
    EXPECT_TRUE(lines().value(1).endsWith(u" Answer Sure?: yes"_s));
    ProgramLog elsewhere;
    elsewhere.open({install.files, install.clock, install.simulator(), u"test"_s}, clean);
    elsewhere.note(u"Line"_s, {});
    EXPECT_FALSE(elsewhere.isOpen() || session.files.exists(install.simulator() / logFileName));
}

} // namespace
} // namespace morvane::test
