#include "toolkit/text/text_painter.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

#include <QtCore/QCache>
#include <QtCore/QCoreApplication>
#include <QtGui/QGlyphRun>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QRawFont>

#include "toolkit/base/ansi.h"
#include "toolkit/base/twips.h"
#include "toolkit/text/qt_font_face.h"
#include "toolkit/text/qt_page_font.h"

namespace toolkit {
namespace {

// Each holds a font engine with the glyphs that it has drawn, so they are worth keeping; all zooms,
// half points and styles that a card can show come to far fewer than the limit.
using SizedFonts = QCache<std::pair<const FontFace*, double>, QRawFont>;
constexpr qsizetype mostSizedFonts = 512;

/// Those for a page in a file, or those for all else.
SizedFonts& sizedFonts(bool isForFile) {
    static SizedFonts forFiles(mostSizedFonts);
    static SizedFonts others(mostSizedFonts);
    return isForFile ? forFiles : others;
}

// Font engines must not outlive the application object.
void forgetSizedFonts() {
    for (const bool isForFile : {false, true}) sizedFonts(isForFile).clear();
}

QRawFont sizedFont(const FontSpec& font, const FontFace& face, double pixelSize, bool isForFile) {
    SizedFonts& fonts = sizedFonts(isForFile);
    if (const QRawFont* known = fonts.object({&face, pixelSize})) return *known;
    if (fonts.isEmpty()) qAddPostRoutine(forgetSizedFonts);
    // Made from the font and then given its size: a size given to a QFont is rounded on the way.
    QRawFont rawFont = QRawFont::fromFont(isForFile ? pageFont(font) : styledFont(font));
    rawFont.setPixelSize(pixelSize);
    fonts.insert({&face, pixelSize}, std::make_unique<QRawFont>(rawFont).release());
    return rawFont;
}

struct Run {
    std::vector<quint32> glyphs;
    std::vector<QPointF> positions;

    void lay(const FontFace& face, double pixelSize, std::string_view text) {
        glyphs.clear();
        positions.clear();
        const double pixelsPerUnit = pixelSize / face.measures.unitsPerEm;
        // A file may bring a text of any length: its width is beyond an int.
        double units = 0;
        for (const char character : text) {
            if (character != ' ' && character != noBreakSpace) {
                glyphs.push_back(face.glyphs[code(character)]);
                positions.emplace_back(units * pixelsPerUnit, 0);
            }
            units += face.measures.advances[code(character)];
        }
    }
};

} // namespace

void drawRun(QPainter& painter, QPointF baselineOrigin, const FontSpec& font, double pixelsPerTwip,
             Color color, std::string_view text) {
    static Run run;
    const double pixelSize = font.Size * twipsPerPoint * pixelsPerTwip;
    if (!(pixelSize > 0)) return;
    const FontFace& face = fontFace(font);
    run.lay(face, pixelSize, text);
    if (run.glyphs.empty()) return;
    QGlyphRun glyphRun;
    const bool isForFile = painter.paintEngine()->type() == QPaintEngine::Pdf;
    glyphRun.setRawFont(sizedFont(font, face, pixelSize, isForFile));
    glyphRun.setRawData(run.glyphs.data(), run.positions.data(),
                        static_cast<int>(run.glyphs.size()));
    painter.setPen(QColor(redOf(color), greenOf(color), blueOf(color)));
    painter.drawGlyphRun(baselineOrigin, glyphRun);
}

QFont qtFont(const FontSpec& font) {
    const double exactSize = std::max(font.Size * twipsPerPoint / twipsPerPixel(), 1.0);
    const int wholeSize = static_cast<int>(std::lround(exactSize));
    QFont sized = styledFont(font);
    sized.setPixelSize(wholeSize);
    sized.setLetterSpacing(QFont::PercentageSpacing, 100 * exactSize / wholeSize);
    return sized;
}

} // namespace toolkit
