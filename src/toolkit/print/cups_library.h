// The print service's client library, loaded when it is first needed: a machine without it just has
// no printers, and a start of the program doesn't wait for it. Internal to the toolkit's sources.
#pragma once

#include <cups/cups.h>

namespace toolkit {

/// The service tells lengths in hundredths of a millimetre.
constexpr float hundredthsPerInch = 2540;

/// The functions that the program uses, by their own names.
struct CupsLibrary {
    decltype(&::cupsGetDests) getDests = nullptr;
    decltype(&::cupsSetDests2) setDests = nullptr;
    decltype(&::cupsGetNamedDest) getNamedDest = nullptr;
    decltype(&::cupsFreeDests) freeDests = nullptr;
    decltype(&::cupsCopyDestInfo) copyDestInfo = nullptr;
    decltype(&::cupsFreeDestInfo) freeDestInfo = nullptr;
    decltype(&::cupsGetDestMediaCount) getDestMediaCount = nullptr;
    decltype(&::cupsGetDestMediaByIndex) getDestMediaByIndex = nullptr;
    decltype(&::cupsGetDestMediaDefault) getDestMediaDefault = nullptr;
    decltype(&::cupsLocalizeDestMedia) localizeDestMedia = nullptr;
    decltype(&::cupsFindDestSupported) findDestSupported = nullptr;
    decltype(&::cupsFindDestDefault) findDestDefault = nullptr;
    decltype(&::cupsLocalizeDestValue) localizeDestValue = nullptr;
    decltype(&::cupsGetOption) getOption = nullptr;
    decltype(&::cupsAddOption) addOption = nullptr;
    decltype(&::cupsFreeOptions) freeOptions = nullptr;
    decltype(&::cupsCreateJob) createJob = nullptr;
    decltype(&::cupsStartDocument) startDocument = nullptr;
    decltype(&::cupsWriteRequestData) writeRequestData = nullptr;
    decltype(&::cupsFinishDocument) finishDocument = nullptr;
    decltype(&::cupsCancelJob) cancelJob = nullptr;
    decltype(&::cupsLastErrorString) lastErrorString = nullptr;
    decltype(&::ippGetCount) getCount = nullptr;
    decltype(&::ippGetInteger) getInteger = nullptr;
    decltype(&::ippGetString) getString = nullptr;
    decltype(&::ippGetResolution) getResolution = nullptr;
};

/// nullptr where the library isn't installed.
[[nodiscard]] const CupsLibrary* cupsLibrary();

/// For tests: stands for the library; nullptr gives back the real one.
void overrideCupsLibrary(const CupsLibrary* library);

} // namespace toolkit
