#include "form/trace.h"

#include <algorithm>

#include "form/zevlin.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/path_text.h"
#include "toolkit/base/system.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/shell_folders.h"

namespace zev {
namespace {

constexpr std::size_t ringSize = 100;
constexpr std::string_view traceFileName = "Trace.txt";
constexpr std::string_view lineEnd = "\r\n";

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const auto part : parts) text += part;
    return text;
}

std::string timedLine(std::string_view text) {
    return toolkit::fixedText(toolkit::secondsSinceMidnight(), 5, 2) + " " + std::string(text);
}

std::string headerLine(const Zevlin& form) {
    return joined({toolkit::dateTimeText(), "\t", form.ProgramVersion, lineEnd});
}

/// Lines that come meanwhile are dropped: a failure to measure would write the ring again, and so
/// on.
std::string memoryLines(Zevlin& form) {
    form.traceState.isWriting = true;
    const std::string load = MemoryLoad(form);
    std::uint64_t peak = 0;
    const std::uint64_t current = GetMemoryUsage(form, peak);
    form.traceState.isWriting = false;
    return joined({"System Memory Load: ", load, lineEnd,
                   "ZEV's Curr Memory usage:  ", toolkit::groupedText(current), lineEnd,
                   "ZEV's Peak Memory usage:  ", toolkit::groupedText(peak), lineEnd});
}

std::filesystem::path dataFile(const Zevlin& form) {
    return toolkit::resolveFile(form.DataFolder, traceFileName);
}

/// In the data folder, or where that fails in the program folder, so that a trace can be written.
template <typename Write>
void inTraceFolder(const Zevlin& form, Write write) {
    try {
        write(dataFile(form));
    } catch (const toolkit::RunTimeError&) {
        write(toolkit::resolveFile(toolkit::programFolder(), traceFileName));
    }
}

bool isErrorLine(std::string_view text) { return toolkit::lowerCase(text.substr(0, 5)) == "error"; }

void dumpRing(Zevlin& form) {
    std::string block = joined({lineEnd, headerLine(form)});
    std::for_each(form.Trace.rbegin(), form.Trace.rend(), [&](const std::string& line) {
        block += line;
        block += lineEnd;
    });
    block += memoryLines(form);
    toolkit::appendFile(dataFile(form), block);
    form.Trace.clear();
}

void traceToRing(Zevlin& form, std::string_view text) {
    form.Trace.push_front(timedLine(text));
    while (form.Trace.size() > ringSize) form.Trace.pop_back();
    if (isErrorLine(text)) dumpRing(form);
}

std::string measuresOf(const toolkit::FontSpec& font) {
    return font.Name + " " + toolkit::numberText(font.Size);
}

std::string dimensions(Zevlin& form) {
    const toolkit::Label& first = form.AText[1];
    toolkit::FontSpec narrow = first.Font;
    narrow.Name = form.NarrowFontName;
    std::string block =
        joined({"Dimensions:", lineEnd, "    AText(1) font name, size, height, textheight: ",
                measuresOf(first.Font), " ", toolkit::numberText(first.Height), " ",
                toolkit::numberText(toolkit::textHeight(first.Font)), lineEnd});
    block += joined({"    Test font name, size, textheight: ", measuresOf(narrow), " ",
                     toolkit::numberText(toolkit::textHeight(narrow)), lineEnd});
    // Form, P1, P2 and P3 all measure in twips.
    block += joined({"    Scalemodes - Form,P1,P2,P3: ", "1 1 1 1", lineEnd});
    return block + memoryLines(form);
}

void traceToFile(Zevlin& form, std::string_view text) {
    if (!form.traceState.headerWritten) {
        form.traceState.headerWritten = true;
        const std::string header = joined(
            {headerLine(form), "Current path: ", toolkit::displayText(form.DataFolder), lineEnd});
        inTraceFolder(form, [&](const auto& file) { toolkit::writeFile(file, header); });
    }
    std::string block;
    if (form.AText.UBound() > 0 && !form.traceState.dimensionsWritten) {
        form.traceState.dimensionsWritten = true;
        block = dimensions(form);
    }
    block += timedLine(text);
    block += lineEnd;
    inTraceFolder(form, [&](const auto& file) { toolkit::appendFile(file, block); });
}

void traceUntrapped(Zevlin& form, std::string_view text) {
    if (form.TraceOn) {
        traceToFile(form, text);
    } else {
        traceToRing(form, text);
    }
}

} // namespace

void Traceit(Zevlin& form, std::string_view text) {
    if (form.traceState.isWriting) return;
    try {
        traceUntrapped(form, text);
    } catch (const std::exception&) {
        const auto failure = toolkit::currentFailure();
        // The trap is off now: a second failure ends here.
        ignoringFailures([&] {
            traceUntrapped(form, "Error in Traceit: #" + toolkit::numberText(failure.number()) +
                                     ", " + failure.description());
        });
    }
}

void traceFailure(Zevlin& form, std::string_view head, const toolkit::RunTimeError& failure,
                  std::string_view tail) {
    Traceit(form, joined({head, toolkit::numberText(failure.number()), ", ", failure.description(),
                          tail}));
}

void traceCall(Zevlin& form, std::string_view name, std::string_view details) {
    if (details.empty()) return Traceit(form, name);
    Traceit(form, joined({name, " ", details}));
}

void traceFailureIn(Zevlin& form, std::string_view name) {
    traceFailure(form, joined({"Error in ", name, ": #"}), toolkit::currentFailure());
}

std::string_view truthText(bool value) { return value ? "True" : "False"; }

bool takeSpecsTurn(Zevlin& form) {
    if (!form.TraceOn || form.traceState.specsWritten) return false;
    form.traceState.specsWritten = true;
    return true;
}

std::string MemoryLoad(Zevlin& form) {
    std::string load;
    trapped(form, "Error in MemoryLoad: #",
            [&] { load = toolkit::numberText(toolkit::memoryFacts().loadPercent) + "%"; });
    return load;
}

std::uint64_t GetMemoryUsage(Zevlin& form, std::uint64_t& peak) {
    std::uint64_t current = 0;
    peak = 0;
    trapped(form, "Error in GetMemoryUsage: #", [&] {
        const toolkit::MemoryUsage usage = toolkit::memoryUsage();
        current = usage.current;
        peak = usage.peak;
    });
    return current;
}

} // namespace zev
