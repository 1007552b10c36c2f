// Events that run in the middle of a procedure: paint and timers. Internal to the toolkit's
// sources.
#pragma once

namespace toolkit {

/// Runs those that wait. What the player does is held back.
void runPendingEvents();

/// Runs those that come within so many milliseconds.
void runEventsFor(int milliseconds);

} // namespace toolkit
