#include "card/document.h"

#include <algorithm>
#include <utility>

#include "form/zevlin.h"
#include "text/escapes.h"
#include "text/fit_text.h"
#include "text/set_sym.h"

namespace zev {
namespace {

int switchesOf(const Zevlin& form, int index) {
    const toolkit::Label& text = form.AText[index];
    int switches = 0;
    if (text.Font.Bold || form.mBold.Checked) switches |= text_switch::bold;
    if (text.Font.Italic) switches |= text_switch::italic;
    if (text.Alignment == toolkit::Alignment::Left) switches |= text_switch::left;
    if (form.Highlight[index].Visible) switches |= text_switch::highlight;
    return switches;
}

void showStyles(Zevlin& form, int index, int switches) {
    const auto has = [switches](int flag) { return (switches & flag) != 0; };
    toolkit::Label& text = form.AText[index];
    text.Font.Bold = has(text_switch::bold) || form.mBold.Checked;
    text.Font.Italic = has(text_switch::italic);
    text.Alignment = has(text_switch::left) ? toolkit::Alignment::Left : toolkit::Alignment::Center;
    form.Highlight[index].Visible = has(text_switch::highlight);
}

const toolkit::TextBox* boxWithTyping(const Zevlin& form) {
    const bool isOpen = form.TIndex > 0 && form.OrigIndex == form.TIndex;
    if (!isOpen || form.MShowShapes.Checked) return nullptr;
    if (form.CText.Visible) return &form.CText;
    return form.LText.Visible ? &form.LText : nullptr;
}

} // namespace

CardDocument documentOf(const Zevlin& form) {
    CardDocument document;
    document.cardName = form.CardName;
    document.programVersion = form.ProgramVersion;
    document.partner = {form.PartnerName, form.PartnerNumber};
    for (int i = 1; i <= form.AMark.UBound(); ++i) document.marks.push_back(form.AMark[i].Visible);
    for (int i = 1; i <= form.AText.UBound(); ++i)
        document.texts.push_back({form.AText[i].Tag, switchesOf(form, i)});
    return document;
}

CardDocument documentWithTyping(const Zevlin& form) {
    CardDocument document = documentOf(form);
    if (const toolkit::TextBox* box = boxWithTyping(form)) {
        std::string typed = box->Text;
        AmpAdd(typed);
        document.texts.at(static_cast<std::size_t>(form.TIndex) - 1).text = std::move(typed);
    }
    return document;
}

void showText(Zevlin& form, int index, const std::string& raw) {
    form.AText[index].Caption = raw;
    FitText(form, form.CText, index);
    SetSym(form, index);
}

void showField(Zevlin& form, int index, const CardDocument::Text& text) {
    showStyles(form, index, text.switches);
    showText(form, index, text.text);
}

void showDocument(Zevlin& form, const CardDocument& document) {
    form.PartnerName = document.partner.name;
    form.PartnerNumber = document.partner.number;
    const int marks = std::min(form.AMark.UBound(), static_cast<int>(document.marks.size()));
    for (int i = 1; i <= marks; ++i)
        form.AMark[i].Visible = document.marks[static_cast<std::size_t>(i) - 1];
    const int texts = std::min(form.AText.UBound(), static_cast<int>(document.texts.size()));
    for (int i = 1; i <= texts; ++i)
        showField(form, i, document.texts[static_cast<std::size_t>(i) - 1]);
}

} // namespace zev
