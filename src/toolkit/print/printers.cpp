#include "toolkit/print/printers.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QtCore/QByteArray>
#include <QtCore/QLocale>

#include "toolkit/base/error.h"
#include "toolkit/print/system_printers.h"

namespace toolkit {
namespace {

struct PrinterOverrides {
    std::vector<Printer> printers;
    bool noPrinter = false;
    std::string place;
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

/// "en_US.UTF-8": the player's language, the country and more. On Linux paper has a variable of its
/// own.
std::string playersPlace() {
    if (!overrides().place.empty()) return overrides().place;
#ifdef _WIN32
    return QLocale::system().name().toStdString();
#else
    for (const char* name : {"LC_ALL", "LC_PAPER", "LANG"})
        if (const QByteArray place = qgetenv(name); !place.isEmpty()) return place.toStdString();
    return {};
#endif
}

/// North America writes on letter paper, the rest of the world on A4.
bool isLetterUsual() {
    constexpr auto countries = std::to_array<std::string_view>(
        {"US", "CA", "MX", "PR", "BZ", "CR", "GT", "NI", "PA", "SV"});
    const std::string place = playersPlace();
    const std::size_t mark = place.find('_');
    if (mark == std::string::npos) return false;
    const std::size_t end = place.find_first_of(".@", mark);
    const std::string country = place.substr(mark + 1, end - mark - 1);
    return std::ranges::find(countries, country) != countries.end();
}

Printer printToPdf() {
    constexpr int dotsPerInch = 600;
    constexpr int letter = 1;
    constexpr int a4 = 9;
    Printer printer;
    printer.DeviceName = printToPdfName;
    printer.hdc = 1;
    printer.PixelsPerInchX = printer.PixelsPerInchY = dotsPerInch;
    printer.Papers = {paper(letter, "Letter", 8.5F, 11), paper(5, "Legal", 8.5F, 14),
                      paper(a4, "A4", 8.27F, 11.69F)};
    layOutPage(printer, isLetterUsual() ? letter : a4, Orientation::Portrait);
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
    if (const auto& answer = overrides().answer) return answer(std::string(name));
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

void overridePlace(std::string locale) { overrides().place = std::move(locale); }

void overrideNoPrinter(bool none) { overrides().noPrinter = none; }

} // namespace toolkit
