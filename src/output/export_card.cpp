#include "output/export_card.h"

#include "form/trace.h"
#include "form/zevlin.h"
#include "output/print_card.h"
#include "output/print_partner.h"

namespace zev {
namespace {

using Pipeline = void (*)(Zevlin&);

void runWith(Zevlin& form, toolkit::MenuItem& flag, Pipeline pipeline) {
    if (form.Printing) return;
    flag.Checked = true;
    pipeline(form);
    flag.Checked = false;
}

} // namespace

void mPrintToDisk_Click(Zevlin& form) {
    procedure(form, "mPrintToDisk_Click", [&] { runWith(form, form.mPrintToDisk, MPrint_Click); });
}

void mPrintToDiskGIF_Click(Zevlin& form) { runWith(form, form.mPrintToDiskGIF, MPrint_Click); }

void mPrintToDiskJPG_Click(Zevlin& form) { runWith(form, form.mPrintToDiskJPG, MPrint_Click); }

void mPrintToDiskPNG_Click(Zevlin& form) { runWith(form, form.mPrintToDiskPNG, MPrint_Click); }

void mPrintToDiskPartner_Click(Zevlin& form) {
    runWith(form, form.mPrintToDisk, MPrintPartner_Click);
}

void mPrintToDiskPartnerGIF_Click(Zevlin& form) {
    runWith(form, form.mPrintToDiskGIF, MPrintPartner_Click);
}

void mPrintToDiskPartnerJPG_Click(Zevlin& form) {
    runWith(form, form.mPrintToDiskJPG, MPrintPartner_Click);
}

void mPrintToDiskPartnerPNG_Click(Zevlin& form) {
    runWith(form, form.mPrintToDiskPNG, MPrintPartner_Click);
}

void mPrintToClipboard_Click(Zevlin& form) {
    procedure(form, "mPrintToClipboard_Click",
              [&] { runWith(form, form.mPrintToClipboard, MPrint_Click); });
}

} // namespace zev
