#pragma once

#include "imaging/paper_palette.h"

#include <QImage>
#include <span>

namespace morvane::skin {

/// The ground of a page: paper, the rule under its title, the lines of its tables and the dark deck at its
/// foot. Words are live labels.
struct PagePicture {
    /// The picture's file without ending.
    QStringView name;
    int ruleTop = 40;
    /// Where the deck begins; the page's height when it has none.
    int deckTop = 388;
    bool isStatus = false;
};

std::span<const PagePicture> pagePictures();

/// The size of every page, in logical pixels.
constexpr QSize pageSize(596, 450);

QImage drawPage(const PagePicture& page, int scale, PaperPalette palette);

} // namespace morvane::skin
