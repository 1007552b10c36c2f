// The one pipeline of all output: print, export, copy.
#pragma once

namespace zev {

struct Zevlin;

/// Makes the card anew at full size while the screen shows a frozen copy, hands it to the printer,
/// the image file or the clipboard (the checked menu items tell which), and puts everything back,
/// also after a failure. While it runs, every output command returns at once.
void MPrint_Click(Zevlin& form);

} // namespace zev
