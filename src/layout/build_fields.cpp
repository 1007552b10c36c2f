#include "layout/build_fields.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/calibration.h"
#include "layout/check_point.h"
#include "layout/find_layout.h"
#include "layout/initialize_run.h"
#include "layout/mark_fields.h"
#include "layout/read_comment.h"
#include "layout/text_fields.h"
#include "text/set_sym.h"
#include "toolkit/base/files.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"

namespace zev {
namespace {

/// Below this a count of twips per pixel can't be right.
constexpr int fewestTwips = 5;

void readEnvironment(Zevlin& form, InitializeRun& run, LayoutReader& layout) {
    run.step = 1500;
    form.OriginalTwips = static_cast<std::int16_t>(layout.readEnvironment().twips);
    run.step = 1505;
    checkScreenFonts(form);
    run.step = 1510;
    layout.skipFontLine();
    layout.skipFontLine();
    run.step = 1515;
    run.fileOffsets = layout.readOffsets();
}

void computeRatio(Zevlin& form, InitializeRun& run) {
    run.step = 1520;
    if (std::abs(form.TwipsPerPixel) >= fewestTwips &&
        std::abs(form.OriginalTwips) >= fewestTwips) {
        run.step = 1530;
        run.ratio = static_cast<float>(form.TwipsPerPixel) / static_cast<float>(form.OriginalTwips);
        return;
    }
    Traceit(form, "Error in Initialize, step 1500 (check for zero divide or overflow): twips=" +
                      toolkit::numberText(form.TwipsPerPixel) +
                      "; origtwips=" + toolkit::numberText(form.OriginalTwips));
    if (form.TwipsPerPixel < fewestTwips) form.TwipsPerPixel = 15;
    if (form.OriginalTwips < fewestTwips) form.OriginalTwips = form.TwipsPerPixel;
    run.ratio = 1;
}

/// What this machine's fonts add to the places of a layout made at another resolution.
void computeCorrections(Zevlin& form, InitializeRun& run) {
    run.step = 1700;
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    for (float& offset : run.fileOffsets) offset *= twips;
    run.step = 1800;
    std::size_t cell = 0;
    for (std::size_t kind = 1; kind <= 3; ++kind) {
        for (std::size_t size = 1; size <= 3; ++size) {
            for (std::size_t side = 1; side <= 2; ++side) {
                const float offset = run.fileOffsets[cell++];
                run.corrections[kind][size][side] =
                    form.TwipsPerPixel == form.OriginalTwips
                        ? 0
                        : offset * run.ratio - form.FontOffsets[kind][size][side];
            }
        }
    }
}

void sizeSymbolTemplate(Zevlin& form) {
    toolkit::Label& symbol = form.SText[0];
    symbol.Font = {.Name = form.SuitFontName, .Size = toolkit::fontSizeGiven(form.TextFontSize[1])};
    form.Testtext.Font = symbol.Font;
    symbol.Clips = false;
    symbol.Width = toolkit::textWidth(symbol.Font, "\xA9");
    symbol.Height = form.AText[0].Height;
    unloadSymbols(form);
}

void buildFrom(Zevlin& form, InitializeRun& run, std::string content) {
    form.VersionSeen.clear();
    LayoutReader layout(std::move(content),
                        [&form](toolkit::TextInput& input) { return SkipComment(form, input); });
    readEnvironment(form, run, layout);
    computeRatio(form, run);
    run.step = 1600;
    GetOffsets(form);
    computeCorrections(form, run);
    buildMarks(form, run, layout);
    buildTexts(form, run, layout);
    run.step = 2300;
    layout.readTabTable(form.TabTable);
    run.step = 2400;
    sizeSymbolTemplate(form);
}

void buildFromFile(Zevlin& form, InitializeRun& run) {
    const auto file = findLayout(form, run);
    run.step = 1480;
    Traceit(form, "Initialize step 1480: about to open Definitions.Ini in " +
                      toolkit::displayText(form.DataFolder));
    toolkit::FileHandle opened(file, toolkit::FileMode::Read);
    run.step = 1500;
    std::string content = toolkit::readFile(std::move(opened));
    buildFrom(form, run, content);
    form.LayoutInMemory = std::move(content);
}

/// Every mark and text of the card must find its field again.
void requireRoomForCard(const Zevlin& form) {
    if (!hasRoomFor(form, form.Carried->document))
        throw toolkit::RunTimeError(toolkit::Failure::SubscriptOutOfRange,
                                    "It has too few fields for this card");
}

/// Whether the layout in memory counts, and not the file's: a check-point is in force, which may
/// not have reached the file, or the file that an earlier one set aside can't be put back.
bool isInMemoryOnly(Zevlin& form) { return form.LayoutSetAside || !finishRestore(form); }

/// A file that is missing, unreadable or damaged leaves the fields where they were.
void rebuildFields(Zevlin& form, InitializeRun& run) {
    const std::string known = form.LayoutInMemory;
    const bool isKnown = isInMemoryOnly(form);
    const bool built = getOver(form, run, layoutFailure, [&] {
        if (isKnown) return static_cast<void>(findLayout(form, run));
        buildFromFile(form, run);
        requireRoomForCard(form);
    });
    if (built && !isKnown) return;
    buildFrom(form, run, known);
    form.LayoutInMemory = known;
}

/// Number of the last field that is filled in, 0 for none.
template <typename List, typename IsFilled>
int lastFilled(const List& list, IsFilled isFilled) {
    const auto found = std::find_if(list.rbegin(), list.rend(), isFilled);
    return static_cast<int>(list.rend() - found);
}

} // namespace

bool hasRoomFor(const Zevlin& form, const CardDocument& document) {
    const auto isWritten = [](const CardDocument::Text& text) { return !text.text.empty(); };
    return lastFilled(document.marks, [](bool set) { return set; }) <= form.AMark.UBound() &&
           lastFilled(document.texts, isWritten) <= form.AText.UBound();
}

void buildFields(Zevlin& form, InitializeRun& run) {
    if (form.Carried)
        rebuildFields(form, run);
    else
        buildFromFile(form, run);
}

} // namespace zev
