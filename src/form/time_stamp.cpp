#include "form/time_stamp.h"

#include <string>

#include "card/card_file.h"
#include "form/settings.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/clock.h"

namespace zev {
namespace {

constexpr float stampPoints = 11; ///< at design size on a screen of 15 twips per pixel
constexpr float creditPoints = 7;

/// Points that look alike on every screen.
float scaledPoints(const Zevlin& form, float points) {
    return points * static_cast<float>(form.TwipsPerPixel) / 15 * form.CardScale;
}

std::string stampText(const Zevlin& form) {
    const std::string name = form.CardName.empty() ? "" : "[ " + form.CardName + " ]  ";
    const std::string time =
        form.StampTellsTime ? toolkit::dateText() + "  " + toolkit::timeText() : "";
    return name + time + "    ";
}

/// Every ampersand twice, so that the label shows each.
std::string withEachDoubled(std::string text) {
    for (auto at = text.find('&'); at != std::string::npos; at = text.find('&', at + 2)) {
        text.insert(at, 1, '&');
    }
    return text;
}

void placeStamp(Zevlin& form) {
    if (form.CardScale == 0) return;
    toolkit::Label& stamp = form.Timestamp;
    stamp.Font.Size = scaledPoints(form, stampPoints);
    stamp.Height = toolkit::textHeight(stamp.Font);
    stamp.Width = toolkit::textWidth(stamp.Font, stamp.Caption);
    stamp.Left = form.P1.Width - stamp.Width;
    stamp.Top = form.LargeMarkBottom == 0
                    ? form.P1.Height - stamp.Height - 4 * static_cast<float>(form.TwipsPerPixel)
                    : form.LargeMarkBottom;
}

} // namespace

void MakeTimeStamp(Zevlin& form) {
    procedure(form, "MakeTimeStamp", [&] {
        // Neither a zoom nor the temporary name of a rebuild belongs on the card.
        if (form.Zooming || form.CardName == temporaryCardName) return;
        form.Timestamp.Caption = withEachDoubled(stampText(form));
        PositionTimeStamp(form);
        form.CreditLabel.Caption = "   [" + std::string(creditLine) + "]";
    });
}

void PositionTimeStamp(Zevlin& form) {
    procedure(form, "PositionTimeStamp", [&] { placeStamp(form); });
}

void PositionCreditLabel(Zevlin& form) {
    toolkit::Label& credit = form.CreditLabel;
    credit.Font.Size = scaledPoints(form, creditPoints);
    credit.Height = toolkit::textHeight(credit.Font);
    credit.Width = toolkit::textWidth(credit.Font, credit.Caption);
    credit.Top = form.LargeMarkBottom == 0 ? form.P1.Height - credit.Height : form.LargeMarkBottom;
    credit.Left = (form.P1.Width - form.Timestamp.Width - credit.Width) / 2;
}

} // namespace zev
