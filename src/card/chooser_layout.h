// Where everything stands on the chooser's panel.
#pragma once

namespace zev {

struct Zevlin;

/// Sizes and places the panel and what is on it, by the measures of the text font; the list and the
/// texts must be set. It takes no more than the form has.
void layOutChooser(Zevlin& form);

} // namespace zev
