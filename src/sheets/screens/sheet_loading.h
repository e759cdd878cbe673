#pragma once

#include "core/ordered_work.h"
#include "sheets/sheet_pictures.h"

#include <QHash>
#include <QObject>
#include <QTimer>

namespace morvane {

/// Loads the pictures of a sheet over all cores while the window goes on: first those that are seen, then the
/// rest.
class SheetLoading : public QObject {
    Q_OBJECT
public:
    SheetLoading(std::unique_ptr<SheetPictures> pictures, QObject* parent);
    ~SheetLoading() override;

    const SheetPictures& pictures() const { return *pictures_; }
    SheetPictures& pictures() { return *pictures_; }
    const Sheet& sheet() const { return pictures_->sheet(); }
    /// The best that is there; null when there is none yet.
    const SheetPair* pair(std::size_t texture) const;
    /// Those are seen now, `side` dots large: what of them is missing comes next.
    void see(const std::vector<std::size_t>& textures, int side);
    /// Waits for pictures, so long at most and not for those that nobody sees; milliseconds.
    void wait(int longest);
    bool isWhole() const { return missing_ == 0; }

Q_SIGNALS:
    void arrived(std::size_t texture);

private:
    struct Request {
        std::size_t texture;
        int side;
    };
    bool isThere(const Request& request) const;
    void start(const std::vector<std::size_t>& seen, int side);
    void step();
    void take();
    void endOrder();

    std::unique_ptr<SheetPictures> pictures_;
    std::vector<std::optional<SheetPair>> small_;
    QHash<std::size_t, SheetPair> sharp_; ///< of those that are seen large, in the size of `sharpSide_`
    int sharpSide_ = 0;
    std::size_t missing_;
    std::vector<Request> order_;
    std::size_t taken_ = 0, seenInOrder_ = 0;
    QTimer timer_;
    std::unique_ptr<OrderedShares<SheetPair>> work_; ///< last: its threads use the order
};

} // namespace morvane
