// The card as an image file or on the clipboard: each handler checks its flag, runs the pipeline
// and clears the flag again.
#pragma once

namespace zev {

struct Zevlin;

void mPrintToDisk_Click(Zevlin& form); ///< BMP
void mPrintToDiskGIF_Click(Zevlin& form);
void mPrintToDiskJPG_Click(Zevlin& form);
void mPrintToDiskPNG_Click(Zevlin& form);
void mPrintToDiskPartner_Click(Zevlin& form); ///< BMP
void mPrintToDiskPartnerGIF_Click(Zevlin& form);
void mPrintToDiskPartnerJPG_Click(Zevlin& form);
void mPrintToDiskPartnerPNG_Click(Zevlin& form);
void mPrintToClipboard_Click(Zevlin& form);

} // namespace zev
