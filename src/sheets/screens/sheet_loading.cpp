#include "sheets/screens/sheet_loading.h"

#include <QElapsedTimer>
#include <algorithm>

namespace morvane {

namespace {

constexpr int longestStep = 8, pause = 4; ///< milliseconds: events run in between

} // namespace

SheetLoading::SheetLoading(std::unique_ptr<SheetPictures> pictures, QObject* parent)
    : QObject(parent), pictures_(std::move(pictures)), small_(pictures_->sheet().textures.size()),
      missing_(small_.size()) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &SheetLoading::step);
}

/// What was made so far need not be made again.
SheetLoading::~SheetLoading() {
    work_.reset();
    pictures_->keepSmall();
}

const SheetPair* SheetLoading::pair(std::size_t texture) const {
    if (const auto sharp = sharp_.constFind(texture); sharp != sharp_.cend()) return &*sharp;
    return small_[texture] ? &*small_[texture] : nullptr;
}

bool SheetLoading::isThere(const Request& request) const {
    return request.side == SheetPictures::smallSide ? small_[request.texture].has_value()
                                                    : sharp_.contains(request.texture);
}

void SheetLoading::see(const std::vector<std::size_t>& textures, int side) {
    const int wanted = side > SheetPictures::smallSide ? side : SheetPictures::smallSide;
    if (wanted != sharpSide_) sharp_.clear();
    sharpSide_ = wanted;
    const auto isMissing = [&](std::size_t texture) { return !isThere({texture, wanted}); };
    if (std::ranges::any_of(textures, isMissing) || (!work_ && missing_ > 0)) start(textures, wanted);
}

void SheetLoading::start(const std::vector<std::size_t>& seen, int side) {
    work_.reset();
    order_.clear();
    taken_ = 0;
    const auto add = [&](const Request& request) {
        if (!isThere(request)) order_.push_back(request);
    };
    for (const std::size_t texture : seen)
        add({texture, SheetPictures::smallSide});
    for (const std::size_t texture : seen)
        if (side != SheetPictures::smallSide) add({texture, side});
    seenInOrder_ = order_.size();
    const std::vector<bool> isSeen = [&] {
        std::vector<bool> marks(small_.size());
        for (const std::size_t texture : seen)
            marks[texture] = true;
        return marks;
    }();
    for (std::size_t texture = 0; texture < small_.size(); ++texture)
        if (!isSeen[texture]) add({texture, SheetPictures::smallSide});
    work_ = std::make_unique<OrderedShares<SheetPair>>(
        order_.size(), [this](std::size_t i) { return pictures_->load(order_[i].texture, order_[i].side); });
    timer_.start(0);
}

void SheetLoading::step() {
    QElapsedTimer clock;
    clock.start();
    while (work_ && clock.elapsed() < longestStep && work_->isNextReady())
        take();
    if (work_) timer_.start(clock.elapsed() < longestStep ? pause : 0);
}

void SheetLoading::wait(int longest) {
    QElapsedTimer clock;
    clock.start();
    while (work_ && taken_ < seenInOrder_ && clock.elapsed() < longest)
        take();
}

void SheetLoading::take() {
    if (taken_ == order_.size()) return endOrder();
    const Request request = order_[taken_++];
    SheetPair pair = work_->next();
    if (request.side != SheetPictures::smallSide) {
        sharp_[request.texture] = std::move(pair);
    } else {
        small_[request.texture] = std::move(pair);
        --missing_;
    }
    if (taken_ == order_.size()) endOrder();
    Q_EMIT arrived(request.texture);
}

void SheetLoading::endOrder() {
    work_.reset();
    if (isWhole()) pictures_->keepSmall();
}

} // namespace morvane
