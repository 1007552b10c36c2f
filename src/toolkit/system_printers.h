// The printers of the system's print service. Internal to the toolkit's sources.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/error.h"
#include "toolkit/pdf_page.h"
#include "toolkit/printer.h"

namespace toolkit {

/// The default printer first; empty where there is no print service.
[[nodiscard]] std::vector<std::string> systemPrinterNames();

/// The facts of a printer of the print service; a hdc of 0 where it isn't there.
[[nodiscard]] Printer systemPrinter(std::string_view name);

/// Empty where the player has no default printer.
[[nodiscard]] std::string systemDefaultPrinterName();

/// Makes it the player's default; failure 482.
void setSystemDefaultPrinter(std::string_view name);

/// 482 with the reason in brackets behind its description; an empty one adds nothing.
[[nodiscard]] RunTimeError printerFailure(std::string_view reason);

/// Hands a page to a printer. Open it, send the page, close it: each fails with 482, with the
/// system's own words where it has any.
class SystemPrintJob {
  public:
    SystemPrintJob(const Printer& printer, std::string_view title);
    /// A job that was never closed is taken back.
    ~SystemPrintJob();
    SystemPrintJob(const SystemPrintJob&) = delete;
    SystemPrintJob& operator=(const SystemPrintJob&) = delete;

    void send(const PdfPage& page, const Bitmap& picture);
    void close();

  private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace toolkit
