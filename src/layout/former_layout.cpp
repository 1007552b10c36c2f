#include "layout/former_layout.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

#include "layout/layout_file.h"
#include "layout/skip_comment.h"
#include "layout/tab_table.h"
#include "toolkit/base/error.h"

namespace zev {
namespace {

/// Digests of the fields of the three layouts of 2.0.0, for 12, 13 and 15 twips per pixel.
constexpr std::array<std::uint64_t, 3> formerDigests{0xE04FE5B9FE9ED4EB, 0xFA10FBA7A5693E90,
                                                     0xBDCDB56E6187BCDB};

/// A digest of numbers by Fowler, Noll and Vo (FNV-1a, 64 bits).
class Digest {
  public:
    void take(float number) {
        auto rest = std::bit_cast<std::uint32_t>(number);
        for (int byte = 0; byte < 4; ++byte, rest >>= 8U)
            value_ = (value_ ^ (rest & 0xFFU)) * prime;
    }
    void take(int number) { take(static_cast<float>(number)); }
    [[nodiscard]] std::uint64_t value() const { return value_; }

  private:
    static constexpr std::uint64_t prime = 0x100000001B3;
    std::uint64_t value_ = 0xCBF29CE484222325;
};

/// Sizes of marks and heights of texts follow from their fonts.
void takeMark(Digest& digest, const FieldRecord& mark) {
    for (const float place : {mark.left, mark.top}) digest.take(place);
    for (const int value : {mark.number, mark.color, mark.size, repairedSymbol(mark.symbol, false)})
        digest.take(value);
}

void takeText(Digest& digest, const FieldRecord& text) {
    for (const float place : {text.left, text.top, text.width}) digest.take(place);
    for (const int value : {text.number, text.color, text.size}) digest.take(value);
}

std::uint64_t digestOf(const std::string& content) {
    std::string version;
    LayoutReader layout(content,
                        [&](toolkit::TextInput& input) { return skipComments(input, version); });
    static_cast<void>(layout.readEnvironment());
    layout.skipFontLine();
    layout.skipFontLine();
    static_cast<void>(layout.readOffsets());
    Digest digest;
    const int marks = layout.readCount();
    digest.take(marks);
    for (int i = 0; i < marks; ++i) takeMark(digest, layout.readMark(true));
    const int texts = layout.readCount();
    digest.take(texts);
    for (int i = 0; i < texts; ++i) takeText(digest, layout.readText());
    TabTable tabs;
    layout.readTabTable(tabs);
    for (int item = 1; item <= tabs.UBound(); ++item) digest.take(int{tabs[item]});
    return digest.value();
}

} // namespace

bool isUntouchedFormerLayout(const std::string& content) {
    try {
        return std::ranges::find(formerDigests, digestOf(content)) != formerDigests.end();
    } catch (const toolkit::RunTimeError&) {
        return false; // no whole layout
    }
}

} // namespace zev
