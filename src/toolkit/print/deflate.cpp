#include "toolkit/print/deflate.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <future>
#include <span>
#include <thread>
#include <utility>
#include <vector>

#include "toolkit/base/error.h"

namespace toolkit {
namespace {

/// The next levels save a tenth of a card and take half as long again.
constexpr int level = 1;
constexpr int windowBits = 15;
constexpr int memoryLevel = 8;

struct Part {
    std::string bytes;
    uLong checksum = 0;
    std::size_t length = 0; ///< of the content
};

/// A stretch of the stream. All but the last end on a whole byte, so that the next can follow.
class PartDeflater {
  public:
    PartDeflater() {
        // Without a head: the stream has one for all its parts.
        if (deflateInit2(&stream_, level, Z_DEFLATED, -windowBits, memoryLevel,
                         Z_DEFAULT_STRATEGY) != Z_OK)
            throw RunTimeError(Failure::OutOfMemory);
    }
    ~PartDeflater() { deflateEnd(&stream_); }
    PartDeflater(const PartDeflater&) = delete;
    PartDeflater& operator=(const PartDeflater&) = delete;

    void add(std::span<std::uint8_t> content, int flush) {
        stream_.next_in = content.data();
        stream_.avail_in = static_cast<uInt>(content.size());
        // Asked about nothing, it would begin anew.
        if (!content.empty())
            part_.checksum = adler32(part_.checksum, content.data(), stream_.avail_in);
        part_.length += content.size();
        do {
            stream_.next_out = reinterpret_cast<Bytef*>(chunk_.data());
            stream_.avail_out = static_cast<uInt>(chunk_.size());
            deflate(&stream_, flush);
            part_.bytes.append(chunk_.data(), chunk_.size() - stream_.avail_out);
        } while (stream_.avail_out == 0);
    }
    [[nodiscard]] Part finished() { return std::move(part_); }

  private:
    z_stream stream_{};
    std::array<char, 32768> chunk_{};
    Part part_{.bytes = {}, .checksum = adler32(0, nullptr, 0)};
};

Part deflatedPart(const RowSource& source, int first, int end) {
    PartDeflater deflater;
    std::vector<std::uint8_t> row;
    for (int y = first; y < end; ++y) {
        row.clear();
        source.write(y, row);
        deflater.add(row, Z_NO_FLUSH);
    }
    deflater.add({}, end == source.rows ? Z_FINISH : Z_FULL_FLUSH);
    return deflater.finished();
}

std::string joined(const std::vector<Part>& parts) {
    std::string stream("\x78\x01", 2);
    uLong checksum = adler32(0, nullptr, 0);
    for (const Part& part : parts) {
        stream += part.bytes;
        checksum = adler32_combine(checksum, part.checksum, static_cast<z_off_t>(part.length));
    }
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        stream += static_cast<char>(checksum >> shift & 0xFFU);
    return stream;
}

} // namespace

std::string zlibStream(const RowSource& source) {
    constexpr int mostParts = 4;
    const int processors = static_cast<int>(std::thread::hardware_concurrency());
    const int count = std::clamp(std::min(processors, source.rows), 1, mostParts);
    std::vector<std::future<Part>> running;
    running.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        running.push_back(std::async(std::launch::async, deflatedPart, std::cref(source),
                                     source.rows * i / count, source.rows * (i + 1) / count));
    std::vector<Part> parts;
    parts.reserve(running.size());
    for (auto& part : running) parts.push_back(part.get());
    return joined(parts);
}

} // namespace toolkit
