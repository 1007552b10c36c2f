#include "toolkit/print/system_print_job.h"

#include <algorithm>

#include <QtGui/QPainter>
#include <QtPrintSupport/QPrinter>
#include <QtPrintSupport/QPrinterInfo>

#include "toolkit/base/error.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/print/qt_page_painter.h"

namespace toolkit {
namespace {

void setPaper(QPrinter& device, const Printer& printer) {
    const auto sizes = QPrinterInfo(device).supportedPageSizes();
    const auto size = std::ranges::find_if(
        sizes, [&](const QPageSize& each) { return each.windowsId() == printer.PaperSize; });
    if (size != sizes.end()) device.setPageSize(*size);
}

/// A tray that nobody has chosen is left to the printer. Qt has numbers of its own for them, in the
/// driver's order.
void setTray(QPrinter& device, const Printer& printer) {
    const auto sources = device.supportedPaperSources();
    const auto tray = std::ranges::find(printer.Trays, printer.PaperBin, &PrinterOption::code);
    const auto index = static_cast<qsizetype>(tray - printer.Trays.begin());
    if (index < sources.size()) device.setPaperSource(sources[index]);
}

/// One that the player was shown, or else a fresh one.
std::shared_ptr<QPrinter> deviceOf(const Printer& printer) {
    if (printer.SystemDevice) return std::static_pointer_cast<QPrinter>(printer.SystemDevice);
    auto device = std::make_shared<QPrinter>(QPrinter::HighResolution);
    device->setPrinterName(qString(printer.DeviceName));
    return device;
}

/// The device as the printer object is set up.
void setUp(QPrinter& device, const Printer& printer) {
    device.setResolution(printer.PixelsPerInchX);
    setPaper(device, printer);
    setTray(device, printer);
    device.setPageOrientation(printer.Orientation == static_cast<int>(Orientation::Landscape)
                                  ? QPageLayout::Landscape
                                  : QPageLayout::Portrait);
    // Windows' pages begin inside the margins even then, unless there are none.
    device.setFullPage(true);
    device.setPageMargins(QMarginsF());
    device.setCopyCount(printer.Copies);
    if (printer.ColorMode == monochrome)
        device.setColorMode(QPrinter::GrayScale);
    else if (printer.AsksForColor || printer.SystemDevice) // which may have had a grey job
        device.setColorMode(QPrinter::Color);
}

} // namespace

struct SystemPrintJob::Implementation {
    std::shared_ptr<QPrinter> device;
    QPainter painter{};
};

SystemPrintJob::SystemPrintJob(const Printer& printer, std::string_view title)
    : implementation_(std::make_unique<Implementation>(deviceOf(printer))) {
    QPrinter& device = *implementation_->device;
    setUp(device, printer);
    device.setDocName(qString(title));
    if (!implementation_->painter.begin(&device)) throw RunTimeError(Failure::PrinterError);
}

SystemPrintJob::~SystemPrintJob() {
    if (implementation_->painter.isActive()) implementation_->device->abort();
}

void SystemPrintJob::send(std::span<const Page> pages) {
    QPrinter& device = *implementation_->device;
    for (const Page& page : pages) {
        if (&page != &pages.front() && !device.newPage()) throw RunTimeError(Failure::PrinterError);
        paintPage(implementation_->painter, page, device.resolution());
    }
}

void SystemPrintJob::close() {
    if (!implementation_->painter.end()) throw RunTimeError(Failure::PrinterError);
}

} // namespace toolkit
