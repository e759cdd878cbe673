#include "imaging/palette.h"

#include <algorithm>

namespace morvane {

namespace {

/// Walks the pairs of a run-length coded picture. Pixels that no run reaches stay black.
class RunLengthReader {
public:
    RunLengthReader(const BitmapHeader& header, Bytes file)
        : palette_(header, file), isPacked_(header.bitsPerPixel == 4), runs_(file.subspan(header.pixelsAt)),
          picture_(blackPicture(header)) {}

    Picture read() {
        while (!ended_) {
            const int count = nextByte(), value = nextByte();
            if (count > 0)
                paintRun(count, value);
            else
                obey(value);
        }
        return std::move(picture_);
    }

private:
    int nextByte() { return partOf(runs_, at_++, 1)[0]; }

    void paint(int index) {
        if (x_ >= picture_.width || y_ >= picture_.height) refusePicture(u"a run leads out of it");
        palette_.paint(static_cast<std::size_t>(index), rowOf(picture_, y_) + 3 * x_++);
    }

    /// A place outside is no fault until a pixel goes there; it is held at the edge, as the numbers would run
    /// over in a long file.
    void moveTo(int x, int y) {
        x_ = std::min(x, picture_.width);
        y_ = std::min(y, picture_.height);
    }

    /// With four bits a byte holds two indexes, the left one in its upper half; they take turns in a run.
    int indexIn(int value, int position) const {
        if (!isPacked_) return value;
        return position % 2 == 0 ? value >> 4 : value & 15;
    }

    void paintRun(int count, int value) {
        for (int i = 0; i < count; ++i)
            paint(indexIn(value, i));
    }

    void obey(int command) {
        if (command == 0) {
            moveTo(0, y_ + 1);
        } else if (command == 1) {
            ended_ = true;
        } else if (command == 2) {
            const int right = nextByte(), up = nextByte();
            moveTo(x_ + right, y_ + up);
        } else {
            paintSingles(command);
        }
    }

    void paintSingles(int count) {
        int value = 0;
        for (int i = 0; i < count; ++i) {
            if (!isPacked_ || i % 2 == 0) value = nextByte();
            paint(indexIn(value, i));
        }
        const int bytes = isPacked_ ? (count + 1) / 2 : count;
        if (bytes % 2 != 0) nextByte(); // the next pair begins at an even place
    }

    Palette palette_;
    bool isPacked_;
    Bytes runs_;
    Picture picture_;
    std::size_t at_ = 0;
    int x_ = 0, y_ = 0;
    bool ended_ = false;
};

} // namespace

/// Runs may leave out pixels, so a short file may claim any size; the bounds of the header keep that in
/// check.
Picture readRunLengthRows(const BitmapHeader& header, Bytes file) {
    partOf(file, header.pixelsAt, 2);
    return RunLengthReader(header, file).read();
}

} // namespace morvane
