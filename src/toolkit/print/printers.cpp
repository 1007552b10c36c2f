#include "toolkit/print/printers.h"

#include <algorithm>
#include <utility>

#include "toolkit/base/error.h"
#include "toolkit/print/system_printers.h"

namespace toolkit {
namespace {

struct PrinterOverrides {
    std::vector<Printer> printers;
    bool noPrinter = false;
    PrinterAnswer answer;
};

PrinterOverrides& overrides() {
    static PrinterOverrides current;
    return current;
}

Paper paper(int code, const char* name, float width, float height) {
    return {.code = code,
            .name = name,
            .keyword = name,
            .width = width,
            .height = height,
            .sideMargin = 0,
            .endMargin = 0};
}

Printer printToPdf() {
    constexpr int dotsPerInch = 600;
    Printer printer;
    printer.DeviceName = printToPdfName;
    printer.hdc = 1;
    printer.PixelsPerInchX = printer.PixelsPerInchY = dotsPerInch;
    printer.Papers = {paper(1, "Letter", 8.5F, 11), paper(5, "Legal", 8.5F, 14),
                      paper(9, "A4", 8.27F, 11.69F)};
    layOutPage(printer, 1, Orientation::Portrait);
    return printer;
}

Printer askSystem(const std::string& name) {
    if (name == printToPdfName) return printToPdf();
    Printer printer = name.empty() ? Printer{} : systemPrinter(name);
    if (printer.hdc != 0) return printer;
    const auto names = systemPrinterNames();
    if (!names.empty()) printer = systemPrinter(names.front());
    return printer.hdc == 0 ? printToPdf() : printer;
}

const Printer* overridden(std::string_view name) {
    const auto& printers = overrides().printers;
    const auto found = std::ranges::find(printers, name, &Printer::DeviceName);
    return found == printers.end() ? nullptr : &*found;
}

} // namespace

std::vector<std::string> printerNames() {
    std::vector<std::string> names;
    if (overrides().printers.empty()) names = systemPrinterNames();
    for (const Printer& printer : overrides().printers) names.push_back(printer.DeviceName);
    if (std::ranges::find(names, printToPdfName) == names.end()) names.emplace_back(printToPdfName);
    return names;
}

Printer printerNamed(std::string_view name) {
    if (const Printer* printer = overridden(name)) return *printer;
    if (name == printToPdfName) return printToPdf();
    return overrides().printers.empty() ? systemPrinter(name) : Printer{};
}

Printer defaultPrinter() {
    Printer printer = printerNamed(printerNames().front());
    if (printer.hdc == 0) printer = printToPdf();
    if (overrides().noPrinter) printer.hdc = 0;
    return printer;
}

std::string defaultPrinterName() {
    const auto& printers = overrides().printers;
    return printers.empty() ? systemDefaultPrinterName() : printers.front().DeviceName;
}

void setDefaultPrinter(std::string_view name) {
    auto& printers = overrides().printers;
    if (printers.empty()) return setSystemDefaultPrinter(name);
    const auto found = std::ranges::find(printers, name, &Printer::DeviceName);
    if (found == printers.end()) throw RunTimeError(Failure::PrinterError);
    std::rotate(printers.begin(), found, found + 1);
}

std::function<Printer()> printerQuestion(std::string name) {
    if (const auto& answer = overrides().answer)
        return [answer, name = std::move(name)] { return answer(name); };
    return [name = std::move(name)] { return askSystem(name); };
}

bool isAskingSlow() { return overrides().printers.empty() && !overrides().noPrinter; }

void overridePrinters(std::vector<Printer> printers) { overrides().printers = std::move(printers); }

void overridePrinterQuestion(PrinterAnswer answer) { overrides().answer = std::move(answer); }

void overrideNoPrinter(bool none) { overrides().noPrinter = none; }

} // namespace toolkit
