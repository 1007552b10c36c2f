// The program as a process: events, waits, its end.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace toolkit {

/// Takes over the controls' values and lets pending paint and timer events run; what the player
/// does meanwhile is held back. A close that arrives waits until the running procedures return.
void doEvents();

/// Pauses for the time given while the window keeps painting.
void wait(int milliseconds);

/// Lets the player act, over and over, until `isOver`: in the middle of a procedure, everything
/// that is shown and enabled can be reached, and a close of the window is an event like any other.
void waitForPlayer(const std::function<bool()>& isOver);

/// A system beep.
void beep();

/// Opens the desktop's file manager with the file selected; on its folder where the file isn't
/// there or no file manager can select one.
void showInFileManager(const std::filesystem::path& file);

/// Opens a web page in the desktop's browser.
void openWebPage(const char* address);

/// Ends the process at once, with this exit code: no unload, no further save.
[[noreturn]] void endProgram(int exitCode);

/// Ends the program in good order once the running events have returned: what it holds for others,
/// as a picture on the clipboard, goes to the system.
void leaveProgram();

/// What endProgram and leaveProgram throw where a test has asked for it; deliberately no
/// std::exception. Out of an event handler it reaches the test through the helper of toolkit::test
/// that sent the event.
struct ProgramEnded {
    int exitCode = 0;
};

} // namespace toolkit
