// The form for choosing a printer, on a system that has no dialog of its own for that.
#include <algorithm>

#include "toolkit/print/printers.h"
#include "toolkit/print/system_print_dialog.h"
#include "toolkit/window/modal_form.h"

namespace toolkit {
namespace {

constexpr int mostCopies = 99;
constexpr const char* leftToPrinter = "Automatic";

bool isFile(const Printer& printer) { return printer.DeviceName == printToPdfName; }

/// A row for each item; the one with this code is chosen, or the first.
template <typename Item>
void offer(ComboBox& list, const std::vector<Item>& items, int code) {
    list.List.clear();
    list.ListIndex = 0;
    for (const Item& item : items) {
        if (item.code == code) list.ListIndex = static_cast<int>(list.List.size());
        list.List.push_back(item.name);
    }
}

/// The same below a row that leaves the choice to the printer.
void offerOptions(ComboBox& list, std::vector<PrinterOption> options, int code) {
    list.Enabled = !options.empty();
    options.insert(options.begin(), {0, leftToPrinter, {}});
    offer(list, options, code);
}

/// The code of the row that is chosen; 0 for the one that leaves the choice to the printer.
int chosenCode(const ComboBox& list, const std::vector<PrinterOption>& options) {
    return list.ListIndex < 1 ? 0 : options.at(static_cast<std::size_t>(list.ListIndex) - 1).code;
}

struct PrintForm {
    explicit PrintForm(const Printer& present);
    PrintForm(const PrintForm&) = delete;
    PrintForm& operator=(const PrintForm&) = delete;

    void showPrinter();
    void choosePrinter();
    [[nodiscard]] Orientation orientation() const;
    [[nodiscard]] Printer chosen() const;

    Printer printer; ///< the one in the list, as the system tells of it
    bool isAccepted = false;
    ComboBox printers{.Label = "&Printer", .List = printerNames()};
    ComboBox papers{.Label = "Paper &Size"};
    ComboBox trays{.Label = "Paper Tr&ay"};
    ComboBox types{.Label = "Paper Typ&e"};
    ComboBox qualities{.Label = "&Quality"};
    ComboBox inks{.Label = "Pri&nt in", .List = {"Color", "Grayscale"}, .ListIndex = 0};
    NumberBox copies{.Label = "Cop&ies", .Min = 1, .Max = mostCopies, .Value = 1};
    OptionButton landscape{.Caption = "&Landscape"};
    OptionButton portrait{.Caption = "Port&rait", .Value = true};
    CommandButton ok;
    CommandButton cancel;
    ModalForm form{.Caption = "Printer Setup",
                   .combos = {&printers, &papers, &trays, &types, &qualities, &inks},
                   .numbers = {&copies},
                   .options = {&landscape, &portrait},
                   .buttons = {&ok, &cancel}};
};

/// The printer as it was set up before, by what the system tells of it now; another one where it is
/// gone.
Printer renewed(const Printer& present) {
    Printer printer = printerNamed(present.DeviceName);
    if (printer.hdc == 0) return defaultPrinter();
    layOutPage(printer, present.PaperSize, static_cast<Orientation>(present.Orientation));
    printer.PaperBin = present.PaperBin;
    printer.PaperType = present.PaperType;
    printer.Quality = present.Quality;
    return printer;
}

PrintForm::PrintForm(const Printer& present) : printer(renewed(present)) {
    const auto row = std::ranges::find(printers.List, printer.DeviceName);
    printers.ListIndex = static_cast<int>(row - printers.List.begin());
    printers.Click = [this] { choosePrinter(); };
    landscape.Value = printer.Orientation == static_cast<int>(Orientation::Landscape);
    portrait.Value = !landscape.Value;
    copies.Value = present.Copies;
    if (present.ColorMode == monochrome) inks.ListIndex = 1;
    ok.Caption = "&OK";
    ok.Default = true;
    ok.Click = [this] { isAccepted = form.Unloaded = true; };
    cancel.Caption = "&Cancel";
    cancel.Cancel = true;
    cancel.Click = [this] { form.Unloaded = true; };
    showPrinter();
}

/// What is the same for all printers stays as it is.
void PrintForm::showPrinter() {
    offer(papers, printer.Papers, printer.PaperSize);
    offerOptions(trays, printer.Trays, printer.PaperBin);
    offerOptions(types, printer.PaperTypes, printer.PaperType);
    offerOptions(qualities, printer.Qualities, printer.Quality);
    const bool isColored = printer.ColorMode != monochrome;
    if (!isColored) inks.ListIndex = 1;
    inks.Enabled = isColored && !isFile(printer);
    copies.Enabled = !isFile(printer);
    landscape.Enabled = portrait.Enabled = printer.CanTurn;
}

void PrintForm::choosePrinter() {
    inks.ListIndex = 0;
    printer = printerNamed(printers.List.at(static_cast<std::size_t>(printers.ListIndex)));
    showPrinter();
}

Orientation PrintForm::orientation() const {
    if (!printer.CanTurn) return static_cast<Orientation>(printer.Orientation);
    return landscape.Value ? Orientation::Landscape : Orientation::Portrait;
}

Printer PrintForm::chosen() const {
    Printer result = printer;
    const auto row = static_cast<std::size_t>(papers.ListIndex);
    const int paper = row < printer.Papers.size() ? printer.Papers[row].code : printer.PaperSize;
    layOutPage(result, paper, orientation());
    if (isFile(printer)) return result;
    result.PaperBin = chosenCode(trays, printer.Trays);
    result.PaperType = chosenCode(types, printer.PaperTypes);
    result.Quality = chosenCode(qualities, printer.Qualities);
    result.Copies = copies.Value;
    if (inks.ListIndex == 1) result.ColorMode = monochrome;
    return result;
}

} // namespace

std::optional<Printer> askForPrinter(const Printer& present) {
    PrintForm shown(present);
    showModal(shown.form);
    if (!shown.isAccepted) return std::nullopt;
    return shown.chosen();
}

} // namespace toolkit
