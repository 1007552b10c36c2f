#include "output/save_image.h"

#include <filesystem>
#include <string>

#include "form/file_note.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "output/gdi_plus.h"
#include "output/image_name.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/picture/image_codecs.h"
#include "toolkit/window/dialog.h"

namespace zev {
namespace {

constexpr int jpegQuality = 80;
constexpr std::string_view bmpExtension = ".bmp";

std::string_view chosenExtension(const Zevlin& form) {
    if (form.mPrintToDiskGIF.Checked) return ".gif";
    if (form.mPrintToDiskPNG.Checked) return ".png";
    if (form.mPrintToDiskJPG.Checked) return ".jpg";
    return bmpExtension;
}

std::string askForName(const Zevlin& form, std::string_view extension) {
    return toolkit::ask({.prompt = "Enter name to use for image file",
                         .title = "Print card image to disk",
                         .preset = offeredImageName(form.CardName, extension)});
}

/// False after a failure, which is told.
bool saveCompressed(Zevlin& form, const toolkit::Bitmap& picture,
                    const std::filesystem::path& file) {
    const cGdiPlus codecs([&form](std::string_view text, int status) {
        Traceit(form, "cGdiPlus: " + toolkit::numberText(status) + ", " + std::string(text));
    });
    if (codecs.PictureBoxToFile(picture, file, jpegQuality)) return true;
    toolkit::tell("Could not save card image. Your computer may be missing the required "
                  "Microsoft component GDIPLUS.DLL",
                  toolkit::Icon::Exclamation);
    return false;
}

void saveImage(Zevlin& form, const toolkit::PictureBox& picture) {
    const std::string_view extension = chosenExtension(form);
    const std::string answer = askForName(form, extension);
    const auto name = imageFileName(answer, extension);
    if (answer.empty() || !name) return;
    const std::filesystem::path file = form.DataFolder / toolkit::pathFromText(*name);
    bool isSaved = true;
    if (extension == bmpExtension)
        toolkit::savePicture(*picture.Picture, file);
    else
        isSaved = saveCompressed(form, *picture.Picture, file);
    if (isSaved) rememberWrittenFile(form, file);
}

} // namespace

void writePicture(const toolkit::Bitmap& picture, const std::filesystem::path& file) {
    const auto encoder = cGdiPlus().encoderOf(file);
    if (!encoder) throw toolkit::RunTimeError(toolkit::Failure::InvalidProcedureCall);
    toolkit::saveImage(picture, file, *encoder, jpegQuality);
}

void SaveImageToDisk(Zevlin& form, const toolkit::PictureBox& picture) {
    procedure(form, "SaveImageToDisk", [&] { saveImage(form, picture); });
}

} // namespace zev
