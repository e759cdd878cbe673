#pragma once

#include "core/user_interface.h"
#include "ui/controls/labels.h"
#include "ui/dialog_form.h"

#include <QElapsedTimer>

class QCheckBox;
class QEventLoop;
class QLabel;
class QMovie;
class QPushButton;

namespace morvane {

class SkinSign;
class SkinnedProgressBar;

/// The one message screen: reports, questions and the progress of long work.
class frm_Msg : public DialogForm {
    Q_OBJECT
public:
    explicit frm_Msg(Shell& shell);

    /// A progress message returns at once and blocks every other window, so that only its cancel is live;
    /// any other returns once it was answered. A message that still stands ends first; its caller goes on
    /// after this one.
    void showMessage(const Message& message);
    /// Title and text where not empty; the bar (0 to 100). Painted some thirty times a second at most.
    void updateProgress(const QString& title, const QString& text, double value);
    void setProgressFile(const QString& line);

    void ok() override { answer(true); }
    /// Escape: no, or OK where only OK shows. While progress shows it is the cancel key.
    void cancel() override;

protected:
    void prepare() override {}
    void confirm() override {}
    /// While progress shows the message stands for the program, whose windows are blocked or away: closing it
    /// leaves the program.
    void closeEvent(QCloseEvent* event) override;

private:
    QLabel* addText(const QString& name, const QRect& place, TextRole role);
    void makeControls();
    void answer(bool ok);
    void askForCancel();
    void fill(const Message& message);
    void showTitle(const QString& title);
    void showPicture(const QString& fileName);
    void layOut(const Message& message);
    void storeFastExit(bool isTicked);
    bool isTimeToPaint(double value);

    QString msgType_;
    QLabel *lbl_Title_, *lbl_Message_, *lblProcessDescription_, *lblProcessFile_, *picASv6_;
    SkinSign* pic_Icon_;
    SkinnedButton *btn_Ok_, *btn_Cancel_;
    SkinnedProgressBar* pbMessage_;
    QPushButton* cmdCancel_;
    QCheckBox* chkFastExit_;
    QMovie* anGifASv6_;
    QString processFile_;
    QElapsedTimer lastPaint_;
    bool isProgress_ = false;
    bool isWaiting_ = false; ///< for Active Sky: nobody knows how much of its work is done
    bool isAsking_ = false;
};

} // namespace morvane
