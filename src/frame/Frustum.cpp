#include "frame/Frustum.h"

#include <algorithm>
#include <cmath>

#include "assets/Gl.h"

namespace tolvane {

namespace {

// Which column of the clip matrix makes a plane, and whether it is added to the last one or taken from it.
struct PlaneSource {
    std::size_t column;
    float sign;
};

constexpr std::array<PlaneSource, 6> planeSources{{
    {.column = 0, .sign = -1.0f},  // right
    {.column = 0, .sign = 1.0f},   // left
    {.column = 1, .sign = 1.0f},   // bottom
    {.column = 1, .sign = -1.0f},  // top
    {.column = 2, .sign = -1.0f},  // far
    {.column = 2, .sign = 1.0f},   // near
}};

}  // namespace

void Frustum::ExtractFrustum() {
    std::array<float, 16> modelview{};
    std::array<float, 16> projection{};
    glGetFloatv(GL_MODELVIEW_MATRIX, modelview.data());
    glGetFloatv(GL_PROJECTION_MATRIX, projection.data());

    std::array<float, 16> clip{};
    for (std::size_t i = 0; i < 4; ++i)
        for (std::size_t j = 0; j < 4; ++j)
            for (std::size_t k = 0; k < 4; ++k)
                clip[i * 4 + j] += modelview[i * 4 + k] * projection[k * 4 + j];

    for (std::size_t p = 0; p < planes.size(); ++p) {
        const auto [column, sign] = planeSources[p];
        std::array<float, 4>& plane = planes[p];
        for (std::size_t row = 0; row < 4; ++row)
            plane[row] = clip[row * 4 + 3] + sign * clip[row * 4 + column];
        const float length = std::sqrt(plane[0] * plane[0] + plane[1] * plane[1] + plane[2] * plane[2]);
        for (float& number : plane)
            number /= length;
    }
}

bool Frustum::SphereInFrustum(float x, float y, float z, float radius) const {
    return std::none_of(planes.begin(), planes.end(), [=](const std::array<float, 4>& plane) {
        return plane[0] * x + plane[1] * y + plane[2] * z + plane[3] <= -radius;
    });
}

}  // namespace tolvane
