#pragma once

#include <array>

namespace tolvane {

// The view volume: six planes whose normals point into it.
class Frustum {
public:
    // Reads the planes from the current modelview and projection matrices of GL.
    void ExtractFrustum();

    // Whether any of the sphere is inside; one that only touches a plane from outside is not. The test is
    // by planes, so a sphere beyond an edge of the volume can still pass.
    bool SphereInFrustum(float x, float y, float z, float radius) const;

protected:
    // a, b, c, d of a x + b y + c z + d = 0, normalised: right, left, bottom, top, far, near.
    std::array<std::array<float, 4>, 6> planes{};
};

}  // namespace tolvane
