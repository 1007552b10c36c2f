#include "toolkit/print_dialog.h"

#include <algorithm>
#include <utility>

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtCore/QUuid>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include "toolkit/qt_answers.h"
#include "toolkit/qt_delivery.h"
#include "toolkit/qt_text.h"
#include "toolkit/qt_window.h"

namespace toolkit {
namespace {

constexpr double millimetresInAnInch = 25.4;

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
    for (const char* name : {"lOutput", "filename", "fileBrowser"})
        if (auto* part = dialog.findChild<QWidget*>(QString::fromLatin1(name))) part->hide();
}

void setUp(QPrinter& target, const Printer& present) {
    if (present.DeviceName == printToPdfName)
        target.setOutputFormat(QPrinter::PdfFormat);
    else
        target.setPrinterName(qString(present.DeviceName));
    const bool isLandscape = present.Orientation == static_cast<int>(Orientation::Landscape);
    const auto paper = std::ranges::find(present.Papers, present.PaperSize, &Paper::code);
    if (paper != present.Papers.end()) {
        const QSizeF size(static_cast<double>(paper->width), static_cast<double>(paper->height));
        target.setPageSize(QPageSize(size, QPageSize::Inch, QString(), QPageSize::FuzzyMatch));
    }
    target.setPageOrientation(isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
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

Printer chosenPrinter(const QPrinter& target) {
    const bool isFile = target.outputFormat() == QPrinter::PdfFormat;
    Printer printer =
        printerNamed(isFile ? std::string(printToPdfName) : ansiText(target.printerName()));
    const QPageLayout layout = target.pageLayout();
    const auto orientation = layout.orientation() == QPageLayout::Landscape ? Orientation::Landscape
                                                                            : Orientation::Portrait;
    layOutPage(printer, paperLike(printer, layout.pageSize().size(QPageSize::Millimeter)),
               orientation);
    printer.Copies = isFile ? 1 : target.copyCount();
    if (!isFile && target.colorMode() == QPrinter::GrayScale) {
        constexpr int monochromeDepth = 8;
        printer.ColorMode = 1;
        printer.BitsPerPixel = monochromeDepth;
    }
    return printer;
}

} // namespace

std::optional<Printer> setUpOnScreen(const Printer& present) {
    updateWindow();
    if (answerInPlace()) return answerInPlace()(present);
    QPrinter target(QPrinter::HighResolution);
    setUp(target, present);
    QPrintDialog dialog(&target, boxParent());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    dialog.setWindowTitle(QStringLiteral("Printer Setup"));
    nameButtons(dialog);
    // The dialog makes these parts when it comes up.
    QTimer::singleShot(0, &dialog, [&dialog] { nameFilePrinter(dialog); });
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    rethrowKept();
    if (!isAccepted) return std::nullopt;
    return chosenPrinter(target);
}

void answerPrinterSetupWith(PrinterChoice answer) { answerInPlace() = std::move(answer); }

} // namespace toolkit
