#include "card_tool/card_file.h"
#include "card_tool/description.h"
#include "card_tool/failure.h"
#include "card_tool/layout_file.h"
#include "card_tool/output_file.h"
#include "card_tool/picture.h"
#include "card_tool/picture_file.h"
#include "card_tool/preview.h"
#include "card_tool/typesetter.h"

#include <QtGui/QGuiApplication>

#include <array>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using std::filesystem::path;

constexpr const char* usage = "card_tool build FONTS DESCRIPTION OUTPUT [SAMPLE...]\n"
                              "card_tool preview FONTS DESCRIPTION PNG SCALE TWIPS [SAMPLE|all]\n";
constexpr std::array installedTwips{12, 13, 15};

void writeLayouts(const card::Sheet& sheet, const card::Typefaces& faces, const path& folder) {
    for (const int twips : installedTwips)
        card::writeBytes(folder / ("Definitions.Ini." + std::to_string(twips)),
                         card::layoutText(sheet, faces, twips));
}

void writePictures(const card::Sheet& sheet, const path& folder) {
    const card::IndexedPicture full = card::print(sheet);
    card::writeGif(full, folder / "card.gif");
    card::writePacked(full, folder / "full.bin");
    card::writePacked(card::halved(full), folder / "half.bin");
}

/// What a build started from the shell can look fields up in: number, kind and name, one a line.
void writeFieldNames(const card::Sheet& sheet, const path& folder) {
    std::string lines;
    int number = 0;
    for (const card::MarkPlace& mark : sheet.marks)
        lines += "mark " + std::to_string(++number) + " " + mark.id + "\n";
    number = 0;
    for (const card::TextPlace& text : sheet.texts)
        lines += "text " + std::to_string(++number) + " " + text.id + "\n";
    card::writeBytes(folder / "fields.txt", lines);
}

void build(const std::vector<std::string>& arguments) {
    const card::Typefaces faces = card::loadTypefaces(arguments.at(1));
    const card::Sheet sheet = card::typeset(card::readDescription(arguments.at(2)), faces);
    const path folder = arguments.at(3);
    std::filesystem::create_directories(folder);
    writeLayouts(sheet, faces, folder);
    writePictures(sheet, folder);
    writeFieldNames(sheet, folder);
    for (std::size_t at = 4; at < arguments.size(); ++at) {
        const card::SampleCard sample = card::readSampleCard(arguments[at]);
        card::writeBytes(folder / (sample.name + ".zev"), card::cardText(sample, sheet));
    }
}

void previewTo(const std::vector<std::string>& arguments) {
    const card::Typefaces faces = card::loadTypefaces(arguments.at(1));
    const card::Sheet sheet = card::typeset(card::readDescription(arguments.at(2)), faces);
    const std::string wanted = arguments.size() > 6 ? arguments[6] : std::string();
    const card::SampleCard sample = wanted.empty()    ? card::SampleCard{}
                                    : wanted == "all" ? card::everythingFilled(sheet)
                                                      : card::readSampleCard(wanted);
    const double scale = std::stod(arguments.at(4));
    const QImage image =
        card::preview(card::print(sheet), sheet, sample, faces, scale, std::stoi(arguments.at(5)));
    if (!image.save(QString::fromStdString(arguments.at(3))))
        throw card::Failure("can't write " + arguments.at(3));
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
