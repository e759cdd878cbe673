#include "weather/gzip_reader.h"

#include "core/error.h"

#define ZLIB_CONST // it only reads what is given to it
#include <zlib.h>

namespace morvane {

namespace {

constexpr qsizetype chunkSize = 1 << 16;

/// Reads gzip bytes piece by piece; they have to live as long as this does.
class GzipStream {
public:
    explicit GzipStream(const QByteArray& packed) {
        constexpr int gzipOnly = 16; // added to the window's bits it refuses any other form
        stream_.next_in = reinterpret_cast<const Bytef*>(packed.constData());
        stream_.avail_in = static_cast<uInt>(packed.size());
        if (inflateInit2(&stream_, gzipOnly + MAX_WBITS) != Z_OK) throw Error(ErrorCode::outOfMemory);
    }
    ~GzipStream() { inflateEnd(&stream_); }
    GzipStream(const GzipStream&) = delete;
    GzipStream& operator=(const GzipStream&) = delete;

    /// Fills the chunk as far as there is something; gives the number of bytes.
    qsizetype read(QByteArray& chunk) {
        stream_.next_out = reinterpret_cast<Bytef*>(chunk.data());
        stream_.avail_out = static_cast<uInt>(chunk.size());
        while (!isAtEnd_ && stream_.avail_out > 0)
            step();
        return chunk.size() - static_cast<qsizetype>(stream_.avail_out);
    }

private:
    void step() {
        const int result = inflate(&stream_, Z_NO_FLUSH);
        if (result == Z_STREAM_END)
            beginNextMember();
        else if (result != Z_OK)
            throw Error::withDescription(ErrorCode::ioFailure,
                                         u"the file is compressed, and damaged or cut off"_s);
    }
    void beginNextMember() {
        isAtEnd_ = stream_.avail_in < 2 || stream_.next_in[0] != 0x1F || stream_.next_in[1] != 0x8B;
        if (!isAtEnd_) inflateReset(&stream_);
    }

    z_stream stream_{};
    bool isAtEnd_ = false;
};

} // namespace

bool isGzip(const QByteArray& bytes) {
    return bytes.startsWith("\x1F\x8B");
}

QByteArray unpackGzip(const QByteArray& packed, std::int64_t largestSize) {
    GzipStream stream(packed);
    QByteArray contents, chunk(chunkSize, Qt::Uninitialized);
    while (const qsizetype count = stream.read(chunk)) {
        contents.append(chunk.constData(), count);
        if (contents.size() > largestSize)
            throw Error::withDescription(ErrorCode::ioFailure, u"the file is far too large when unpacked"_s);
    }
    return contents;
}

} // namespace morvane
