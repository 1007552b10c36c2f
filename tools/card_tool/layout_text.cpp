#include "card_tool/layout_text.h"

#include <cstdint>
#include <vector>

#include "card_tool/field_record.h"
#include "card_tool/ink_offsets.h"
#include "card_tool/mark_cell.h"
#include "card_tool/program_version.h"
#include "layout/layout_file.h"
#include "layout/tab_table.h"
#include "layout/write_layout.h"

namespace card_tool {
namespace {

constexpr int screenWidthPixels = 1280;

int itemNumber(FieldNumber field) {
    return field.number + (field.kind == FieldKind::Mark ? zev::firstMarkItem : 0);
}

zev::TabTable tabTable(const Sheet& sheet) {
    zev::TabTable table;
    for (const FieldNumber field : sheet.walk) table.growTo(itemNumber(field));
    for (std::size_t at = 0; at < sheet.walk.size(); ++at)
        table.set(itemNumber(sheet.walk[at]),
                  static_cast<std::int16_t>(itemNumber(sheet.walk[(at + 1) % sheet.walk.size()])));
    return table;
}

void add(std::vector<zev::FieldRecord>& records, zev::FieldRecord record) {
    record.number = static_cast<int>(records.size()) + 1;
    records.push_back(record);
}

} // namespace

std::string layoutText(const Sheet& sheet, const Typefaces& faces, int twipsPerPixel) {
    zev::LayoutDocument document;
    document.programVersion = programVersion();
    document.twips = twipsPerPixel;
    document.screenWidth = static_cast<float>(screenWidthPixels * twipsPerPixel);
    document.textFont = {"Arial", textPoints};
    document.markFont = {"Wingdings", markPoints};
    document.suitFontName = "Symbol";
    document.offsets = inkOffsets(faces, twipsPerPixel);
    for (const MarkPlace& mark : sheet.marks)
        add(document.marks, markRecord(mark, faces, twipsPerPixel));
    for (const TextPlace& text : sheet.texts)
        add(document.texts, textRecord(text, faces, twipsPerPixel));
    const zev::TabTable table = tabTable(sheet);
    document.tabTable = &table;
    return zev::writeLayout(document);
}

} // namespace card_tool
