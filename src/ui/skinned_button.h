#pragma once

#include <QPixmap>
#include <QWidget>

namespace morvane {

class Skin;

/// The four sizes of the skin's keys. They share one behaviour and differ by the row of data that each has.
enum class ButtonFamily { LargeButton, smallButton, StandardButton, MediumButton };

/// "deactivate" is for large keys only: it shows the disabled frame, takes no highlight, and is alive.
enum class ButtonState { enabled, highlight, down, disabled, deactivate };

/// A key of the skin: a strip with one frame for each state, and a caption over it. It tracks the mouse
/// itself and, when it is let go, says so with its form and key; what a click does stands in the dispatch
/// table.
class SkinnedButton : public QWidget {
    Q_OBJECT
public:
    /// The parent's form is asked for at each click (see `form.h`).
    SkinnedButton(ButtonFamily family, Skin& skin, QWidget* parent);

    ButtonFamily family() const { return family_; }
    static QSize sizeOf(ButtonFamily family);

    const QString& ToolTip() const { return toolTip_; }
    void setToolTip(const QString& text);
    /// The bare name of a strip under "\Media", such as "btn_Exit". One that cannot be had leaves the old.
    const QString& picture() const { return picture_; }
    void setPicture(const QString& name);
    const QString& HelpText() const { return helpText_; }
    void setHelpText(const QString& text) { helpText_ = text; }
    ButtonState state() const { return state_; }
    void setState(ButtonState state);
    const QString& form_name() const { return formName_; }
    void setFormName(const QString& name) { formName_ = name; }
    /// A key that stays down behind a click, until it is clicked again.
    bool isLatched() const { return isLatched_; }
    void setLatched(bool isLatched);
    /// The key by which the click is looked up, without regard to case.
    const QString& button_type() const { return buttonType_; }
    void setButtonType(const QString& key) { buttonType_ = key; }
    /// The caption; up to two lines on a large key, one on a medium one, none on the others.
    const QString& ButtonText() const { return buttonText_; }
    void setButtonText(const QString& text);

    /// Where the caption is drawn, for the state that the key is in.
    QRect captionPlace() const;
    QFont captionFont() const;
    /// The top of the strip in the key: 0 or less.
    int frameOffset() const;

    /// Presses the key with the left button and leaves it down.
    void click_event();
    /// Presses it and lets it go.
    void click();

Q_SIGNALS:
    /// Let go in a state that is alive.
    void dispatched(SkinnedButton* button);

protected:
    void hideEvent(QHideEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool isDead() const { return state_ == ButtonState::disabled || state_ == ButtonState::deactivate; }
    ButtonState shownState() const;
    void press();
    void release();
    void takeMouseAway();
    void refreshAccessibility();
    QRect frameInStrip() const;
    void paintPlain(QPainter& painter) const;
    void paintCaption(QPainter& painter) const;

    ButtonFamily family_;
    Skin& skin_;
    QPixmap strip_;
    ButtonState state_ = ButtonState::enabled;
    bool mouseHasLeft_ = false;
    bool isKeyDown_ = false;
    bool isLatched_ = false;
    QString toolTip_, picture_, helpText_, formName_, buttonType_, buttonText_;
};

} // namespace morvane
