// Any bytes as a card file: read as the program reads it, then what was read is saved and must come
// back the same.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "card/card_file.h"
#include "card/write_card.h"
#include "layout/skip_comment.h"
#include "text/escapes.h"
#include "toolkit/base/error.h"

namespace {

using zev::CardDocument;

/// What a card of the file's content holds up to its first failure.
CardDocument readCard(std::string content) {
    CardDocument document;
    std::string version;
    zev::CardReader reader(std::move(content), version, [&version](toolkit::TextInput& input) {
        return zev::skipComments(input, version);
    });
    try {
        document.partner.name = reader.readPartnerName();
        document.partner.number = reader.readPartnerNumber();
        for (int i = reader.readCount(); i > 0; --i)
            document.marks.push_back(reader.readMark().set);
        for (int i = reader.readCount(); i > 0; --i) {
            zev::TextRecord record = reader.readText();
            // A field keeps each run of ampersands as one that is doubled.
            zev::AmpRem(record.text);
            zev::AmpAdd(record.text);
            document.texts.push_back({record.text, record.switches & 15});
        }
    } catch (const toolkit::RunTimeError&) {
        // A damaged card is read as far as it goes.
    }
    return document;
}

/// Whether a text could be taken for a version, which changes how the file is read.
bool speaksOfVersions(const CardDocument& document) {
    const auto speaks = [](const std::string& text) {
        return text.find("Program version:") != std::string::npos;
    };
    for (const CardDocument::Text& text : document.texts)
        if (speaks(text.text)) return true;
    return speaks(document.partner.name) || speaks(document.partner.number);
}

void require(bool condition) {
    if (!condition) std::abort();
}

void requireSame(const CardDocument& left, const CardDocument& right) {
    require(left.partner.name == right.partner.name);
    require(left.partner.number == right.partner.number);
    require(left.marks == right.marks);
    require(left.texts.size() == right.texts.size());
    for (std::size_t i = 0; i < left.texts.size(); ++i) {
        require(left.texts[i].text == right.texts[i].text);
        require(left.texts[i].switches == right.texts[i].switches);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CardDocument document = readCard(std::string(reinterpret_cast<const char*>(data), size));
    if (speaksOfVersions(document)) return 0;
    document.programVersion = "2.0.0";
    requireSame(readCard(zev::writeCard(document)), document);
    return 0;
}
