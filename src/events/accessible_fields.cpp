#include "events/accessible_fields.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "events/edit_field.h"
#include "events/edit_keys.h"
#include "events/mark_clicks.h"
#include "events/tab_walk.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "layout/field_names.h"
#include "text/edit_box.h"
#include "text/escapes.h"
#include "text/spoken_text.h"
#include "toolkit/text/typed_text.h"

namespace zev {
namespace {

using toolkit::FieldId;

FieldId fieldOf(int item) {
    if (item >= firstMarkItem) return {FieldId::Kind::CheckBox, item - firstMarkItem};
    return {FieldId::Kind::Text, item};
}

auto& labelsOf(auto& form, FieldId::Kind kind) {
    return kind == FieldId::Kind::CheckBox ? form.AMark : form.AText;
}

const toolkit::Label* labelOf(const Zevlin& form, FieldId field) {
    const auto& labels = labelsOf(form, field.kind);
    if (field.number < 1 || !labels.exists(field.number) || !isField(labels[field.number]))
        return nullptr;
    return &labels[field.number];
}

std::string nameOf(FieldId field) {
    return field.kind == FieldId::Kind::CheckBox ? nameOfMark(field.number)
                                                 : nameOfText(field.number);
}

/// As TAB walks, and then what it doesn't reach.
std::vector<FieldId> fieldsInOrder(const Zevlin& form) {
    std::vector<FieldId> order;
    const auto add = [&](FieldId field) {
        const bool isNew = std::ranges::find(order, field) == order.end();
        if (isNew && labelOf(form, field) != nullptr) order.push_back(field);
        return isNew;
    };
    // The count of turns ends a circle of holes, too.
    int item = firstItem(form);
    for (int turns = form.TabTable.UBound(); turns > 0 && item > 0; --turns) {
        if (item > form.TabTable.UBound() || !add(fieldOf(item))) break;
        item = form.TabTable[item];
    }
    for (int i = 1; i <= form.AText.UBound(); ++i) add({FieldId::Kind::Text, i});
    for (int i = 1; i <= form.AMark.UBound(); ++i) add({FieldId::Kind::CheckBox, i});
    return order;
}

std::vector<toolkit::AccessibleSection> sectionsOf(const Zevlin& form) {
    std::vector<toolkit::AccessibleSection> sections;
    for (const FieldId field : fieldsInOrder(form)) {
        std::string name = nameOf(field);
        const auto comma = name.find(", ");
        const std::string section =
            comma == std::string::npos ? std::string("Other fields") : name.substr(0, comma);
        auto found = std::ranges::find(sections, section, &toolkit::AccessibleSection::name);
        if (found == sections.end())
            found = sections.insert(found, {.name = section, .fields = {}});
        found->fields.push_back({.id = field, .name = std::move(name)});
    }
    return sections;
}

std::string typedTextOf(const Zevlin& form, int number) {
    std::string typed = form.AText[number].Tag;
    AmpRem(typed);
    return typed;
}

std::optional<FieldId> focusedField(const Zevlin& form) {
    if (isEditing(form)) return FieldId{FieldId::Kind::Text, form.TIndex};
    if (!form.TabActive || form.ActiveControl != &form.P1) return std::nullopt;
    return FieldId{FieldId::Kind::CheckBox, form.TabCode - firstMarkItem};
}

/// A panel over the card, a job or design mode keeps the player from its fields, too.
bool isWithinReach(const Zevlin& form, FieldId field) {
    return labelOf(form, field) != nullptr && form.P1.Visible && form.MenusEnabled &&
           !form.Printing && !form.THelp.Visible && !form.MShowShapes.Checked;
}

void activate(Zevlin& form, FieldId field) {
    if (!isWithinReach(form, field)) return;
    if (field.kind == FieldId::Kind::CheckBox) return turnMark(form, field.number);
    form.ClickIndex = 0;
    AText_Click(form, field.number);
}

void replaceText(Zevlin& form, FieldId field, int start, int end, std::string_view utf8) {
    if (field.kind != FieldId::Kind::Text || !isWithinReach(form, field)) return;
    commitOpenField(form);
    const SpokenText spoken(typedTextOf(form, field.number));
    const TypedAround around = spoken.around(start, end);
    activate(form, field);
    toolkit::TextBox& box = openBox(form);
    box.Text = spoken.replaced(
        start, end, toolkit::ansiFromTyped(utf8, {.before = around.before, .after = around.after}));
    takeOverTyping(form, box);
    leaveField(form, box);
}

} // namespace

toolkit::AccessibleCard accessibleCard(Zevlin& form) {
    return {
        .fieldCount = [&form] { return form.AMark.UBound() + form.AText.UBound(); },
        .sections = [&form] { return sectionsOf(form); },
        .label = [&form](FieldId field) { return labelOf(form, field); },
        .name = nameOf,
        // Design mode shows all marks, set or not.
        .isSet =
            [&form](FieldId field) {
                return !form.MShowShapes.Checked && form.AMark[field.number].Visible;
            },
        .isWithinReach = [&form](FieldId field) { return isWithinReach(form, field); },
        .text =
            [&form](FieldId field) { return SpokenText(typedTextOf(form, field.number)).text(); },
        .focused = [&form] { return focusedField(form); },
        .activate =
            [&form](FieldId field) {
                trapped(form, "Error in an action of a screen reader: #",
                        [&] { activate(form, field); });
            },
        .replace =
            [&form](FieldId field, int start, int end, std::string_view utf8) {
                trapped(form, "Error in a text of a screen reader: #",
                        [&] { replaceText(form, field, start, end, utf8); });
            },
    };
}

} // namespace zev
