#include "toolkit/print/print_job.h"

#include <optional>
#include <utility>

#include "toolkit/base/error.h"
#include "toolkit/base/file_handle.h"
#include "toolkit/base/write_file.h"
#include "toolkit/print/pdf_page.h"
#include "toolkit/print/system_print_job.h"
#include "toolkit/print/system_printers.h"
#include "toolkit/window/dialog.h"

namespace toolkit {
namespace {

constexpr double pointsPerInch = 72;

std::filesystem::path askForTarget(const DocumentInfo& info) {
    return askForFile(
        {.title = std::string(printToPdfName), .preset = info.filePreset, .pattern = "*.pdf"});
}

} // namespace

struct PrintJob::Document {
    Printer printer;
    std::string title;
    std::filesystem::path target;          ///< of "Print to PDF"
    bool madeTarget = false;               ///< the file is there to see that it can be written
    std::optional<SystemPrintJob> service; ///< of the system's printers
    std::shared_ptr<const Bitmap> picture{};
    Place place{};
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
    [[nodiscard]] PdfPage page() const;
};

PdfPage PrintJob::Document::page() const {
    const double x = pointsPerInch / printer.PixelsPerInchX;
    const double y = pointsPerInch / printer.PixelsPerInchY;
    return {.width = printer.PhysicalWidth * x,
            .height = printer.PhysicalHeight * y,
            .pictureLeft = (printer.PhysicalOffsetX + place.left) * x,
            .pictureTop = (printer.PhysicalOffsetY + place.top) * y,
            .pictureWidth = place.width * x,
            .pictureHeight = place.height * y,
            .title = title};
}

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

bool PrintJob::stretch(std::shared_ptr<const Bitmap> picture, const Place& place) {
    if (!document_ || !picture || picture->empty()) return false;
    document_->picture = std::move(picture);
    document_->place = place;
    return true;
}

void PrintJob::finish() {
    if (!document_) return;
    const auto document = std::exchange(document_, nullptr);
    const auto picture =
        document->picture ? document->picture : std::make_shared<const Bitmap>(1, 1);
    if (document->service) {
        document->service->send(document->page(), *picture);
        document->service->close();
    } else {
        writeFile(document->target, pdfFile(document->page(), *picture));
    }
    document->isDone = true;
}

void PrintJob::abandon() { document_.reset(); }

} // namespace toolkit
