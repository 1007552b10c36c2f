#include "toolkit/print/system_printers.h"

#include <algorithm>
#include <cwchar>

#include <windows.h>
// After windows.h, on whose types it builds.
#include <winspool.h>

#include <QtPrintSupport/QPrinter>
#include <QtPrintSupport/QPrinterInfo>

#include "toolkit/base/error.h"
#include "toolkit/base/qt_text.h"

namespace toolkit {
namespace {

constexpr int systemToken = 2;
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

} // namespace

std::vector<std::string> systemPrinterNames() {
    std::vector<std::string> names;
    const QString first = QPrinterInfo::defaultPrinterName();
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        names.insert(name == first ? names.begin() : names.end(), ansiText(name));
    return names;
}

std::string systemDefaultPrinterName() { return ansiText(QPrinterInfo::defaultPrinterName()); }

void setSystemDefaultPrinter(std::string_view name) {
    std::wstring wide = qString(name).toStdWString();
    if (SetDefaultPrinterW(wide.data()) == 0) throw RunTimeError(Failure::PrinterError);
    // The other programs look at it again.
    SendNotifyMessageW(HWND_BROADCAST, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(L"windows"));
}

Printer systemPrinter(std::string_view name) {
    Printer printer;
    const QPrinterInfo info = QPrinterInfo::printerInfo(qString(name));
    if (info.isNull()) return printer;
    QPrinter device(info, QPrinter::HighResolution);
    printer.DeviceName = name;
    printer.hdc = systemToken;
    printer.PixelsPerInchX = printer.PixelsPerInchY = device.resolution();
    printer.ColorMode = info.defaultColorMode() == QPrinter::Color ? colored : monochrome;
    printer.CanColor = info.supportedColorModes().contains(QPrinter::Color);
    addPapers(printer, device, info);
    addTrays(printer);
    return printer;
}

} // namespace toolkit
