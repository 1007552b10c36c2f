#include <windows.h>
// After windows.h, on whose types it builds.
#include <winspool.h>

#include "toolkit/error.h"
#include "toolkit/qt_text.h"
#include "toolkit/system_printers.h"

namespace toolkit {

void setSystemDefaultPrinter(std::string_view name) {
    std::wstring wide = qString(name).toStdWString();
    if (SetDefaultPrinterW(wide.data()) == 0) throw RunTimeError(Failure::PrinterError);
    // The other programs look at it again.
    SendNotifyMessageW(HWND_BROADCAST, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>(L"windows"));
}

} // namespace toolkit
