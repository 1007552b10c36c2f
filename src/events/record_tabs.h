// Recording a TAB sequence by clicking on the fields in their order.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Switches recording. Where a sequence exists it asks first whether to keep or to discard it.
void MSetTabs_Click(Zevlin& form);

/// Takes a press on the item with this number as a step of the recording: TAB will lead to it from
/// the item pressed before. False, without any effect, unless a sequence is being recorded.
bool recordTabPress(Zevlin& form, int item, toolkit::MouseArguments& mouse);

} // namespace zev
