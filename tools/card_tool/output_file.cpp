#include "card_tool/output_file.h"

#include "card_tool/failure.h"

#include <fstream>

namespace card {

void writeBytes(const std::filesystem::path& path, std::string_view bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) throw Failure("can't write " + path.string());
}

} // namespace card
