#include "toolkit/print/deflate.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include <QtCore/QByteArray>

namespace toolkit::test {
namespace {

/// What a reader of the stream gets; the platform's wants the length in front.
std::string inflated(const std::string& stream, std::size_t length) {
    std::string framed;
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        framed += static_cast<char>(length >> shift & 0xFFU);
    framed += stream;
    return qUncompress(reinterpret_cast<const uchar*>(framed.data()),
                       static_cast<qsizetype>(framed.size()))
        .toStdString();
}

void expectRoundTrip(int rows, std::size_t rowBytes) {
    std::string content(static_cast<std::size_t>(rows) * rowBytes, '\0');
    for (std::size_t i = 0; i < content.size(); ++i) content[i] = static_cast<char>(i * i % 251);
    const RowSource source{rows, [&](int row, std::vector<std::uint8_t>& bytes) {
                               const auto length = static_cast<std::ptrdiff_t>(rowBytes);
                               const auto start = content.begin() + row * length;
                               bytes.assign(start, start + length);
                           }};
    EXPECT_EQ(inflated(zlibStream(source), content.size()), content) << rows << " " << rowBytes;
}

TEST(Deflate, IsReadBackWhateverTheNumberOfRows) {
    expectRoundTrip(1, 1);
    expectRoundTrip(2, 7);
    expectRoundTrip(3, 70000);
    expectRoundTrip(1000, 301);
}

} // namespace
} // namespace toolkit::test
