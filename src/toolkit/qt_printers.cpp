// The system's printers where there is no print service that takes pages as files.
#include <algorithm>

#include <QtGui/QPainter>
#include <QtPrintSupport/QPrinter>
#include <QtPrintSupport/QPrinterInfo>

#include "toolkit/error.h"
#include "toolkit/qt_picture.h"
#include "toolkit/qt_text.h"
#include "toolkit/system_printers.h"

namespace toolkit {
namespace {

constexpr int systemToken = 2;
constexpr int monochromeDepth = 8;
constexpr double pointsPerInch = 72;

/// The margins are the ones that the printer can't do without.
void addPapers(Printer& printer, QPrinter& device, const QPrinterInfo& info) {
    for (const QPageSize& size : info.supportedPageSizes()) {
        device.setPageSize(size);
        device.setFullPage(false);
        const QMarginsF margins = device.pageLayout().minimumMargins();
        const QSizeF inches = size.size(QPageSize::Inch);
        printer.Papers.push_back({.code = static_cast<int>(size.id()) + 1,
                                  .name = ansiText(size.name()),
                                  .keyword = size.key().toStdString(),
                                  .width = static_cast<float>(inches.width()),
                                  .height = static_cast<float>(inches.height()),
                                  .sideMargin = static_cast<float>(
                                      std::max(margins.left(), margins.right()) / pointsPerInch),
                                  .endMargin = static_cast<float>(
                                      std::max(margins.top(), margins.bottom()) / pointsPerInch)});
    }
    layOutPage(printer, static_cast<int>(info.defaultPageSize().id()) + 1, Orientation::Portrait);
}

/// The device as the printer object is set up.
void setUp(QPrinter& device, const Printer& printer) {
    device.setPrinterName(qString(printer.DeviceName));
    device.setResolution(printer.PixelsPerInchX);
    device.setPageSize(QPageSize(static_cast<QPageSize::PageSizeId>(printer.PaperSize - 1)));
    device.setPageOrientation(printer.Orientation == static_cast<int>(Orientation::Landscape)
                                  ? QPageLayout::Landscape
                                  : QPageLayout::Portrait);
    device.setFullPage(true);
    device.setCopyCount(printer.Copies);
}

} // namespace

std::vector<std::string> systemPrinterNames() {
    std::vector<std::string> names;
    const QString first = QPrinterInfo::defaultPrinterName();
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        names.insert(name == first ? names.begin() : names.end(), ansiText(name));
    return names;
}

std::string systemDefaultPrinterName() { return ansiText(QPrinterInfo::defaultPrinterName()); }

Printer systemPrinter(std::string_view name) {
    Printer printer;
    const QPrinterInfo info = QPrinterInfo::printerInfo(qString(name));
    if (info.isNull()) return printer;
    QPrinter device(info, QPrinter::HighResolution);
    printer.DeviceName = name;
    printer.hdc = systemToken;
    printer.PixelsPerInchX = printer.PixelsPerInchY = device.resolution();
    printer.ColorMode = info.defaultColorMode() == QPrinter::Color ? 2 : 1;
    printer.BitsPerPixel = printer.ColorMode == 2 ? 24 : monochromeDepth;
    addPapers(printer, device, info);
    return printer;
}

struct SystemPrintJob::Implementation {
    QPrinter device{QPrinter::HighResolution};
    QPainter painter;
};

SystemPrintJob::SystemPrintJob(const Printer& printer, std::string_view title)
    : implementation_(std::make_unique<Implementation>()) {
    QPrinter& device = implementation_->device;
    setUp(device, printer);
    device.setDocName(qString(title));
    if (!implementation_->painter.begin(&device)) throw RunTimeError(Failure::PrinterError);
}

SystemPrintJob::~SystemPrintJob() {
    if (implementation_->painter.isActive()) implementation_->device.abort();
}

void SystemPrintJob::send(const PdfPage& page, const Bitmap& picture) {
    QPainter& painter = implementation_->painter;
    const double scale = implementation_->device.resolution() / pointsPerInch;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(page.pictureLeft * scale, page.pictureTop * scale,
                             page.pictureWidth * scale, page.pictureHeight * scale),
                      imageOver(picture));
}

void SystemPrintJob::close() {
    if (!implementation_->painter.end()) throw RunTimeError(Failure::PrinterError);
}

} // namespace toolkit
