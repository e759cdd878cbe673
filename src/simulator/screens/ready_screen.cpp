#include "simulator/screens/ready_screen.h"

#include "core/session.h"
#include "simulator/stock_requests.h"
#include "ui/controls/labels.h"
#include "ui/controls/paper_style.h"
#include "ui/controls/skinned_progress_bar.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace morvane {

namespace {

constexpr int stepLeft = 26, stepTextLeft = 50, stepRight = 494, firstStep = 102, stepPitch = 49;

std::size_t indexOf(ReadyStep step) {
    return static_cast<std::size_t>(step);
}

QString stateText(ReadyStep step, const ReadyLine& line) {
    switch (line.mark) {
    case ReadyMark::waiting:
        return u"Waiting"_s;
    case ReadyMark::working:
        return line.percent < 0 ? u"Working"_s : QString::number(static_cast<int>(line.percent)) + u" %"_s;
    case ReadyMark::done:
        return step == ReadyStep::simulator ? u"Found"_s : u"Done"_s;
    case ReadyMark::leftOut:
        return u"Left out"_s;
    case ReadyMark::failed:
        break;
    }
    return u"Not done"_s;
}

StepMark::Sign signOf(ReadyMark mark) {
    using Sign = StepMark::Sign;
    constexpr Sign signs[] = {Sign::empty, Sign::share, Sign::tick, Sign::line, Sign::warning};
    return signs[static_cast<std::size_t>(mark)];
}

} // namespace

frm_Ready::frm_Ready(Shell& shellOfDialogs)
    : DialogForm(shellOfDialogs, u"frm_Ready"_s, readyDialogLook, u"Get ready to fly"_s) {
    lblSteps_ = makeLabel(this, {}, {stepLeft, 80, stepRight - stepLeft, 16}, TextRole::longHelp);
    lblSteps_->setObjectName(u"lblSteps"_s);
    makeHair(this, {stepLeft, 101, stepRight - stepLeft, 1});
    for (std::size_t index = 0; index < readyStepCount; ++index)
        rows_[index] = addRow(static_cast<ReadyStep>(index));
    addTextureOptions();
    addProgress();
    addAnswerKeys(u"Click to do the steps that are ticked."_s, u"Click to close."_s);
}

frm_Ready::Row frm_Ready::addRow(ReadyStep step) {
    const auto index = static_cast<int>(step);
    const int top = firstStep + index * stepPitch;
    Row row{};
    row.box = new QCheckBox(readyCaption(step, wishes_.setsOfEach), this);
    row.box->setObjectName(u"chkStep%1"_s.arg(index));
    row.box->setFont(fontOf(TextRole::optionCaption));
    keepCaptionAlive(*row.box); // a fixed row is done or under way, not out of reach
    row.box->setGeometry(stepLeft, top + 6, 350, 22);
    connect(row.box, &QCheckBox::toggled, this,
            [this, index](bool isTicked) { wishes_.isWanted[static_cast<std::size_t>(index)] = isTicked; });
    row.line = makeLabel(this, {}, {stepTextLeft, top + 27, 340, 16}, TextRole::longHelp);
    row.line->setObjectName(u"lblLine%1"_s.arg(index));
    row.line->setWordWrap(false);
    row.state = makeLabel(this, {}, {396, top + 16, 70, 16}, TextRole::number);
    row.state->setObjectName(u"lblState%1"_s.arg(index));
    row.mark = new StepMark(this);
    row.mark->move(474, top + 14);
    if (index + 1 < static_cast<int>(readyStepCount))
        makeHair(this, {stepLeft, top + stepPitch - 1, stepRight - stepLeft, 1});
    return row;
}

void frm_Ready::addTextureOptions() {
    const int top = firstStep + static_cast<int>(ReadyStep::baseTextures) * stepPitch + 26;
    const auto add = [&](const QString& name, const QString& text, int at, int width) {
        auto* option = new QRadioButton(text, this);
        option->setObjectName(name);
        option->setGeometry(at, top, width, 18);
        connect(option, &QRadioButton::clicked, this, &frm_Ready::chooseTextures);
        return option;
    };
    optDelivered_ = add(u"optDelivered"_s, u"The delivered ones"_s, stepTextLeft, 136);
    optOwn_ = add(u"optOwn"_s, u"My simulator's own"_s, 190, 180);
    rows_[indexOf(ReadyStep::baseTextures)].line->hide();
}

void frm_Ready::addProgress() {
    lblProgress_ = makeLabel(this, {}, {stepLeft, 368, 340, 16}, TextRole::darkCaption);
    lblProgress_->setObjectName(u"lblProgress"_s);
    pbReady_ = new SkinnedProgressBar(this);
    pbReady_->setObjectName(u"pbReady"_s);
    pbReady_->setAccessibleName(u"Progress"_s);
    pbReady_->setGeometry(stepLeft, 389, 340, 16);
    cmdCancel_ = new QPushButton(u"Cancel"_s, this);
    cmdCancel_->setObjectName(u"cmdCancel"_s);
    cmdCancel_->setToolTip(u"Click to end behind the file in hand; what is done stays."_s);
    cmdCancel_->setGeometry(384, 376, 119, 26);
    setOnDark(*cmdCancel_);
    connect(cmdCancel_, &QPushButton::clicked, this, &frm_Ready::cancel);
}

void frm_Ready::prepare() {
    wishes_ = {};
    (hasKeptStock(session()) ? optOwn_ : optDelivered_)->setChecked(true);
    for (const Row& row : rows_)
        row.box->setChecked(true);
    lblSteps_->setText(
        u"Five steps, about half a minute. Untick what you do not want; what is done stays."_s);
    enter(Stage::before);
    for (std::size_t index = 0; index < readyStepCount; ++index) {
        const auto step = static_cast<ReadyStep>(index);
        showLine(step, GetReady(session(), wishes_).lineOf(step));
    }
}

/// The step is done again where the other textures are wanted.
void frm_Ready::chooseTextures() {
    wishes_.baseTextures = optOwn_->isChecked() ? BaseTextures::own : BaseTextures::delivered;
    showLine(ReadyStep::baseTextures, GetReady(session(), wishes_).lineOf(ReadyStep::baseTextures));
}

void frm_Ready::enter(Stage stage) {
    stage_ = stage;
    const bool isRunning = stage == Stage::running;
    for (QWidget* shown : std::initializer_list<QWidget*>{lblProgress_, pbReady_, cmdCancel_})
        shown->setVisible(isRunning);
    button(u"btn_Ok"_s)->setVisible(!isRunning);
    button(u"btn_Cancel"_s)->setVisible(stage == Stage::before);
    for (QRadioButton* option : {optDelivered_, optOwn_})
        option->setEnabled(stage == Stage::before);
    setFirstFocus(isRunning ? static_cast<QWidget*>(cmdCancel_) : button(u"btn_Ok"_s));
    focusFirst();
}

void frm_Ready::ok() {
    if (stage_ == Stage::before)
        runSteps();
    else if (stage_ == Stage::after)
        hide();
}

void frm_Ready::cancel() {
    if (run_)
        run_->cancel();
    else
        hide();
}

void frm_Ready::runSteps() {
    enter(Stage::running);
    GetReady run(session(), wishes_);
    run_ = &run;
    session().state<TakenProgress>().taker = this;
    const bool isReady = run.run([this](ReadyStep step, const ReadyLine& line) { showLine(step, line); });
    session().state<TakenProgress>().taker = nullptr;
    run_ = nullptr;
    lblSteps_->setText(
        isReady ? u"Ready: what was ticked is done. \"Fly Now\" takes the sets that fit the weather."_s
                : u"Not everything is done; what is done stays, and you can go on later."_s);
    enter(Stage::after);
    session().user.refreshScreen(Screen::frm_Main);
}

void frm_Ready::showLine(ReadyStep step, const ReadyLine& line) {
    const Row& row = rows_[indexOf(step)];
    const bool isFailed = line.mark == ReadyMark::failed;
    const QString text = isFailed && !lastMessage_.isEmpty() ? lastMessage_ : line.text;
    row.line->setText(row.line->fontMetrics().elidedText(text, Qt::ElideRight, row.line->width()));
    row.line->setToolTip(text);
    row.state->setText(stateText(step, line));
    row.mark->setSign(signOf(line.mark), line.percent);
    row.box->setEnabled(line.mark == ReadyMark::waiting && stage_ != Stage::after);
    const bool showsOptions = step == ReadyStep::baseTextures && !isFailed;
    if (step == ReadyStep::baseTextures) {
        row.line->setVisible(!showsOptions);
        optDelivered_->setVisible(showsOptions);
        optOwn_->setVisible(showsOptions);
    }
    if (line.mark != ReadyMark::working) return;
    step_ = step;
    knowsShare_ = line.percent >= 0;
    lastMessage_.clear();
    lblProgress_->setText(row.box->text());
    if (knowsShare_) pbReady_->setValue(line.percent);
}

/// Of the sets it is told which of how many is made; each would begin at nothing again.
void frm_Ready::takeProgress(double percent) {
    if (knowsShare_) return;
    const Row& row = rows_[indexOf(step_)];
    pbReady_->setValue(percent);
    row.state->setText(QString::number(static_cast<int>(percent)) + u" %"_s);
    row.mark->setSign(StepMark::Sign::share, percent);
}

void frm_Ready::takeMessage(const Message& message) {
    lastMessage_ = message.text.simplified();
}

} // namespace morvane
