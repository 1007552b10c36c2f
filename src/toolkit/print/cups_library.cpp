#include "toolkit/print/cups_library.h"

#include <optional>

#include <QtCore/QLibrary>

namespace toolkit {
namespace {

constexpr int libraryVersion = 2;

template <typename Function>
bool find(QLibrary& library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(library.resolve(name));
    return function != nullptr;
}

std::optional<CupsLibrary> load() {
    QLibrary library(QStringLiteral("cups"), libraryVersion);
    if (!library.load()) return std::nullopt;
    CupsLibrary cups;
    const bool complete = find(library, "cupsGetDests", cups.getDests) &&
                          find(library, "cupsSetDests2", cups.setDests) &&
                          find(library, "cupsGetNamedDest", cups.getNamedDest) &&
                          find(library, "cupsFreeDests", cups.freeDests) &&
                          find(library, "cupsCopyDestInfo", cups.copyDestInfo) &&
                          find(library, "cupsFreeDestInfo", cups.freeDestInfo) &&
                          find(library, "cupsGetDestMediaCount", cups.getDestMediaCount) &&
                          find(library, "cupsGetDestMediaByIndex", cups.getDestMediaByIndex) &&
                          find(library, "cupsGetDestMediaDefault", cups.getDestMediaDefault) &&
                          find(library, "cupsLocalizeDestMedia", cups.localizeDestMedia) &&
                          find(library, "cupsFindDestSupported", cups.findDestSupported) &&
                          find(library, "cupsFindDestDefault", cups.findDestDefault) &&
                          find(library, "cupsLocalizeDestValue", cups.localizeDestValue) &&
                          find(library, "cupsGetOption", cups.getOption) &&
                          find(library, "cupsAddOption", cups.addOption) &&
                          find(library, "cupsFreeOptions", cups.freeOptions) &&
                          find(library, "cupsCreateJob", cups.createJob) &&
                          find(library, "cupsStartDocument", cups.startDocument) &&
                          find(library, "cupsWriteRequestData", cups.writeRequestData) &&
                          find(library, "cupsFinishDocument", cups.finishDocument) &&
                          find(library, "cupsCancelJob", cups.cancelJob) &&
                          find(library, "cupsLastErrorString", cups.lastErrorString) &&
                          find(library, "ippGetCount", cups.getCount) &&
                          find(library, "ippGetInteger", cups.getInteger) &&
                          find(library, "ippGetString", cups.getString) &&
                          find(library, "ippGetResolution", cups.getResolution);
    return complete ? std::optional(cups) : std::nullopt;
}

const CupsLibrary*& overridden() {
    static const CupsLibrary* library = nullptr;
    return library;
}

} // namespace

const CupsLibrary* cupsLibrary() {
    if (overridden() != nullptr) return overridden();
    static const std::optional<CupsLibrary> library = load();
    return library ? &*library : nullptr;
}

void overrideCupsLibrary(const CupsLibrary* library) { overridden() = library; }

} // namespace toolkit
