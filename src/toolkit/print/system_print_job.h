// Pages on their way to a printer of the system. Internal to the toolkit's sources.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "toolkit/print/page.h"
#include "toolkit/print/printer.h"

namespace toolkit {

/// Hands pages to a printer. Open it, send the pages, close it: each fails with 482, with the
/// system's own words where it has any.
class SystemPrintJob {
  public:
    SystemPrintJob(const Printer& printer, std::string_view title);
    /// A job that was never closed is taken back.
    ~SystemPrintJob();
    SystemPrintJob(const SystemPrintJob&) = delete;
    SystemPrintJob& operator=(const SystemPrintJob&) = delete;

    void send(std::span<const Page> pages);
    void close();

  private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace toolkit
