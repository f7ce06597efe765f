#pragma once

#include <gmock/gmock.h>

#include <array>
#include <cstdlib>
#include <functional>
#include <vector>

#include "assets/Vertex.h"
#include "support/GlWindow.h"

namespace tolvane::test {

using Rgb = std::array<int, 3>;

// Renderers differ by two or three levels between processors.
MATCHER_P(IsColor, color, "") {
    for (std::size_t i = 0; i < 3; ++i)
        if (std::abs(arg[i] - color[i]) > 3)
            return false;
    return true;
}

// A cleared window in the GL state in which the game draws its scene. Every case ends without a GL error
// and with the matrix stacks at their bottom.
class Stage : public ::testing::Test {
protected:
    // The square part of the window that the flat views fill.
    static constexpr int edge = GlWindow::height;

    void SetUp() override;
    void TearDown() override;

    // All black, nothing drawn before.
    static void Clear(float red = 0.0f, float green = 0.0f, float blue = 0.0f);

    // A parallel view of everything within reach of the origin: along -y with -z up on the picture, or
    // along -z with y up.
    static void LookDown(float reach);
    static void LookAhead(float reach);
    // The eye of a player at the origin.
    static void LookAlong(const Vertex& direction, const Vertex& up);

    // Where a world point is on the picture under the current matrices.
    struct Pixel {
        int x;
        int y;
    };
    static Pixel PixelOf(const Vertex& point);
    static Rgb ColorAt(const Vertex& point);

    // The names under a pixel and the nearest and farthest depth, 0 to 1, of each hit, while draw runs in
    // selection mode. One name, 7, lies below those that draw pushes.
    struct Hit {
        std::vector<unsigned int> names;
        double nearest;
        double farthest;
    };
    static constexpr unsigned int baseName = 7;
    static std::vector<Hit> Pick(Pixel pixel, const std::function<void()>& draw);

    // A texture of width by width colours, bottom row first, shown without smoothing.
    static unsigned int MakeTexture(int width, const std::vector<Rgb>& colors);
};

}  // namespace tolvane::test
