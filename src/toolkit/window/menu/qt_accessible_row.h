// Rows of menus as screen readers get them. Internal to the toolkit's sources.
#pragma once

namespace toolkit {

/// Tells the platform how to ask about rows: name and key apart, and the "what's this" text as
/// description.
void answerAboutRows();

} // namespace toolkit
