#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <QtGui/QGuiApplication>

#include "card_tool/description.h"
#include "card_tool/failure.h"
#include "card_tool/layout_text.h"
#include "card_tool/packed_picture.h"
#include "card_tool/picture.h"
#include "card_tool/preview.h"
#include "card_tool/sample_card.h"
#include "card_tool/spoken_names.h"
#include "card_tool/typesetter.h"
#include "toolkit/base/error.h"
#include "toolkit/base/write_file.h"
#include "toolkit/picture/gif_file.h"
#include "view/artwork_file.h"

namespace {

using std::filesystem::path;

constexpr const char* usage = "card_tool build FONTS DESCRIPTION OUTPUT [SAMPLE...]\n"
                              "card_tool preview FONTS DESCRIPTION PNG SCALE TWIPS [SAMPLE|all]\n";
constexpr std::array installedTwips{12, 13, 15};

/// Writes without waiting for the disk: after a crash the build runs again.
void write(const path& file, std::string_view bytes) {
    try {
        toolkit::writeTemporaryFile(file, bytes);
    } catch (const toolkit::RunTimeError& failure) {
        throw card_tool::Failure("can't write " + file.string() + ": " + failure.description());
    }
}

void writeLayouts(const card_tool::Sheet& sheet, const card_tool::Typefaces& faces,
                  const path& folder) {
    for (const int twips : installedTwips)
        write(folder / ("Definitions.Ini." + std::to_string(twips)),
              card_tool::layoutText(sheet, faces, twips));
}

void writePictures(const card_tool::Sheet& sheet, const path& folder) {
    const toolkit::IndexedPicture full = card_tool::print(sheet);
    write(folder / "card.gif", toolkit::gifFile(full));
    write(folder / "full.bin", card_tool::packed(full));
    write(folder / "half.bin", card_tool::packed(card_tool::halfOf(full)));
}

void writeArtwork(const card_tool::Sheet& sheet, const path& folder) {
    write(folder / "artwork.txt", zev::writeArtwork(sheet.artwork));
}

/// Writes a list in which field numbers can be looked up: kind, number and name, one field a line.
void writeFieldNames(const card_tool::Sheet& sheet, const path& folder) {
    std::string lines;
    int number = 0;
    for (const card_tool::MarkPlace& mark : sheet.marks)
        lines += "mark " + std::to_string(++number) + " " + mark.id + "\n";
    number = 0;
    for (const card_tool::TextPlace& text : sheet.texts)
        lines += "text " + std::to_string(++number) + " " + text.id + "\n";
    write(folder / "fields.txt", lines);
}

void build(const std::vector<std::string>& arguments) {
    const card_tool::Typefaces faces = card_tool::loadTypefaces(arguments.at(1));
    const card_tool::Sheet sheet =
        card_tool::typeset(card_tool::readDescription(arguments.at(2)), faces);
    const path folder = arguments.at(3);
    std::filesystem::create_directories(folder);
    writeLayouts(sheet, faces, folder);
    writeArtwork(sheet, folder);
    writeFieldNames(sheet, folder);
    write(folder / "names.txt",
          card_tool::spokenNames(path(arguments[2]).replace_filename("names.txt"), sheet));
    for (std::size_t at = 4; at < arguments.size(); ++at) {
        const card_tool::SampleCard sample = card_tool::readSampleCard(arguments[at]);
        write(folder / (sample.name + ".zev"), card_tool::cardText(sample, sheet));
    }
    // Last, as it takes longest: what is wrong with the rest is told at once.
    writePictures(sheet, folder);
}

void previewTo(const std::vector<std::string>& arguments) {
    const card_tool::Typefaces faces = card_tool::loadTypefaces(arguments.at(1));
    const card_tool::Sheet sheet =
        card_tool::typeset(card_tool::readDescription(arguments.at(2)), faces);
    const std::string wanted = arguments.size() > 6 ? arguments[6] : std::string();
    const card_tool::SampleCard sample = wanted.empty()    ? card_tool::SampleCard{}
                                         : wanted == "all" ? card_tool::everythingFilled(sheet)
                                                           : card_tool::readSampleCard(wanted);
    const double scale = std::stod(arguments.at(4));
    const QImage image = card_tool::preview(card_tool::print(sheet), sheet, sample, faces, scale,
                                            std::stoi(arguments.at(5)));
    if (!image.save(QString::fromStdString(arguments.at(3))))
        throw card_tool::Failure("can't write " + arguments.at(3));
}

int run(const std::vector<std::string>& arguments) {
    if (arguments.size() >= 4 && arguments[0] == "build")
        build(arguments);
    else if (arguments.size() >= 6 && arguments[0] == "preview")
        previewTo(arguments);
    else {
        std::fputs(usage, stderr);
        return 2;
    }
    return 0;
}

} // namespace

int main(int count, char** values) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, values);
    try {
        return run({values + 1, values + count});
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "card_tool: %s\n", failure.what());
        return 1;
    }
}
