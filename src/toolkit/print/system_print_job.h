// A page on its way to a printer of the system. Internal to the toolkit's sources.
#pragma once

#include <memory>
#include <string_view>

#include "toolkit/picture/bitmap.h"
#include "toolkit/print/pdf_page.h"
#include "toolkit/print/printer.h"

namespace toolkit {

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
