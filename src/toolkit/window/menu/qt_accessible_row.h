// Rows of menus as screen readers get them. Internal to the toolkit's sources.
#pragma once

namespace toolkit {

/// From now on a screen reader also gets the "what's this" text of a row that has one, as its
/// description. The platform's own interface for rows leaves that out.
void tellRowDescriptions();

} // namespace toolkit
