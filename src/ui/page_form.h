#pragma once

#include "ui/controls/foot_line.h"
#include "ui/controls/skin_sign.h"
#include "ui/form.h"

#include <QLabel>

namespace morvane {

/// Where a page lies in its window.
inline constexpr QRect pagePlace{142, 94, 596, 450};

/// The light ground of a page with its title; everything else of the page lies on it.
class Paper : public QWidget {
    Q_OBJECT
public:
    enum class Title { normal, compact }; ///< colour and options pages save four pixels

    /// `picture` is the page's background below "\Media".
    Paper(Form& form, const QString& picture, Title title = Title::normal, QWidget* parent = nullptr);

    /// Title picture ("icon_MVHome.bmp") and text.
    void setTitle(const QString& icon, const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Form& form_;
    QString picture_;
    SkinSign* picHeader_;
    QLabel* lblHeader_;
};

/// A page that stands in a window as its child.
class PageForm : public Form {
    Q_OBJECT
public:
    PageForm(Shell& shell, const QString& name, const QString& picture,
             Paper::Title title = Paper::Title::normal);

    /// What each visit begins with: the window's keys, the title, the contents.
    virtual void format() = 0;
    /// Shows what was changed elsewhere while the page may stand.
    virtual void refresh() {}

    /// What stands on the bezel below this page whenever it is shown; an empty text for nothing.
    void setFootText(const FootText& text);

protected:
    Paper* paper() const { return paper_; }
    /// Marks the key of this page in its window, as the only one that is "disabled".
    void markKey(const QString& key);
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void standOnFootLine(const FootText& text);

    Paper* paper_;
    FootText footText_;
};

} // namespace morvane
