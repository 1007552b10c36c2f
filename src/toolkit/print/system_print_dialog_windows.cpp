// The dialog that Windows has for choosing a printer.
#include <algorithm>
#include <memory>
#include <string>

#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>

#include "toolkit/base/qt_text.h"
#include "toolkit/print/printers.h"
#include "toolkit/print/system_print_dialog.h"
#include "toolkit/window/qt_box_parent.h"

namespace toolkit {
namespace {

constexpr double millimetresInAnInch = 25.4;

/// Where the dialog sends the page when its "Print to file" is checked. Our printer of that
/// kind takes it then: what a printer's driver writes to a file, hardly anybody could open.
constexpr QLatin1StringView filePort("FILE:");

/// What the driver's own pages were told stays in the device, which the dialog hands back.
std::shared_ptr<QPrinter> deviceOf(const Printer& present) {
    if (present.SystemDevice) return std::static_pointer_cast<QPrinter>(present.SystemDevice);
    return std::make_shared<QPrinter>(QPrinter::HighResolution);
}

/// The dialog doesn't come up for a printer that isn't the system's: it begins with the default
/// one, which the target is already, and with "Print to file" checked.
void setUp(QPrinter& target, const Printer& present) {
    if (present.DeviceName == printToPdfName)
        target.setOutputFileName(filePort);
    else if (!present.SystemDevice)
        target.setPrinterName(qString(present.DeviceName));
    const bool isLandscape = present.Orientation == static_cast<int>(Orientation::Landscape);
    const auto paper = std::ranges::find(present.Papers, present.PaperSize, &Paper::code);
    if (paper != present.Papers.end()) {
        const QSizeF size(static_cast<double>(paper->width), static_cast<double>(paper->height));
        target.setPageSize(QPageSize(size, QPageSize::Inch, QString(), QPageSize::FuzzyMatch));
    }
    target.setPageOrientation(isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    target.setCopyCount(present.Copies);
    if (present.ColorMode == monochrome) target.setColorMode(QPrinter::GrayScale);
}

/// The printer's paper that is nearest to the chosen size.
int paperLike(const Printer& printer, const QSizeF& millimetres) {
    int code = printer.PaperSize;
    double nearest = millimetresInAnInch;
    for (const Paper& paper : printer.Papers) {
        const double width = static_cast<double>(paper.width) * millimetresInAnInch;
        const double height = static_cast<double>(paper.height) * millimetresInAnInch;
        const double distance =
            std::max(qAbs(width - millimetres.width()), qAbs(height - millimetres.height()));
        if (distance < nearest) {
            nearest = distance;
            code = paper.code;
        }
    }
    return code;
}

Printer chosenPrinter(const std::shared_ptr<QPrinter>& device) {
    const QPrinter& target = *device;
    const bool isFile = target.outputFileName() == filePort;
    Printer printer =
        printerNamed(isFile ? std::string(printToPdfName) : ansiText(target.printerName()));
    const QPageLayout layout = target.pageLayout();
    const auto orientation = layout.orientation() == QPageLayout::Landscape ? Orientation::Landscape
                                                                            : Orientation::Portrait;
    layOutPage(printer, paperLike(printer, layout.pageSize().size(QPageSize::Millimeter)),
               orientation);
    if (isFile) return printer;
    printer.Copies = target.copyCount();
    if (target.colorMode() == QPrinter::GrayScale) printer.ColorMode = monochrome;
    printer.SystemDevice = device;
    return printer;
}

} // namespace

std::optional<Printer> askForPrinter(const Printer& present) {
    const auto target = deviceOf(present);
    setUp(*target, present);
    QPrintDialog dialog(target.get(), boxParent());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return chosenPrinter(target);
}

} // namespace toolkit
