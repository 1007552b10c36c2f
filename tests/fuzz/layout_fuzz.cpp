// Any bytes as a layout file: read as the program reads it, group by group; what was read is
// written and must come back the same.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "layout/layout_file.h"
#include "layout/pixels.h"
#include "layout/skip_comment.h"
#include "layout/version.h"
#include "layout/write_layout.h"
#include "toolkit/base/error.h"

namespace {

using zev::FieldRecord;

struct Layout {
    zev::LayoutDocument document;
    zev::TabTable tabs;
    bool complete = false;
};

void readGroups(zev::LayoutReader& reader, const std::string& version, Layout& layout) {
    const auto environment = reader.readEnvironment();
    layout.document.twips = environment.twips;
    layout.document.screenWidth = environment.screenWidth;
    reader.skipFontLine();
    reader.skipFontLine();
    layout.document.offsets = reader.readOffsets();
    for (int i = reader.readCount(); i > 0; --i) {
        FieldRecord record = reader.readMark(!zev::isBelow(version, zev::switchesVersion));
        record.symbol = zev::repairedSymbol(record.symbol, false);
        layout.document.marks.push_back(record);
    }
    for (int i = reader.readCount(); i > 0; --i) layout.document.texts.push_back(reader.readText());
    reader.readTabTable(layout.tabs);
}

Layout readLayout(std::string content) {
    Layout layout;
    std::string version;
    zev::LayoutReader reader(std::move(content), [&version](toolkit::TextInput& input) {
        return zev::skipComments(input, version);
    });
    try {
        readGroups(reader, version, layout);
        layout.complete = true;
    } catch (const toolkit::RunTimeError&) {
        // A damaged layout is read as far as it goes.
    }
    return layout;
}

void require(bool condition) {
    if (!condition) std::abort();
}

void requireSame(const std::vector<FieldRecord>& left, const std::vector<FieldRecord>& right) {
    require(left.size() == right.size());
    for (std::size_t i = 0; i < left.size(); ++i) {
        require(left[i].left == right[i].left && left[i].top == right[i].top);
        require(left[i].width == right[i].width && left[i].height == right[i].height);
        require(left[i].color == right[i].color && left[i].size == right[i].size);
        require(left[i].symbol == right[i].symbol);
    }
}

void requireRoundTrip(Layout& layout) {
    layout.document.programVersion = "2.0.0";
    layout.document.tabTable = &layout.tabs;
    const Layout again = readLayout(zev::writeLayout(layout.document));
    require(again.complete);
    require(again.document.screenWidth == layout.document.screenWidth);
    require(again.document.offsets == layout.document.offsets);
    requireSame(again.document.marks, layout.document.marks);
    requireSame(again.document.texts, layout.document.texts);
    require(again.tabs.UBound() == layout.tabs.UBound());
    for (int item = 1; item <= again.tabs.UBound(); ++item)
        require(again.tabs[item] == layout.tabs[item]);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string content(reinterpret_cast<const char*>(data), size);
    static_cast<void>(zev::comparedVersion(content));
    Layout layout = readLayout(content);
    if (layout.complete) requireRoundTrip(layout);
    return 0;
}
