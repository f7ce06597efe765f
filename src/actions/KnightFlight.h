#pragma once

namespace tolvane {

class Knight3D;

// The pieces of a knight's flight that every scene with one is made of.

// Folds the legs and lights the jets.
void TakeOff(Knight3D& knight);
// A frame of the flight; true on arrival above the target.
bool FlyFor(float frameTime, Knight3D& knight);
// A frame of the way down; true on the ground, jets out.
bool LandFor(float frameTime, Knight3D& knight);

}  // namespace tolvane
