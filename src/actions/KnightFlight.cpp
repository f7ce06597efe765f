#include "actions/KnightFlight.h"

#include "actions/Slices.h"
#include "figures/Knight3D.h"

namespace tolvane {

void TakeOff(Knight3D& knight) {
    knight.PlayAnimationList(&knight.runList);
    knight.PlayStartEndSound();
    knight.StartMoveSound();
}

bool FlyFor(float frameTime, Knight3D& knight) {
    return InSlices(frameTime, [&knight](float slice) { return knight.Walk(slice); });
}

bool LandFor(float frameTime, Knight3D& knight) {
    if (!knight.Descend(frameTime))
        return false;
    knight.StopMoveSound();
    knight.PlayStartEndSound();
    return true;
}

}  // namespace tolvane
