#include "card_tool/packed_picture.h"

#include <QtCore/QByteArray>

namespace card_tool {
namespace {

void append16(QByteArray& bytes, int value) {
    bytes.append(static_cast<char>(value & 0xFF)).append(static_cast<char>(value >> 8 & 0xFF));
}

} // namespace

std::string packed(const toolkit::IndexedPicture& picture) {
    QByteArray bytes;
    append16(bytes, picture.width);
    append16(bytes, picture.height);
    append16(bytes, static_cast<int>(picture.palette.size()));
    for (const std::uint32_t color : picture.palette)
        for (const unsigned shift : {16U, 8U, 0U})
            bytes.append(static_cast<char>(color >> shift & 0xFFU));
    for (const std::uint8_t index : picture.indices) bytes.append(static_cast<char>(index));
    return qCompress(bytes, 9).toStdString();
}

} // namespace card_tool
