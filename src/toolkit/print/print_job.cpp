#include "toolkit/print/print_job.h"

#include <utility>

#include "toolkit/base/error.h"
#include "toolkit/base/file_handle.h"
#include "toolkit/base/write_file.h"
#include "toolkit/print/pdf_document.h"
#include "toolkit/print/system_print_job.h"
#include "toolkit/print/system_printers.h"
#include "toolkit/text/font.h"
#include "toolkit/window/dialog.h"

namespace toolkit {
namespace {

constexpr double pointsPerInch = 72;

double across(const Printer& printer, int pixels) {
    return pixels * pointsPerInch / printer.PixelsPerInchX;
}

double down(const Printer& printer, int pixels) {
    return pixels * pointsPerInch / printer.PixelsPerInchY;
}

std::filesystem::path askForTarget(const DocumentInfo& info) {
    return askForFile({.title = std::string(printToPdfName) + ": " + info.title,
                       .preset = info.filePreset,
                       .pattern = "*.pdf"});
}

} // namespace

struct PrintJob::Document {
    Printer printer;
    std::string title;
    std::filesystem::path target;          ///< of "Print to PDF"
    bool madeTarget = false;               ///< the file is there to see that it can be written
    std::optional<SystemPrintJob> service; ///< of the system's printers
    std::vector<Page> pages{};
    bool isDone = false;

    Document() = default;
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    ~Document() {
        std::error_code ignored;
        if (madeTarget && !isDone) std::filesystem::remove(target, ignored);
    }
    /// Fails where writing will fail.
    void tryTarget() {
        std::error_code ignored;
        const bool isNew = !std::filesystem::exists(target, ignored);
        try {
            FileHandle(target, FileMode::Append).close();
        } catch (const RunTimeError& failure) {
            throw printerFailure(failure.description());
        }
        madeTarget = isNew;
    }
    void addPage() { pages.push_back(emptyPage(printer)); }
};

PrintJob::PrintJob() = default;
PrintJob::~PrintJob() = default;
PrintJob::PrintJob(PrintJob&&) noexcept = default;
PrintJob& PrintJob::operator=(PrintJob&&) noexcept = default;

bool PrintJob::start(const Printer& printer, const DocumentInfo& info) {
    abandon();
    if (printer.hdc == 0 || printer.PixelsPerInchX <= 0 || printer.PixelsPerInchY <= 0)
        throw RunTimeError(Failure::PrinterError);
    auto document = std::make_unique<Document>();
    document->printer = printer;
    document->title = info.title;
    document->addPage();
    if (printer.DeviceName == printToPdfName) {
        document->target = askForTarget(info);
        if (document->target.empty()) return false;
        document->tryTarget();
    } else {
        document->service.emplace(printer, info.title);
    }
    document_ = std::move(document);
    return true;
}

Page PrintJob::emptyPage(const Printer& printer) {
    return {.width = across(printer, printer.PhysicalWidth),
            .height = down(printer, printer.PhysicalHeight)};
}

PlacedCard PrintJob::placed(const Printer& printer, std::shared_ptr<const CardRecording> card,
                            const Place& place) {
    return {.card = std::move(card),
            .left = across(printer, printer.PhysicalOffsetX + place.left),
            .top = down(printer, printer.PhysicalOffsetY + place.top),
            .width = across(printer, place.width),
            .height = down(printer, place.height)};
}

bool PrintJob::draw(std::shared_ptr<const CardRecording> card, const Place& place) {
    if (!document_ || !card) return false;
    document_->pages.back().cards.push_back(placed(document_->printer, std::move(card), place));
    return true;
}

bool PrintJob::stretch(std::shared_ptr<const Bitmap> picture, const Place& place) {
    if (!picture || picture->empty()) return false;
    auto card = std::make_shared<CardRecording>();
    card->width = picture->width();
    card->height = picture->height();
    card->picture = std::move(picture);
    return draw(std::move(card), place);
}

void PrintJob::write(std::string_view text, const FontSpec& font, float left, float top) {
    if (!document_) return;
    const Printer& printer = document_->printer;
    document_->pages.back().items.emplace_back(
        Words{.color = black,
              .fontName = font.Name,
              .bold = font.Bold,
              .em = font.Size,
              .left = across(printer, printer.PhysicalOffsetX) + left / twipsPerPoint,
              .baseline =
                  down(printer, printer.PhysicalOffsetY) + (top + textAscent(font)) / twipsPerPoint,
              .text = std::string(text)});
}

void PrintJob::turnPage() {
    if (document_) document_->addPage();
}

std::optional<std::filesystem::path> PrintJob::finish() {
    if (!document_) return std::nullopt;
    const auto document = std::exchange(document_, nullptr);
    if (document->service) {
        document->service->send(document->pages);
        document->service->close();
    } else {
        writeFile(document->target, pdfDocument(document->pages, document->title));
    }
    document->isDone = true;
    if (document->service) return std::nullopt;
    return document->target;
}

void PrintJob::abandon() { document_.reset(); }

} // namespace toolkit
