#include "toolkit/print/system_print_job.h"

#include <algorithm>
#include <cmath>

#include "toolkit/base/ansi.h"
#include "toolkit/base/error.h"
#include "toolkit/print/cups_library.h"
#include "toolkit/print/pdf_document.h"
#include "toolkit/print/system_printers.h"

namespace toolkit {
namespace {

[[noreturn]] void failPrinting() {
    const CupsLibrary* cups = cupsLibrary();
    const char* reason = cups == nullptr ? nullptr : cups->lastErrorString();
    throw printerFailure(reason == nullptr ? std::string() : ansiFromUtf8(reason));
}

/// What the job asks of the printer: what the player has chosen, nothing else.
class Options {
  public:
    explicit Options(const CupsLibrary& cups) : cups_(cups) {}
    ~Options() { cups_.freeOptions(count, list); }
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    void add(const char* name, const std::string& value) {
        count = cups_.addOption(name, value.c_str(), count, &list);
    }

    int count = 0;
    cups_option_t* list = nullptr;

  private:
    const CupsLibrary& cups_;
};

template <typename Item>
const Item* itemWithCode(const std::vector<Item>& items, int code) {
    const auto found = std::ranges::find(items, code, &Item::code);
    return found == items.end() ? nullptr : &*found;
}

std::string hundredthsOfMillimetres(float inches) {
    return std::to_string(std::lround(inches * hundredthsPerInch));
}

/// The service heeds tray and kind of paper only together with the paper's size.
void addMedia(Options& options, const Printer& printer) {
    const Paper* paper = itemWithCode(printer.Papers, printer.PaperSize);
    if (paper == nullptr) return;
    const PrinterOption* tray = itemWithCode(printer.Trays, printer.PaperBin);
    const PrinterOption* type = itemWithCode(printer.PaperTypes, printer.PaperType);
    if (tray == nullptr && type == nullptr) return options.add(CUPS_MEDIA, paper->keyword);
    std::string media = "{media-size={x-dimension=" + hundredthsOfMillimetres(paper->width) +
                        " y-dimension=" + hundredthsOfMillimetres(paper->height) + "}";
    if (tray != nullptr) media += " media-source=" + tray->keyword;
    if (type != nullptr) media += " media-type=" + type->keyword;
    options.add("media-col", media + "}");
}

/// The page comes at its own size and direction, so the service must neither scale nor turn it.
void addChoices(Options& options, const Printer& printer) {
    options.add("print-scaling", "none");
    addMedia(options, printer);
    if (const PrinterOption* quality = itemWithCode(printer.Qualities, printer.Quality))
        options.add(CUPS_PRINT_QUALITY, quality->keyword);
    // A grey page on its own is mixed from all inks.
    if (printer.ColorMode == monochrome)
        options.add(CUPS_PRINT_COLOR_MODE, CUPS_PRINT_COLOR_MODE_MONOCHROME);
    else if (printer.AsksForColor)
        options.add(CUPS_PRINT_COLOR_MODE, CUPS_PRINT_COLOR_MODE_COLOR);
    if (printer.Copies > 1) options.add(CUPS_COPIES, std::to_string(printer.Copies));
}

} // namespace

struct SystemPrintJob::Implementation {
    std::string printer;
    std::string title;
    int job = 0;
};

SystemPrintJob::SystemPrintJob(const Printer& printer, std::string_view title)
    : implementation_(std::make_unique<Implementation>()) {
    const CupsLibrary* cups = cupsLibrary();
    if (cups == nullptr) failPrinting();
    implementation_->printer = utf8FromAnsi(printer.DeviceName);
    implementation_->title = title;
    Options options(*cups);
    addChoices(options, printer);
    const std::string name = utf8FromAnsi(title);
    implementation_->job = cups->createJob(CUPS_HTTP_DEFAULT, implementation_->printer.c_str(),
                                           name.c_str(), options.count, options.list);
    if (implementation_->job == 0) failPrinting();
}

SystemPrintJob::~SystemPrintJob() {
    if (implementation_->job != 0)
        cupsLibrary()->cancelJob(implementation_->printer.c_str(), implementation_->job);
}

void SystemPrintJob::send(std::span<const Page> pages) {
    const CupsLibrary& cups = *cupsLibrary();
    const std::string pdf = pdfDocument(pages, implementation_->title);
    if (cups.startDocument(CUPS_HTTP_DEFAULT, implementation_->printer.c_str(),
                           implementation_->job, "card.pdf", "application/pdf",
                           1) != HTTP_STATUS_CONTINUE ||
        cups.writeRequestData(CUPS_HTTP_DEFAULT, pdf.data(), pdf.size()) != HTTP_STATUS_CONTINUE)
        failPrinting();
}

void SystemPrintJob::close() {
    if (cupsLibrary()->finishDocument(CUPS_HTTP_DEFAULT, implementation_->printer.c_str()) >
        IPP_STATUS_OK_EVENTS_COMPLETE)
        failPrinting();
    implementation_->job = 0;
}

} // namespace toolkit
