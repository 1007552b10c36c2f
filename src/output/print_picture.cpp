#include "output/print_picture.h"

#include <memory>
#include <string>
#include <string_view>

#include "form/file_note.h"
#include "form/printer_facts.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "output/blank_page.h"
#include "output/print_image.h"
#include "output/printed_size.h"
#include "output/save_image.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/drawn_card.h"
#include "toolkit/window/flattened_card.h"
#include "toolkit/window/input/clipboard.h"
#include "view/image_size.h"

namespace zev {
namespace {

constexpr float resting = 500; ///< twips; size of the box for exports while nothing is exported

void traceAt(Zevlin& form, int step, const toolkit::RunTimeError& failure) {
    traceFailure(form, "Error in PrintPictureBox at step " + toolkit::numberText(step) + ": ",
                 failure);
}

void tellFailure(Zevlin& form, int step) {
    const auto failure = toolkit::currentFailure();
    traceAt(form, step, failure);
    if (failure.description().empty()) return;
    toolkit::tell(failure.description() + " Printer Error #" +
                      toolkit::numberText(failure.number()),
                  toolkit::Icon::Exclamation);
}

/// Behind the told text, as much as is known: " (Path not found)".
std::string reasonOf(const toolkit::RunTimeError& failure) {
    const std::string_view text = failure.description();
    const std::string_view bare = toolkit::describe(toolkit::Failure::PrinterError);
    if (text.starts_with(bare)) return std::string(text.substr(bare.size()));
    return " (" + std::string(text) + ")";
}

/// What is forced goes before the printer's own setting.
toolkit::Printer printerOfJob(const Zevlin& form) {
    toolkit::Printer printer = form.CurrentPrinter;
    if (form.MColor.Checked) {
        printer.ColorMode = toolkit::colored;
        toolkit::requestColor(printer);
    } else if (form.MMono.Checked) {
        printer.ColorMode = toolkit::monochrome;
    }
    return printer;
}

/// One delivery of a picture. Its steps have numbers for the trace of a failure.
class PictureDelivery {
  public:
    PictureDelivery(Zevlin& form, toolkit::PictureBox& picture, const PagePlace& place)
        : form_(form), picture_(picture), place_(place) {}

    void run() {
        const bool wasVisible = picture_.Visible;
        flatten();
        bool isRefused = false;
        if (isExporting(form_))
            exportPicture();
        else
            isRefused = !printPicture();
        if (isRefused) return;
        forget(picture_); // a box without a picture shows its back colour
        picture_.Visible = wasVisible;
    }

  private:
    /// A failure is told, and the delivery goes on after the step.
    template <typename Body>
    void runStep(int step, Body body) {
        try {
            body();
        } catch (const std::exception&) {
            tellFailure(form_, step);
        }
    }

    void flatten() {
        picture_.Visible = true;
        form_.SetFocus(picture_);
        TestBlankPage(form_, "PrintPictureBox before first SendMessage", picture_);
        TestBlankPage(form_, "PrintPictureBox before second SendMessage", picture_);
        runStep(600, [this] {
            if (isDrawn())
                card_ = std::make_shared<const toolkit::CardRecording>(toolkit::recorded(picture_));
            // Of a card that is drawn only the trace needs a picture: nothing else looks at it.
            if (!isDrawn() || form_.TraceOn) toolkit::flatten(picture_);
        });
        TestBlankPage(form_, "PrintPictureBox after second SendMessage", picture_);
        TestBlankPage(form_, "PrintPictureBox after picture=image", picture_);
    }

    /// Whether the page gets the card as a drawing.
    [[nodiscard]] bool isDrawn() const {
        return !isExporting(form_) && form_.PrintMethod != alternatePrintMethod;
    }

    /// False if the document was refused.
    bool printPicture() {
        return form_.PrintMethod == alternatePrintMethod ? printAlternate() : printPrimary();
    }

    [[nodiscard]] toolkit::DocumentInfo documentInfo() const {
        std::string name = form_.CardName.empty() ? "Card" : form_.CardName;
        if (form_.PrintsPartner) name += " - partner";
        return {.title = name,
                .filePreset = form_.DataFolder / toolkit::pathFromText(name + ".pdf")};
    }

    /// False if the player was asked for a file and cancelled.
    bool openDocument() { return form_.PrinterDC.start(printerOfJob(form_), documentInfo()); }

    void finishDocument() {
        if (const auto file = form_.PrinterDC.finish()) rememberWrittenFile(form_, *file);
    }

    bool printPrimary() {
        bool isOpen = false;
        try {
            isOpen = openDocument();
        } catch (const std::exception&) {
            const auto failure = toolkit::currentFailure();
            traceAt(form_, 1200, failure);
            toolkit::tell("Printer error 'PPB1', could not print the card. Please use 'Printer "
                          "Setup' to re-select your printer, then try again." +
                              reasonOf(failure),
                          toolkit::Icon::Exclamation);
            return false;
        }
        if (!isOpen) return true;
        TestBlankPage(form_, "PrintPictureBox before PrintImage", picture_);
        runStep(1700, [this] { stretchToDevice(); });
        TestBlankPage(form_, "PrintPictureBox after PrintImage", picture_);
        runStep(1900, [this] { finishDocument(); });
        return true;
    }

    void stretchToDevice() {
        const DeviceSize size = deviceSize(pageFactsOf(form_), picture_.Height / picture_.Width);
        PrintImage(form_, card_,
                   {.x = place_.x, .y = place_.y, .width = size.width, .height = size.height});
    }

    bool printAlternate() {
        bool isOpen = false;
        runStep(2300, [&] { isOpen = openDocument(); });
        if (!isOpen) return true;
        TestBlankPage(form_, "PrintPictureBox before Printer.PaintPicture", picture_);
        runStep(2400, [this] { paintThroughPrinter(); });
        runStep(2500, [this] { finishDocument(); });
        if (form_.Myprinter.PaperBin > 0) form_.CurrentPrinter.PaperBin = form_.Myprinter.PaperBin;
        return true;
    }

    /// The printer object takes places in twips.
    void paintThroughPrinter() {
        const toolkit::Printer& printer = form_.CurrentPrinter;
        const auto across = [&](float twips) {
            return toolkit::roundToInteger(twips / printer.TwipsPerPixelX);
        };
        const auto down = [&](float twips) {
            return toolkit::roundToInteger(twips / printer.TwipsPerPixelY);
        };
        form_.PrinterDC.stretch(picture_.Picture, {.left = across(place_.x),
                                                   .top = down(place_.y),
                                                   .width = across(printer.ScaleWidth),
                                                   .height = down(place_.height)});
    }

    void exportPicture() {
        runStep(1000, [this] { scaleAndHandOver(); });
        forget(form_.PDisk);
        form_.PDisk.Move(form_.PDisk.Left, form_.PDisk.Top, resting, resting);
    }

    void scaleAndHandOver() {
        forget(form_.PDisk);
        constexpr float half = 0.5F;
        const float view = form_.ZoomTable.at(static_cast<std::size_t>(form_.ZoomLevel));
        SetImageSize(form_, form_.PDisk, CardPicture(picture_.Picture), view == 1 ? half : 1,
                     Rescale::Always);
        if (form_.PDisk.Picture == nullptr)
            throw toolkit::RunTimeError(toolkit::Failure::InvalidPicture);
        if (form_.mPrintToClipboard.Checked)
            toolkit::setClipboardPicture(*form_.PDisk.Picture);
        else
            SaveImageToDisk(form_, form_.PDisk);
    }

    /// Drops the picture and what it was drawn from.
    static void forget(toolkit::PictureBox& box) {
        box.Picture.reset();
        box.Sharp = {};
        box.Artwork = {};
    }

    Zevlin& form_;
    toolkit::PictureBox& picture_;
    PagePlace place_;
    std::shared_ptr<const toolkit::CardRecording> card_; ///< as it was before it was flattened
};

} // namespace

bool isExporting(const Zevlin& form) {
    return form.mPrintToDisk.Checked || form.mPrintToDiskGIF.Checked ||
           form.mPrintToDiskPNG.Checked || form.mPrintToDiskJPG.Checked ||
           form.mPrintToClipboard.Checked;
}

void PrintPictureBox(Zevlin& form, toolkit::PictureBox& picture, const PagePlace& place) {
    Traceit(form, "PrintPictureBox");
    PictureDelivery(form, picture, place).run();
}

} // namespace zev
