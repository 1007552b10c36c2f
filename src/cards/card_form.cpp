#include "cards/card_form.h"

#include <utility>

#include "app/form_load.h"
#include "app/wiring.h"
#include "card/card_names.h"
#include "card/lifecycle.h"
#include "card/load.h"
#include "cards/surroundings.h"
#include "form/printer_facts.h"
#include "form/time_stamp.h"
#include "output/make_gray.h"
#include "output/print_image.h"
#include "output/print_partner.h"
#include "output/printed_size.h"
#include "output/save_image.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/error.h"
#include "toolkit/base/path_text.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/drawn_card.h"
#include "toolkit/window/flattened_card.h"
#include "toolkit/window/program.h"
#include "view/image_size.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

constexpr int letterPaper = 1;
constexpr int a4Paper = 9;

/// Nobody is there to answer: what isn't asked for isn't done.
toolkit::DialogAnswers nobody(std::string& told) {
    return {.message =
                [&told](const toolkit::MessageBox& box) {
                    told = box.text;
                    return box.buttons == toolkit::Buttons::Ok ? toolkit::Answer::Ok
                                                               : toolkit::Answer::No;
                },
            .input = [](const toolkit::InputBox&) { return std::string(); },
            .popup = [](std::span<const toolkit::PopupRow>) {},
            .file = [](const toolkit::FileQuestion&) { return fs::path(); }};
}

void liveIn(const fs::path& folder) {
    toolkit::ProgramOverrides overrides = toolkit::programOverrides();
    overrides.documentsFolder = folder.parent_path();
    overrides.stateFolder = folder.parent_path() / "state";
    overrides.throwAtEnd = true;
    overrides.shortWaits = true;
    overrides.launch = [](const std::string&) {};
    overrides.beep = [] {};
    toolkit::overrideProgram(std::move(overrides));
    toolkit::overridePrinters({toolkit::printerNamed(toolkit::printToPdfName)});
}

} // namespace

CardForm::CardForm(const CommandOptions& options, const fs::path& folder,
                   std::optional<double> date)
    : options_(options) {
    if (date)
        toolkit::overrideClock(*date);
    else if (!options.stamp)
        toolkit::overrideClock(0);
    toolkit::answerDialogsWith(nobody(told_));
    liveIn(folder);
    start();
    chooseColors();
    choosePaper();
    keepFieldOrder();
    blank_ = form_.P1.Picture;
    if (options_.width > 0 && (imageScale() < smallestScale || imageScale() > largestScale))
        throw Trouble{"the card's picture can't be made that wide"};
}

CardForm::~CardForm() {
    window_.reset();
    form_.Journal.lock.release();
}

void CardForm::start() {
    try {
        window_ = std::make_unique<toolkit::Window>(wire(form_));
        Form_Load(form_, "");
    } catch (const toolkit::ProgramEnded&) {
        throw Trouble{told_};
    }
    if (form_.LastImageScale != 1) throw Trouble{"the card can't be shown at its full size"};
}

void CardForm::chooseColors() {
    isBlack_ = options_.black || (form_.MMono.Checked && !form_.MColor.Checked);
    if (isBlack_) MakeGray(form_, form_.P1);
}

void CardForm::choosePaper() {
    form_.CurrentPrinter = toolkit::printerNamed(toolkit::printToPdfName);
    if (!options_.paper.empty())
        toolkit::layOutPage(form_.CurrentPrinter, options_.paper == "a4" ? a4Paper : letterPaper,
                            toolkit::Orientation::Portrait);
    readPrinterFacts(form_);
}

void CardForm::keepFieldOrder() {
    order_.stack = form_.P1Stack;
    for (int i = 1; i <= form_.AText.UBound(); ++i) {
        order_.texts.push_back(form_.AText[i].Stack);
        order_.highlights.push_back(form_.Highlight[i].Stack);
    }
}

void CardForm::putFieldOrderBack() {
    form_.P1Stack = order_.stack;
    for (int i = 1; i <= form_.AText.UBound(); ++i) {
        form_.AText[i].Stack = order_.texts[static_cast<std::size_t>(i) - 1];
        form_.Highlight[i].Stack = order_.highlights[static_cast<std::size_t>(i) - 1];
    }
}

void CardForm::show(const fs::path& card) {
    MNew_Click(form_);
    putFieldOrderBack();
    form_.CardName = cleanedCardName(toolkit::displayText(card.filename()));
    loadCardFrom(form_, card);
    if (isBlack_) blackenLabels(form_);
    stamp();
}

/// The credit line stands where it stands beside a stamp with its time.
void CardForm::stamp() {
    form_.StampTellsTime = true;
    MakeTimeStamp(form_);
    PositionCreditLabel(form_);
    form_.StampTellsTime = options_.stamp;
    MakeTimeStamp(form_);
}

toolkit::Page CardForm::page() {
    const toolkit::Printer& printer = form_.CurrentPrinter;
    const DeviceSize size = deviceSize(pageFactsOf(form_), form_.P1.Height / form_.P1.Width);
    toolkit::Page page = toolkit::PrintJob::emptyPage(printer);
    page.cards.push_back(toolkit::PrintJob::placed(
        printer, std::make_shared<const toolkit::CardRecording>(toolkit::recorded(form_.P1)),
        wholePixels({.x = 0, .y = 0, .width = size.width, .height = size.height})));
    return page;
}

std::vector<toolkit::Page> CardForm::pages() {
    std::vector<toolkit::Page> pages;
    if (options_.owner != CardOwner::Partner) pages.push_back(page());
    if (options_.owner == CardOwner::Player) return pages;
    showPartnerLine(form_);
    if (isBlack_) blackenLabels(form_);
    pages.push_back(page());
    return pages;
}

float CardForm::imageScale() const {
    constexpr float exported = 0.5F;
    if (options_.width == 0) return exported;
    return static_cast<float>(options_.width) / static_cast<float>(blank_->width());
}

void CardForm::saveImage(const fs::path& file) {
    form_.P1.Picture = blank_;
    toolkit::flatten(form_.P1);
    const CardPicture full(std::exchange(form_.P1.Picture, blank_));
    const float scale = form_.LastImageScale;
    SetImageSize(form_, form_.PDisk, full, imageScale(), Rescale::Always);
    // The card itself keeps its size.
    form_.LastImageScale = scale;
    const auto picture = std::exchange(form_.PDisk.Picture, nullptr);
    form_.PDisk.Sharp = {};
    form_.PDisk.Artwork = {};
    if (!picture) throw toolkit::RunTimeError(toolkit::Failure::InvalidPicture);
    writePicture(*picture, file);
}

} // namespace zev
