// The printers of the system's print service. Internal to the toolkit's sources.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/printer.h"

namespace toolkit {

/// The default printer first; empty where there is no print service.
[[nodiscard]] std::vector<std::string> systemPrinterNames();

/// The facts of a printer of the print service; a hdc of 0 where it isn't there.
[[nodiscard]] Printer systemPrinter(std::string_view name);

/// Hands a page to a printer. Open it, send the page, close it: each fails with 482 and the print
/// service's own words when the service refuses.
class SystemPrintJob {
  public:
    SystemPrintJob(const Printer& printer, std::string_view title);
    /// A job that was never closed is taken back.
    ~SystemPrintJob();
    SystemPrintJob(const SystemPrintJob&) = delete;
    SystemPrintJob& operator=(const SystemPrintJob&) = delete;

    void send(std::string_view pdf);
    void close();

  private:
    std::string printer_;
    int job_ = 0;
};

} // namespace toolkit
