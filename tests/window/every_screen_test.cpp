// What holds on every screen. The build runs this at 100, 150 and 200 per cent.

#include "support/window_program.h"

#include "ground/sample_textures.h"
#include "night/night_samples.h"
#include "ui/controls/slider.h"
#include "ui/host_form.h"
#include "window/form_table.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTreeWidget>

namespace morvane::test {
namespace {

struct EveryScreen : testing::Test {
    void SetUp() override {
        for (const QString& name : formNames()) {
            Form* form = program.shell.form(name);
            if (childPage(name)) program.shell.goToPage(name);
            if (auto* host = qobject_cast<HostForm*>(form)) host->formatList();
        }
    }

    WindowProgram program;
};

bool fits(const QFont& font, const QString& text, const QRect& place, int flags) {
    const QRect room(place.topLeft(), QSize(place.width(), 10'000));
    const QSize needed = QFontMetrics(font).boundingRect(room, flags, text).size();
    // Letters may reach a pixel out of their line without being cut.
    return needed.width() <= place.width() + 1 && needed.height() <= place.height() + 2;
}

/// What the control says, whatever kind it is.
QString textOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* key = qobject_cast<const SkinnedButton*>(&widget))
        return key->ButtonText() + u" <%1>"_s.arg(static_cast<int>(key->state()));
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text() + (button->isChecked() ? u" <x>"_s : QString());
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return edit->text() + edit->placeholderText();
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
        return list->currentText() + u" of "_s + QString::number(list->count());
    const auto* table = qobject_cast<const QTreeWidget*>(&widget);
    if (!table) return {};
    QStringList heads;
    for (int column = 0; column < table->columnCount(); ++column)
        heads << table->headerItem()->text(column) + u'/' + table->headerItem()->toolTip(column);
    return heads.join(u',');
}

/// What a screen reader is told: role, name, how it stands, what can be done.
QString toldOf(QWidget& widget) {
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&widget);
    const QAccessible::State state = told->state();
    // Of a box with a list some systems are told its choice for a name, beside what labels it.
    const bool isChoice = qobject_cast<const QComboBox*>(&widget);
    QStringList words{QString::number(told->role()),
                      isChoice ? widget.accessibleName() : told->text(QAccessible::Name)};
    for (const auto& [is, word] :
         {std::pair{state.disabled, u"dead"_s}, {state.checked, u"checked"_s}, {state.modal, u"modal"_s}})
        if (is) words << word;
    if (auto* actions = told->actionInterface()) words += actions->actionNames();
    if (auto* value = told->valueInterface())
        words << value->minimumValue().toString() + u" to "_s + value->maximumValue().toString();
    return words.join(u' ');
}

/// Pages stand in their windows, and have lines of their own.
bool isOfItsPage(const QWidget& widget, const Form& form) {
    const QWidget* parent = widget.parentWidget();
    while (parent != &form && !qobject_cast<const Form*>(parent))
        parent = parent->parentWidget();
    return parent != &form;
}

/// A line for each control of a screen that has a name or says something; what differs from run to run left
/// out.
QStringList linesOf(Form& form, const QString& folder) {
    QStringList lines{u"== "_s + form.objectName() + u'|' + form.windowTitle() + u'|' + toldOf(form)};
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        const QString text = textOf(*widget);
        if (isOfItsPage(*widget, form)) continue;
        if ((widget->objectName().isEmpty() && text.isEmpty()) || widget->objectName().startsWith(u"qt_"))
            continue;
        const QStringList cells{widget->objectName(), text, toldOf(*widget), widget->toolTip(),
                                widget->isHidden() ? u"hidden"_s : QString()};
        lines << cells.join(u'|').replace(folder, u"FOLDER"_s).replace(u'\n', u'~');
    }
    return lines;
}

/// Every text, name, tip and state as a start leaves it. Whoever changes one on purpose takes over the file
/// that the failure names.
TEST_F(EveryScreen, saysWhatStandsInTheList) {
    QStringList found;
    for (const QString& name : formNames()) {
        Form* form = program.shell.form(name);
        found += linesOf(*form, program.install.folder.path().text());
        form->show();
        found << (form->focusFirst() ? u"begins at "_s + form->focusWidget()->objectName()
                                     : u"begins nowhere"_s);
        form->hide();
    }
    QStringList listed =
        QString::fromUtf8(readFile(FilePath(QStringLiteral(MORVANE_SCREEN_TEXTS)))).split(u'\n');
    for (QString& line : listed)
        if (line.contains(u"FOLDER")) line.replace(u'/', QDir::separator());
    const QString taken = QDir::temp().filePath(u"screen_texts.txt"_s);
    found << QString();
    if (found != listed) writeFile(FilePath(taken), found.join(u'\n').toUtf8());
    for (qsizetype i = 0; i < std::max(found.size(), listed.size()); ++i)
        ASSERT_EQ(found.value(i).toStdString(), listed.value(i).toStdString())
            << "all of it: " << taken.toStdString();
}

TEST_F(EveryScreen, asksAtItsFirstQuestionAndAnswersWithWhatIsChosen) {
    auto& night = program.session.state<NightSampleChoice>();
    night.selectedNightTexture = u"small city"_s;
    program.session.state<GroundSampleChoice>().selectedSeason = u"fall"_s;
    QStringList places;
    for (const Screen screen :
         {Screen::frm_TsRequired, Screen::frm_SelectTexture, Screen::frm_SelectNightTexture,
          Screen::frm_SelectBaseSky, Screen::frm_CC_From_Option, Screen::frm_CC_From_Metar_String})
        program.show(screen, [&](DialogForm& dialog) {
            places << dialog.focusWidget()->objectName();
            if (auto* rural = dialog.findChild<QAbstractButton*>(u"optNightTexture_rural"_s)) rural->click();
            dialog.ok();
        });
    EXPECT_EQ(
        places.join(u' ').toStdString(),
        "txtNoClouds optSeason_fall optNightTexture_small city optBaseSky0 optCloudCover2 txtMetarString");
    EXPECT_EQ(night.selectedNightTexture, u"rural"_s);
}

/// As assistive programs do it.
TEST_F(EveryScreen, actsOnWhatIsAskedOfItsControls) {
    auto* key = QAccessible::queryAccessibleInterface(
        &program.control<SkinnedButton>(u"frm_Main"_s, u"btn_MainLinks"_s));
    key->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    EXPECT_TRUE(program.shell.form(u"frm_Links"_s)->isVisible());
    EXPECT_TRUE(key->state().disabled) << "the page one is on";
    auto& slider = program.control<ucSlider>(u"frm_GroundColorize"_s, u"vcRed"_s);
    auto* told = QAccessible::queryAccessibleInterface(&slider);
    told->valueInterface()->setCurrentValue(-500);
    EXPECT_EQ(slider.value(), -100);
    told->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(told->valueInterface()->currentValue().toInt(), -99);
}

TEST_F(EveryScreen, hasRoomForEachTextAndTheLongestMessage) {
    program.confirmNext(u"frm_Msg"_s);
    program.user.showMessage({MessageKind::information, u"Saved Flights/Flight Plans Location required"_s,
                              u"Morvane has detected that you have 'Mostly Cloudy' Ground Texture Set "
                              u"installed and 'Mostly Cloudy' "
                              "Sky Texture Set installed. Please select the check button if you wish to "
                              "reset Morvane textures to a "
                              "nominal weather condition of Partly Cloudy before exiting."_s});
    int texts = 0;
    for (const QString& name : formNames()) {
        for (const QLabel* label : program.shell.form(name)->findChildren<QLabel*>()) {
            texts += !label->text().isEmpty();
            const int flags = label->wordWrap() ? int(Qt::TextWordWrap) : 0;
            EXPECT_TRUE(label->text().isEmpty() || fits(label->font(), label->text(), label->rect(), flags))
                << name.toStdString() << ": " << label->text().toStdString();
        }
        for (const SkinnedButton* key : program.shell.form(name)->findChildren<SkinnedButton*>())
            for (const QString& line : key->ButtonText().split(u'\n', Qt::SkipEmptyParts))
                EXPECT_TRUE(fits(key->captionFont(), line, key->captionPlace(), 0))
                    << name.toStdString() << ": " << line.toStdString();
    }
    EXPECT_GT(texts, 100);
    for (const QString& name : formNames()) {
        const auto options = program.shell.form(name)->findChildren<QRadioButton*>();
        for (qsizetype i = 1; i < options.size(); ++i)
            for (const QRadioButton* before : options.first(i))
                EXPECT_FALSE(before->parent() == options[i]->parent() &&
                             before->geometry().intersects(options[i]->geometry()))
                    << name.toStdString() << ": " << options[i]->objectName().toStdString();
    }
}

/// On the one that it was left on, else on the first.
TEST_F(EveryScreen, opensWhollyOnAScreenThatIsThere) {
    Form* main = program.shell.form(u"frm_Main"_s);
    for (const QScreen* screen : QGuiApplication::screens())
        for (const QPoint& edge : {screen->geometry().center(), QPoint(-30000, 30000)}) {
            const QRect room =
                (edge.x() < -9999 ? QGuiApplication::primaryScreen() : screen)->availableGeometry();
            main->hide();
            main->move(edge - main->rect().center() + QPoint(200, 0));
            main->show();
            EXPECT_TRUE(room.contains(main->pos()));
            if (room.width() >= main->width() && room.height() >= main->height()) {
                EXPECT_TRUE(
                    room.contains(QRect(main->pos(), main->size()))); // without its skin it has a frame
            }
        }
}

} // namespace
} // namespace morvane::test
