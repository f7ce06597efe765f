#include "frame/Frustum.h"

#include <gtest/gtest.h>

#include <cmath>

#include "assets/Gl.h"
#include "frame/View3D.h"

namespace tolvane {

namespace {

// A camera thirty units in front of the origin, looking along -z, 90 degrees wide and high.
class FrustumSeen : public ::testing::Test {
protected:
    void SetUp() override {
        view.SetPerspective(90.0, 1.0, 1.0, 100.0);
        view.ApplyView();
    }

    View3D view;
};

}  // namespace

TEST_F(FrustumSeen, HoldsWhatIsInView) {
    EXPECT_TRUE(view.SphereInFrustum(0.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_TRUE(view.SphereInFrustum(29.0f, 0.0f, 0.0f, 0.1f));
    EXPECT_TRUE(view.SphereInFrustum(0.0f, -29.0f, 0.0f, 0.1f));
}

TEST_F(FrustumSeen, LeavesOutWhatLiesBeyondEachPlane) {
    EXPECT_FALSE(view.SphereInFrustum(35.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_FALSE(view.SphereInFrustum(-35.0f, 0.0f, 0.0f, 1.0f));
    EXPECT_FALSE(view.SphereInFrustum(0.0f, 35.0f, 0.0f, 1.0f));
    EXPECT_FALSE(view.SphereInFrustum(0.0f, -35.0f, 0.0f, 1.0f));
    EXPECT_FALSE(view.SphereInFrustum(0.0f, 0.0f, -80.0f, 1.0f));
    EXPECT_FALSE(view.SphereInFrustum(0.0f, 0.0f, 31.0f, 1.0f));
}

TEST_F(FrustumSeen, CountsASphereThatCrossesAPlane) {
    EXPECT_TRUE(view.SphereInFrustum(35.0f, 0.0f, 0.0f, 4.0f));
    EXPECT_TRUE(view.SphereInFrustum(0.0f, 0.0f, 31.0f, 2.5f));
}

TEST_F(FrustumSeen, ASphereThatOnlyTouchesIsOutside) {
    EXPECT_FALSE(view.SphereInFrustum(0.0f, 0.0f, 32.0f, 2.99f));
    EXPECT_FALSE(view.SphereInFrustum(0.0f, 0.0f, 29.0f, 0.0f));
    EXPECT_TRUE(view.SphereInFrustum(0.0f, 0.0f, 28.9f, 0.0f));
}

}  // namespace tolvane
