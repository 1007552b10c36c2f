#include "toolkit/print/print_dialog.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <utility>

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtCore/QUuid>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrintEngine>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include "toolkit/base/ansi.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/print/printers.h"
#include "toolkit/window/input/qt_delivery.h"
#include "toolkit/window/qt_box_parent.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {
namespace {

constexpr double millimetresInAnInch = 25.4;

/// Where Qt keeps what its dialog offers of the print service's own options.
constexpr auto serviceOptions = QPrintEngine::PrintEnginePropertyKey(0xFE00);
constexpr int monochrome = 1;

/// Where Windows' dialog sends the page when its "Print to file" is checked. Our printer of that
/// kind takes it then: what a printer's driver writes to a file, hardly anybody could open.
constexpr QLatin1StringView windowsFilePort("FILE:");

#ifdef Q_OS_WIN
constexpr bool isWindows = true;
#else
constexpr bool isWindows = false;
#endif

PrinterChoice& answerInPlace() {
    static PrinterChoice answer;
    return answer;
}

/// What a button called Print does here is to choose.
void nameButtons(QPrintDialog& dialog) {
    for (auto* box : dialog.findChildren<QDialogButtonBox*>())
        if (QPushButton* button = box->button(QDialogButtonBox::Ok))
            button->setText(QStringLiteral("OK"));
    for (auto* box : dialog.findChildren<QDialogButtonBox*>())
        for (QAbstractButton* button : box->buttons())
            if (box->buttonRole(button) == QDialogButtonBox::AcceptRole)
                button->setText(QStringLiteral("OK"));
}

void hideParts(const QPrintDialog& dialog, std::initializer_list<const char*> names) {
    for (const char* name : names)
        if (auto* part = dialog.findChild<QWidget*>(QString::fromLatin1(name))) part->hide();
}

/// A card is one page.
void hidePageRange(const QPrintDialog& dialog) { hideParts(dialog, {"gbPrintRange", "reverse"}); }

/// The dialog's own way of printing to a file is our printer of that kind, which asks for the file
/// when a page is printed.
void nameFilePrinter(QPrintDialog& dialog) {
    for (auto* list : dialog.findChildren<QComboBox*>()) {
        const int row = list->findText(QStringLiteral("Print to File (PDF)"));
        if (row >= 0) list->setItemText(row, qString(printToPdfName));
    }
    // A name that is taken would be asked about.
    if (auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename")))
        file->setText(QDir::temp().filePath(QUuid::createUuid().toString(QUuid::WithoutBraces)));
    hideParts(dialog, {"lOutput", "filename", "fileBrowser"});
}

/// What the driver's own pages were told stays in the device, which Windows' dialog hands back.
std::shared_ptr<QPrinter> deviceOf(const Printer& present) {
    if (present.SystemDevice) return std::static_pointer_cast<QPrinter>(present.SystemDevice);
    return std::make_shared<QPrinter>(QPrinter::HighResolution);
}

/// Windows' dialog doesn't come up for a printer that isn't the system's: it begins with the
/// default one, which the target is already, and with "Print to file" checked.
void beginWithFile(QPrinter& target) {
    if (isWindows)
        target.setOutputFileName(windowsFilePort);
    else
        target.setOutputFormat(QPrinter::PdfFormat);
}

bool choosesFile(const QPrinter& target) {
    return target.outputFormat() == QPrinter::PdfFormat ||
           target.outputFileName() == windowsFilePort;
}

void setUp(QPrinter& target, const Printer& present) {
    if (present.DeviceName == printToPdfName)
        beginWithFile(target);
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

/// The tray that the service calls so.
const PaperTray* trayCalled(const Printer& printer, std::string_view name) {
    const auto tray = std::ranges::find_if(printer.Trays, [&](const PaperTray& each) {
        return lowerCase(each.keyword) == lowerCase(name) || each.name == name;
    });
    return tray == printer.Trays.end() ? nullptr : &*tray;
}

/// Copies, colour, tray, and what else the service's own options offer.
void takeJobChoices(Printer& printer, const QPrinter& target) {
    printer.Copies = target.copyCount();
    if (target.colorMode() == QPrinter::GrayScale) {
        constexpr int monochromeDepth = 8;
        printer.ColorMode = monochrome;
        printer.BitsPerPixel = monochromeDepth;
    }
    const QStringList options = target.printEngine()->property(serviceOptions).toStringList();
    for (qsizetype i = 0; i + 1 < options.size(); i += 2) {
        const std::string keyword = options[i].toStdString();
        const std::string value = options[i + 1].toStdString();
        const PaperTray* tray = keyword == "InputSlot" ? trayCalled(printer, value) : nullptr;
        if (tray != nullptr)
            printer.PaperBin = tray->code;
        else if (!value.empty())
            printer.JobOptions.push_back({keyword, value});
    }
}

Printer chosenPrinter(const std::shared_ptr<QPrinter>& device) {
    const QPrinter& target = *device;
    const bool isFile = choosesFile(target);
    Printer printer =
        printerNamed(isFile ? std::string(printToPdfName) : ansiText(target.printerName()));
    const QPageLayout layout = target.pageLayout();
    const auto orientation = layout.orientation() == QPageLayout::Landscape ? Orientation::Landscape
                                                                            : Orientation::Portrait;
    layOutPage(printer, paperLike(printer, layout.pageSize().size(QPageSize::Millimeter)),
               orientation);
    if (isFile) return printer;
    takeJobChoices(printer, target);
    if (isWindows) printer.SystemDevice = device;
    return printer;
}

} // namespace

std::optional<Printer> setUpOnScreen(const Printer& present) {
    updateWindow();
    if (answerInPlace()) return answerInPlace()(present);
    const auto target = deviceOf(present);
    setUp(*target, present);
    QPrintDialog dialog(target.get(), boxParent());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    dialog.setWindowTitle(QStringLiteral("Printer Setup"));
    nameButtons(dialog);
    // The dialog makes these parts when it comes up.
    QTimer::singleShot(0, &dialog, [&dialog] {
        nameFilePrinter(dialog);
        hidePageRange(dialog);
    });
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    rethrowKept();
    if (!isAccepted) return std::nullopt;
    return chosenPrinter(target);
}

void answerPrinterSetupWith(PrinterChoice answer) { answerInPlace() = std::move(answer); }

} // namespace toolkit
