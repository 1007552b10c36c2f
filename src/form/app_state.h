// The frame's share of the form's state: trace, folders, options that no subsystem owns.
#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include "form/slots.h"
#include "toolkit/model/control.h"

namespace zev {

/// What the trace keeps between calls.
struct TraceState {
    bool headerWritten = false;     ///< the file was emptied by this run
    bool dimensionsWritten = false; ///< the block of control sizes stands in it
    bool specsWritten = false;      ///< the figures of the first text field stand in it
    bool isWriting = false;         ///< a block is being put together: further lines are dropped
};

struct AppState {
    bool TraceOn = false;          ///< every line goes straight to the file
    bool TraceSetting = false;     ///< the option as it will be saved
    std::deque<std::string> Trace; ///< the last 100 lines, newest first
    TraceState traceState;

    std::vector<std::string> FileFailures;     ///< still to be told, a line each
    std::vector<std::string> FileFailuresTold; ///< what was told last; empty once nothing failed

    ProcedureSlots Slots;

    bool ProductionBuild = false;
    bool WheelHooked = false;
    std::string ProgramVersion;
    bool Initializing = false;
    bool FontChangeAsked = false;
    bool LayoutCopied = false; ///< this run copied the installed layout
    bool IsLoaded = false;     ///< the start is over

    std::filesystem::path DocumentsFolder; ///< empty where the system has none
    std::filesystem::path DataFolder;      ///< empty without a documents folder

    std::string VersionSeen;    ///< last version that SkipComment found
    std::string OptionsVersion; ///< of the options file
    bool OptionsRead = false;   ///< this run has read the options file, or made it
    /// The first run brought the options along from an older installation.
    bool OptionsCarriedOver = false;
    std::string LayoutVersion; ///< of the layout file

    std::int16_t TwipsPerPixel = 15;
    std::int16_t ScreenWidthPixels = 0;
    toolkit::Color FormBackColor = 0;

    toolkit::MenuItem MFile;
    toolkit::MenuItem MOptions;
    toolkit::MenuItem MExit;
    toolkit::MenuItem mDocsFolder{.Visible = false};
    toolkit::MenuItem mpopMoveCards;
    toolkit::MenuItem mpopLeaveCards{.Caption = "Leave cards where they are"};
};

} // namespace zev
