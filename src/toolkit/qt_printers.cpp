// The system's printers where there is no print service that takes pages as files.
#include <algorithm>
#include <cwchar>

#include <windows.h>
// After windows.h, on whose types it builds.
#include <winspool.h>

#include <QtGui/QPainter>
#include <QtPrintSupport/QPrinter>
#include <QtPrintSupport/QPrinterInfo>

#include "toolkit/error.h"
#include "toolkit/printers.h"
#include "toolkit/qt_picture.h"
#include "toolkit/qt_text.h"
#include "toolkit/system_printers.h"

namespace toolkit {
namespace {

constexpr int systemToken = 2;
constexpr int monochrome = 1;
constexpr int colored = 2;
constexpr int monochromeDepth = 8;
constexpr double pointsPerInch = 72;

/// The margins are the ones that the printer can't do without.
Paper paperOf(QPrinter& device, const QPageSize& size) {
    device.setPageSize(size);
    device.setFullPage(false);
    const QMarginsF margins = device.pageLayout().minimumMargins();
    const QSizeF inches = size.size(QPageSize::Inch);
    return {
        .code = size.windowsId(),
        .name = ansiText(size.name()),
        .keyword = size.key().toStdString(),
        .width = static_cast<float>(inches.width()),
        .height = static_cast<float>(inches.height()),
        .sideMargin = static_cast<float>(std::max(margins.left(), margins.right()) / pointsPerInch),
        .endMargin = static_cast<float>(std::max(margins.top(), margins.bottom()) / pointsPerInch)};
}

/// Without those that have no number of their own, by which they could be asked for.
void addPapers(Printer& printer, QPrinter& device, const QPrinterInfo& info) {
    for (const QPageSize& size : info.supportedPageSizes())
        if (size.windowsId() > 0) printer.Papers.push_back(paperOf(device, size));
    layOutPage(printer, info.defaultPageSize().windowsId(), Orientation::Portrait);
}

/// What the driver tells in two lists of the same length.
void addTrays(Printer& printer) {
    constexpr std::size_t nameLength = 24;
    const std::wstring device = qString(printer.DeviceName).toStdWString();
    const auto ask = [&](WORD what, void* list) {
        return DeviceCapabilitiesW(device.c_str(), nullptr, what, static_cast<wchar_t*>(list),
                                   nullptr);
    };
    const int count = ask(DC_BINS, nullptr);
    if (count <= 0 || ask(DC_BINNAMES, nullptr) != count) return;
    std::vector<WORD> codes(static_cast<std::size_t>(count));
    std::vector<wchar_t> names(codes.size() * nameLength);
    if (ask(DC_BINS, codes.data()) != count || ask(DC_BINNAMES, names.data()) != count) return;
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const wchar_t* name = names.data() + i * nameLength;
        const auto length = static_cast<qsizetype>(wcsnlen(name, nameLength));
        printer.Trays.push_back({.code = codes[i],
                                 .name = ansiText(QString::fromWCharArray(name, length)),
                                 .keyword = {}});
    }
}

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
    const auto tray = std::ranges::find(printer.Trays, printer.PaperBin, &PaperTray::code);
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
    if (printer.ColorMode == monochrome) device.setColorMode(QPrinter::GrayScale);
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
    printer.ColorMode = info.defaultColorMode() == QPrinter::Color ? colored : monochrome;
    printer.BitsPerPixel = printer.ColorMode == colored ? 24 : monochromeDepth;
    addPapers(printer, device, info);
    addTrays(printer);
    return printer;
}

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

void SystemPrintJob::send(const PdfPage& page, const Bitmap& picture) {
    QPainter& painter = implementation_->painter;
    const double scale = implementation_->device->resolution() / pointsPerInch;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(page.pictureLeft * scale, page.pictureTop * scale,
                             page.pictureWidth * scale, page.pictureHeight * scale),
                      imageOver(picture));
}

void SystemPrintJob::close() {
    if (!implementation_->painter.end()) throw RunTimeError(Failure::PrinterError);
}

} // namespace toolkit
