// The output's share of the form's state: the printer, the jobs' flags, what lies over the card.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "form/options_file.h"
#include "toolkit/model/control.h"
#include "toolkit/print/print_job.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printer_question.h"
#include "toolkit/window/alarm.h"

namespace zev {

/// Ways of printing.
constexpr std::int16_t alternatePrintMethod = 2;
constexpr std::int16_t primaryPrintMethod = 3;

struct OutputState {
    std::int16_t PrintMethod = primaryPrintMethod;
    PrinterFacts Myprinter;          ///< what the program keeps of the chosen printer
    toolkit::Printer CurrentPrinter; ///< the printer object
    toolkit::PrintJob PrinterDC;     ///< the document on the printer
    std::string SavedDefaultPrinter; ///< the system's, before the set-up changed it
    bool PrinterPending = false;     ///< the printer's facts are still to be taken
    toolkit::PrinterQuestion PrinterAsked;
    bool Printing = false;
    bool PrintsPartner = false;   ///< the job at hand is the partner's card
    bool PrintAlertShown = false; ///< the box about a narrow page was shown in this run
    bool StampTellsTime = true;   ///< the time stamp has date and time behind the card's name
    bool HasJobView = false;      ///< zoom and fit are a job's, not the player's
    /// The options file doesn't hold the present state: writing it failed or was put off.
    bool OptionsUnwritten = false;

    toolkit::PictureBox P2;    ///< stands for the card while a job runs
    toolkit::PictureBox PDisk; ///< the image of an export
    toolkit::TextBox PleaseWait;
    std::vector<std::filesystem::path> WrittenFiles; ///< what the note tells, or will tell
    toolkit::Note FileNote;
    toolkit::Alarm FileNoteAlarm;

    toolkit::MenuItem MPrint;
    toolkit::MenuItem MPrintPartner;
    toolkit::MenuItem MPrintBoth;
    toolkit::MenuItem MPrintSetup;
    toolkit::MenuItem mExport;
    toolkit::MenuItem mExportPartner;
    // Each is checked while its job runs and tells what becomes of the card: a file of the format
    // in its name, BMP where it names none, or a picture on the clipboard.
    toolkit::MenuItem mPrintToDisk;
    toolkit::MenuItem mPrintToDiskGIF;
    toolkit::MenuItem mPrintToDiskPNG;
    toolkit::MenuItem mPrintToDiskJPG{.Visible = false};
    toolkit::MenuItem mPrintToClipboard;
    toolkit::MenuItem mPrintToDiskPartner;
    toolkit::MenuItem mPrintToDiskPartnerGIF;
    toolkit::MenuItem mPrintToDiskPartnerPNG;
    toolkit::MenuItem mPrintToDiskPartnerJPG{.Visible = false};
    toolkit::MenuItem MMono;
    toolkit::MenuItem MColor;
    toolkit::MenuItem z21;
    toolkit::MenuItem mPrintAlt;
};

} // namespace zev
