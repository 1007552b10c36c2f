#include "form/empty_operations.h"

namespace zev {

void DiReSize(Zevlin& /*form*/) {}

void Flatten(Zevlin& /*form*/) {}

void Flatten2(Zevlin& /*form*/) {}

void SetTabSequence(Zevlin& /*form*/) {}

} // namespace zev
