// What ends the program. Internal to the toolkit's sources.
#pragma once

namespace toolkit {

/// Lets the form bring to safety what must not be lost.
void prepareForEnd();

} // namespace toolkit
