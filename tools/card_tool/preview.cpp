#include "card_tool/preview.h"

#include <cmath>

#include <QtGui/QPainter>

#include "card_tool/field_record.h"
#include "card_tool/mark_cell.h"
#include "card_tool/picture.h"
#include "card_tool/units.h"
#include "text/escapes.h"
#include "text/fit.h"

namespace card_tool {
namespace {

constexpr double suitPointsMore = 4;
/// The suit signs in the order of zev::suitLetters.
constexpr std::u32string_view suitSigns = U"\u2663\u2666\u2665\u2660";
const std::string regularName = "Arial";
const std::string narrowName = "Arial Narrow";

QColor filledColor(Ink ink) {
    constexpr toolkit::Color filledBlue = toolkit::rgb(62, 153, 206);
    return {toolkit::pixelOf(ink == Ink::Blue ? filledBlue : colorOf(ink))};
}

QImage scaledPicture(const toolkit::IndexedPicture& picture, double scale) {
    const toolkit::Bitmap full = bitmapOf(picture);
    const QImage pixels(reinterpret_cast<const uchar*>(full.row(0)), full.width(), full.height(),
                        QImage::Format_RGB32);
    // At full scale the scaled picture would still share the bitmap's pixels.
    return pixels
        .scaled(static_cast<int>(full.width() * scale), static_cast<int>(full.height() * scale),
                Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .copy();
}

double textWidth(const Typeface& face, std::string_view text, double em) {
    double width = 0;
    for (const char letter : text) width += face.advance(static_cast<unsigned char>(letter)) * em;
    return width;
}

/// Paints in design pixels on a picture of any scale.
class FieldPainter {
  public:
    FieldPainter(QImage& image, const Typefaces& faces, double scale, int twipsPerPixel)
        : painter_(&image), faces_(faces), twips_(twipsPerPixel) {
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.scale(scale * fullPerDesign, scale * fullPerDesign);
    }

    void paintMark(const MarkPlace& mark) {
        const zev::FieldRecord at = markRecord(mark, faces_, twips_);
        const Typeface& face = markFace(faces_, mark.kind);
        const double em = ems(pointsOf(markPoints, at.size));
        paint(face, static_cast<char32_t>(at.symbol), em, {at.left, at.top + face.ascent() * em},
              mark.ink);
    }

    void paintText(const TextPlace& place, const std::string& text) {
        const zev::FieldRecord at = textRecord(place, faces_, twips_);
        const toolkit::FontSpec font = fittedFont(at, text);
        const Typeface& face = faceOf(font);
        const double em = ems(font.Size);
        // A suit sign stands over the blanks that the text has in its place.
        const zev::BlankedText blanked = zev::blankEscapes(text);
        const std::string_view shown = blanked.caption;
        const double left = at.left + (at.width - textWidth(face, shown, em)) / 2;
        paintLetters(face, em, {left, at.top + face.ascent() * em}, shown, place.ink);
        for (const zev::SuitPlace& suit : zev::suitPlaces(blanked.scanBuffer)) {
            const auto before = static_cast<std::size_t>(suit.position) - 1;
            paintSuit(
                suit.suit, font.Size,
                {left + textWidth(face, shown.substr(0, before), em), at.top + face.ascent() * em});
        }
    }

  private:
    [[nodiscard]] double ems(double points) const { return emPixels(points, twips_); }

    [[nodiscard]] const Typeface& faceOf(const toolkit::FontSpec& font) const {
        if (font.Name == narrowName) return faces_.textNarrow;
        return font.Bold ? faces_.textBold : faces_.textRegular;
    }

    [[nodiscard]] toolkit::FontSpec fittedFont(const zev::FieldRecord& at,
                                               std::string_view text) const {
        zev::FitRequest request;
        request.regular.Name = regularName;
        request.regular.Size = pointsOf(textPoints, at.size);
        request.regular.Bold = at.size == static_cast<int>(AreaSize::Large);
        request.narrowFontName = narrowName;
        request.smallSize = textPoints.front();
        request.width = at.width;
        request.text = text;
        return zev::fittedFont(request, [this](const auto& font, std::string_view measured) {
            return static_cast<float>(textWidth(faceOf(font), measured, ems(font.Size)));
        });
    }

    void paintLetters(const Typeface& face, double em, QPointF at, std::string_view text, Ink ink) {
        for (const char letter : text) {
            const auto code = static_cast<unsigned char>(letter);
            paint(face, code, em, at, ink);
            at.rx() += face.advance(code) * em;
        }
    }

    /// Suits count from 1, and stand on the line of their text.
    void paintSuit(int suit, double points, QPointF at) {
        const double em = ems(points + suitPointsMore);
        const char32_t sign = suitSigns.at(static_cast<std::size_t>(suit) - 1);
        paint(faces_.typedSuits, suitCode(sign), em, at, isRedSuit(sign) ? Ink::Red : Ink::Black);
    }

    void paint(const Typeface& face, char32_t character, double em, QPointF at, Ink ink) {
        painter_.fillPath(face.outline(character, em).translated(at), filledColor(ink));
    }

    QPainter painter_;
    const Typefaces& faces_;
    int twips_;
};

} // namespace

SampleCard everythingFilled(const Sheet& sheet) {
    SampleCard sample{.name = "everything"};
    for (const MarkPlace& mark : sheet.marks) sample.marks.insert(mark.id);
    for (const TextPlace& text : sheet.texts) sample.texts[text.id] = "Ag^c5^h Qx 18";
    return sample;
}

QImage preview(const toolkit::IndexedPicture& picture, const Sheet& sheet, const SampleCard& sample,
               const Typefaces& faces, double scale, int twipsPerPixel) {
    QImage image = scaledPicture(picture, scale);
    FieldPainter painter(image, faces, scale, twipsPerPixel);
    for (const MarkPlace& mark : sheet.marks)
        if (sample.marks.contains(mark.id)) painter.paintMark(mark);
    for (const TextPlace& text : sheet.texts)
        if (const auto found = sample.texts.find(text.id); found != sample.texts.end())
            painter.paintText(text, found->second);
    return image;
}

} // namespace card_tool
