// What the plain logic costs where a player waits for it: at a key, at a load, at a zoom step.
#include <benchmark/benchmark.h>

#include <memory>
#include <random>

#include "card/card_file.h"
#include "card/write_card.h"
#include "form/options_file.h"
#include "form/write_options.h"
#include "layout/layout_file.h"
#include "layout/skip_comment.h"
#include "layout/write_layout.h"
#include "text/escapes.h"
#include "text/fit.h"
#include "view/halve_picture.h"
#include "view/scale_picture.h"

namespace {

constexpr int markCount = 230;
constexpr int textCount = 120;

/// A measure of the same work as the real one: a table of advances, looked up for each character.
float measured(const toolkit::FontSpec& font, std::string_view text) {
    float sum = 0;
    for (const char character : text)
        sum += 0.4F + static_cast<float>(static_cast<unsigned char>(character) % 16U) / 32;
    return sum * font.Size * (font.Name == "Arial" ? 20.0F : 16.0F);
}

void fitFullField(benchmark::State& state) {
    const std::string text = "2/1 game forcing, inverted minors, ^h raises &&";
    zev::FitRequest request;
    request.regular = {.Name = "Arial", .Size = 11, .Bold = false, .Italic = false};
    request.narrowFontName = "Arial Narrow";
    request.smallSize = 11;
    request.width = 1;
    request.text = text;
    for (auto _ : state) benchmark::DoNotOptimize(zev::fittedFont(request, measured));
}
BENCHMARK(fitFullField);

void blankField(benchmark::State& state) {
    const std::string text = "1^c - 1^d; 1^h && 1^s: 5 cards, ^x and ^h^s";
    for (auto _ : state) {
        const zev::BlankedText blanked = zev::blankEscapes(text);
        benchmark::DoNotOptimize(zev::suitPlaces(blanked.scanBuffer));
    }
}
BENCHMARK(blankField);

zev::CardDocument fullCard() {
    zev::CardDocument document;
    document.cardName = "Joe & Jane";
    document.programVersion = "2.0.0";
    document.partner = {"Jane Doe", "12345"};
    for (int i = 0; i < markCount; ++i) document.marks.push_back(i % 3 == 0);
    document.texts.assign(textCount, {"2/1 game forcing, 5^h \"weak\"", 5});
    return document;
}

void writeCard(benchmark::State& state) {
    const zev::CardDocument document = fullCard();
    for (auto _ : state) benchmark::DoNotOptimize(zev::writeCard(document));
}
BENCHMARK(writeCard)->Unit(benchmark::kMicrosecond);

void readCard(benchmark::State& state) {
    const std::string file = zev::writeCard(fullCard());
    for (auto _ : state) {
        std::string version;
        zev::CardReader reader(file, version, [&version](toolkit::TextInput& input) {
            return zev::skipComments(input, version);
        });
        benchmark::DoNotOptimize(reader.readPartnerName());
        benchmark::DoNotOptimize(reader.readPartnerNumber());
        for (int i = reader.readCount(); i > 0; --i) benchmark::DoNotOptimize(reader.readMark());
        for (int i = reader.readCount(); i > 0; --i) benchmark::DoNotOptimize(reader.readText());
    }
}
BENCHMARK(readCard)->Unit(benchmark::kMicrosecond);

std::string fullLayout() {
    zev::TabTable tabs;
    tabs.growTo(zev::firstMarkItem + markCount);
    for (int i = 1; i < textCount; ++i) tabs.set(i, static_cast<std::int16_t>(i + 1));
    zev::LayoutDocument document;
    document.programVersion = "2.0.0";
    document.screenWidth = 19200;
    document.marks.assign(markCount, {.number = 1, .left = 120, .top = 230, .symbol = 252});
    document.texts.assign(textCount, {.number = 1, .left = 40, .top = 1100, .width = 300});
    document.tabTable = &tabs;
    return zev::writeLayout(document);
}

void readLayout(benchmark::State& state) {
    const std::string file = fullLayout();
    for (auto _ : state) {
        std::string version;
        zev::LayoutReader reader(file, [&version](toolkit::TextInput& input) {
            return zev::skipComments(input, version);
        });
        benchmark::DoNotOptimize(reader.readEnvironment());
        reader.skipFontLine();
        reader.skipFontLine();
        benchmark::DoNotOptimize(reader.readOffsets());
        for (int i = reader.readCount(); i > 0; --i)
            benchmark::DoNotOptimize(reader.readMark(true));
        for (int i = reader.readCount(); i > 0; --i) benchmark::DoNotOptimize(reader.readText());
        zev::TabTable tabs;
        reader.readTabTable(tabs);
    }
}
BENCHMARK(readLayout)->Unit(benchmark::kMicrosecond);

void writeOptions(benchmark::State& state) {
    zev::OptionsDocument document;
    document.name = "Joe Smith";
    for (auto _ : state) benchmark::DoNotOptimize(zev::writeOptions(document));
}
BENCHMARK(writeOptions)->Unit(benchmark::kMicrosecond);

/// Noise, so that no even area flatters the figures.
toolkit::Bitmap noise(int width, int height) {
    std::mt19937 random(1);
    toolkit::Bitmap picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.row(y)[x] = static_cast<std::uint32_t>(random()) | 0xFF000000U;
    return picture;
}

void scale(benchmark::State& state, int sourceWidth, int sourceHeight,
           const zev::ScaleRequest& request) {
    const toolkit::Bitmap source = noise(sourceWidth, sourceHeight);
    for (auto _ : state) benchmark::DoNotOptimize(zev::scaled(source, request));
}
BENCHMARK_CAPTURE(scale, halfPictureToFirstScale, 1198, 1237,
                  zev::ScaleRequest{.factor = 0.85F, .width = 1018, .height = 1064})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scale, fullPictureToThreeQuarters, 2396, 2473,
                  zev::ScaleRequest{.factor = 0.75F, .width = 1797, .height = 1866})
    ->Unit(benchmark::kMillisecond);

toolkit::IndexedPicture indexedNoise(int width, int height) {
    toolkit::IndexedPicture picture{.width = width, .height = height, .palette = {}, .indices = {}};
    std::mt19937 random(1);
    for (int i = 0; i < 256; ++i)
        picture.palette.push_back(static_cast<std::uint32_t>(random()) | 0xFF000000U);
    for (int i = 0; i < width * height; ++i)
        picture.indices.push_back(static_cast<std::uint8_t>(random() & 0xFFU));
    return picture;
}

void scaleIndexed(benchmark::State& state) {
    const toolkit::IndexedPicture picture = indexedNoise(2396, 2473);
    const zev::ScaleRequest request{.factor = 0.75F, .width = 1797, .height = 1866};
    for (auto _ : state) benchmark::DoNotOptimize(zev::scaled(picture, request));
}
BENCHMARK(scaleIndexed)->Unit(benchmark::kMillisecond);

void halve(benchmark::State& state) {
    const toolkit::Bitmap picture = noise(2396, 2473);
    for (auto _ : state) benchmark::DoNotOptimize(zev::halved(picture));
}
BENCHMARK(halve)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
