// Moving all fields of a kind at once.
#pragma once

namespace zev {

struct Zevlin;

/// Moves the fields of the kind that the Design menu says: with Shift by dX and dY pixels (-1, 0 or
/// 1), with Ctrl away from the card's top left corner or towards it, by a thousandth of the way.
void MoveMarks(Zevlin& form, float dX, float dY, int Shift);

} // namespace zev
