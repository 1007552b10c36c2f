#include "card_tool/preview.h"

#include "card_tool/field_record.h"
#include "card_tool/mark_cell.h"
#include "card_tool/units.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace card {
namespace {

constexpr double suitPointsMore = 4;
constexpr double suitPixelsHigher = 6;
constexpr double pointStep = 0.5;
const std::string suitLetters = "cdhs";
constexpr char32_t blankForSuit = U' ';

QColor colourOf(Ink ink) {
    static constexpr Rgb filledBlue{62, 153, 206};
    const Rgb colour = ink == Ink::Blue ? filledBlue : inkColours[static_cast<std::size_t>(ink)];
    return {colour.red, colour.green, colour.blue};
}

QImage scaledPicture(const IndexedPicture& picture, double scale) {
    QImage full(picture.width, picture.height, QImage::Format_RGB32);
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) {
            const Rgb colour = picture.colour(x, y);
            full.setPixel(x, y, qRgb(colour.red, colour.green, colour.blue));
        }
    return full.scaled(static_cast<int>(picture.width * scale),
                       static_cast<int>(picture.height * scale), Qt::IgnoreAspectRatio,
                       Qt::SmoothTransformation);
}

double textWidth(const Typeface& face, const std::string& text, double em) {
    double width = 0;
    for (const char letter : text) width += face.advance(static_cast<unsigned char>(letter)) * em;
    return width;
}

/// Paints in design pixels on a picture of any scale.
class FieldPainter {
  public:
    FieldPainter(QImage& image, const Typefaces& faces, double scale, int twipsPerPixel)
        : m_painter(&image), m_faces(faces), m_twips(twipsPerPixel) {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.scale(scale * fullPerDesign, scale * fullPerDesign);
    }

    void paintMark(const MarkPlace& mark) {
        const FieldRecord at = markRecord(mark, m_faces, m_twips);
        const Typeface& face =
            mark.kind == MarkKind::Check ? m_faces.marksBold : m_faces.marksRegular;
        const double em = emPixels(markPoints[at.size - 1], m_twips);
        paint(face, static_cast<char32_t>(symbolNumber(mark.kind)), em,
              {double(at.left), at.top + face.ascent() * em}, mark.ink);
    }

    void paintText(const TextPlace& place, const std::string& text) {
        const FieldRecord at = textRecord(place, m_faces, m_twips);
        double points = textPoints[at.size - 1];
        const Typeface* face = at.size == 3 ? &m_faces.textBold : &m_faces.textRegular;
        if (textWidth(*face, text + " ", emPixels(points, m_twips)) > at.width)
            face = &m_faces.textNarrow;
        while (textWidth(*face, text + " ", emPixels(points, m_twips)) > at.width &&
               points > textPoints[0] / 2)
            points -= pointStep;
        paintLine(*face, points, at, text, place.ink);
    }

  private:
    void paintLine(const Typeface& face, double points, const FieldRecord& at,
                   const std::string& text, Ink ink) {
        const double em = emPixels(points, m_twips);
        double left = at.left + (at.width - lineWidth(face, text, em)) / 2;
        const double baseline = at.top + face.ascent() * em;
        for (std::size_t place = 0; place < text.size(); ++place) {
            if (text[place] == '^' && place + 1 < text.size()) {
                paintSuit(text[++place], points, left, at.top);
                left += 3 * face.advance(blankForSuit) * em;
                continue;
            }
            const auto letter = static_cast<unsigned char>(text[place]);
            paint(face, letter, em, {left, baseline}, ink);
            left += face.advance(letter) * em;
        }
    }

    /// The width with the suit signs as the blanks that they are painted over.
    static double lineWidth(const Typeface& face, const std::string& text, double em) {
        double width = textWidth(face, text, em);
        for (std::size_t at = text.find('^'); at != std::string::npos; at = text.find('^', at + 1))
            width += 3 * face.advance(blankForSuit) * em - textWidth(face, text.substr(at, 2), em);
        return width;
    }

    void paintSuit(char letter, double points, double left, double top) {
        const auto number = suitLetters.find(letter);
        if (number == std::string::npos) return;
        const double em = emPixels(points + suitPointsMore, m_twips);
        const bool red = number == 1 || number == 2;
        paint(m_faces.suits, static_cast<char32_t>(167 + number), em,
              {left, top - suitPixelsHigher + m_faces.suits.ascent() * em},
              red ? Ink::Red : Ink::Black);
    }

    void paint(const Typeface& face, char32_t character, double em, QPointF at, Ink ink) {
        m_painter.fillPath(face.outline(character, em).translated(at), colourOf(ink));
    }

    QPainter m_painter;
    const Typefaces& m_faces;
    int m_twips;
};

} // namespace

SampleCard everythingFilled(const Sheet& sheet) {
    SampleCard sample{.name = "everything"};
    for (const MarkPlace& mark : sheet.marks) sample.marks.insert(mark.id);
    for (const TextPlace& text : sheet.texts) sample.texts[text.id] = "Ag^c5^h Qx 18";
    return sample;
}

QImage preview(const IndexedPicture& picture, const Sheet& sheet, const SampleCard& sample,
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

} // namespace card
