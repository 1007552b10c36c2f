// Paints a page. Internal to the toolkit's sources.
#pragma once

#include "toolkit/print/page.h"

class QPainter;

namespace toolkit {

/// The painter's units are the dots of a device whose page begins at (0, 0).
void paintPage(QPainter& painter, const Page& page, double dotsPerInch);

} // namespace toolkit
