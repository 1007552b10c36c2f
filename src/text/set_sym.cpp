#include "text/set_sym.h"

#include <string>
#include <string_view>
#include <vector>

#include "form/field_values.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "text/escapes.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

constexpr float pointsAboveText = 4;
constexpr float pixelsAboveField = 6;
constexpr float pixelsHigher = 8;

bool isRed(int suit) { return suit == 2 || suit == 3; }

toolkit::Color shownColor(const Zevlin& form, toolkit::Color standard) {
    const int scheme = ColorSchemeIndex(form);
    if (scheme == 0) return standard;
    return scheme < form.LastSchemeIndex ? toolkit::qbColor(scheme - 1)
                                         : static_cast<toolkit::Color>(form.ColorScheme);
}

/// The elements that show the field's symbols now. Looked up by field: a walk over all symbols for
/// each field would make a card slower the more suits it holds.
std::vector<int>& shownSymbols(Zevlin& form, int index) {
    const auto cell = static_cast<std::size_t>(index);
    if (form.ShownSymbols.size() <= cell) form.ShownSymbols.resize(cell + 1);
    return form.ShownSymbols[cell];
}

/// Elements of a former run stay, unshown, until a new card or a rebuild unloads them.
void hideOldSymbols(Zevlin& form, int index) {
    std::vector<int>& shown = shownSymbols(form, index);
    for (const int symbol : shown) form.SText[symbol].Visible = false;
    shown.clear();
}

toolkit::Label& newSymbol(Zevlin& form, toolkit::Color standard) {
    const int index = form.SText.UBound() + 1;
    toolkit::Label& symbol = form.SText.Load(index);
    form.SuitColors.resize(static_cast<std::size_t>(index) + 1);
    form.SuitColors.back() = standard;
    symbol.ForeColor = shownColor(form, standard);
    return symbol;
}

void stack(Zevlin& form, int index, toolkit::Label& symbol) {
    form.P1Stack.sendToBack(form.AText[index]);
    form.P1Stack.sendToBack(form.Highlight[index]);
    form.P1Stack.bringToFront(symbol);
}

/// Twips that a caption takes where it is painted.
float paintedWidth(const toolkit::FontSpec& font, std::string_view caption) {
    return toolkit::textWidth(font, toolkit::paintedText(caption));
}

/// How far from the text's left edge its symbols begin. Each place is measured from the one before
/// it: a text of any length is gone through once.
class SymbolLeads {
  public:
    SymbolLeads(const toolkit::FontSpec& font, std::string_view caption)
        : font_(font), caption_(caption) {}
    /// Twips; positions are one-based and rise from call to call.
    float at(int position) {
        const auto end = static_cast<std::size_t>(position) - 1;
        lead_ += paintedWidth(font_, caption_.substr(measured_, end - measured_));
        measured_ = end;
        return static_cast<float>(lead_);
    }

  private:
    toolkit::FontSpec font_;
    std::string_view caption_;
    std::size_t measured_ = 0;
    double lead_ = 0;
};

/// Twips from the card's left edge to where the field's text begins.
float textLeft(const toolkit::Label& label) {
    if (label.Alignment != toolkit::Alignment::Center) return label.Left;
    return label.Left + (label.Width - paintedWidth(label.Font, label.Caption)) / 2;
}

/// Twips from the card's top to where the label's font puts its baseline.
float baselineOf(const toolkit::Label& label) {
    return label.Top + toolkit::textAscent(label.Font);
}

/// Whether any part of a symbol can be seen: a text that is far too wide may have more symbols than
/// there is room for on the card.
bool liesNearCard(const Zevlin& form, float left) {
    return left > -form.P1.Width && left < form.P1.Width;
}

/// How far a symbol reaches for a reader: up to the text that stands close behind it. Before a
/// blank and at the end it is just as wide as it is, which makes the blank the plainer.
float reachOf(const toolkit::FontSpec& font, std::string_view scanBuffer, std::size_t position) {
    const std::size_t next = position + blankedEscape.size();
    const bool isClose = next < scanBuffer.size() && scanBuffer[next] != ' ' &&
                         scanBuffer[next] != toolkit::noBreakSpace;
    return isClose ? toolkit::textWidth(font, blankedEscape) : 0;
}

void placeSymbol(Zevlin& form, int index, const std::string& scanBuffer, const SuitPlace& place,
                 float left) {
    const toolkit::Label& label = form.AText[index];
    toolkit::Label& symbol = newSymbol(form, isRed(place.suit) ? form.ColorRed : toolkit::black);
    symbol.Tag = toolkit::numberText(index);
    symbol.Font.Size = label.Font.Size + pointsAboveText;
    symbol.Font.Bold = false;
    const auto suit = static_cast<std::size_t>(place.suit) - 1;
    symbol.Caption = form.SuitChars.substr(suit, 1);
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    const auto position = static_cast<std::size_t>(place.position) - 1;
    symbol.Move(left, label.Top - pixelsAboveField * twips,
                toolkit::textWidth(label.Font, std::string_view(scanBuffer).substr(position, 2)),
                label.Height + pixelsHigher * twips);
    symbol.Reach = reachOf(label.Font, scanBuffer, position);
    // A symbol is larger than its text, but stands on the same line.
    symbol.Lowered = baselineOf(label) - baselineOf(symbol);
    symbol.Visible = true;
    shownSymbols(form, index).push_back(form.SText.UBound());
    stack(form, index, symbol);
}

void layOver(Zevlin& form, int index) {
    toolkit::Label& label = form.AText[index];
    label.Tag = label.Caption;
    if (!isField(label)) return;
    const BlankedText blanked = blankEscapes(label.Caption);
    label.Caption = blanked.caption;
    hideOldSymbols(form, index);
    SymbolLeads leads(label.Font, label.Caption);
    const float start = textLeft(label);
    for (const SuitPlace& place : suitPlaces(blanked.scanBuffer)) {
        const float left = start + leads.at(place.position);
        if (liesNearCard(form, left)) placeSymbol(form, index, blanked.scanBuffer, place, left);
    }
}

} // namespace

void SetSym(Zevlin& form, int index) {
    Traceit(form, "SetSym " + toolkit::numberText(index));
    trapped(
        form, "Error in SetSym ", [&] { layOver(form, index); },
        ", index=" + toolkit::numberText(index));
}

void unloadSymbols(Zevlin& form) {
    form.SText.UnloadAbove(0);
    form.SuitColors.clear();
    form.ShownSymbols.clear();
}

} // namespace zev
