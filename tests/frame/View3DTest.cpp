#include "frame/View3D.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tolvane {

namespace {

constexpr float frame = 1.0f / 60.0f;

void ExpectEye(View3D& view, float x, float y, float z, float tolerance = 1e-3f) {
    const Vertex eye = *view.GetPosition();
    EXPECT_NEAR(eye.x, x, tolerance);
    EXPECT_NEAR(eye.y, y, tolerance);
    EXPECT_NEAR(eye.z, z, tolerance);
}

void Hold(View3D& view, float seconds) {
    for (int i = 0; i < static_cast<int>(seconds / frame); ++i)
        view.Update(frame);
}

float DistanceFromAxis(View3D& view) {
    const Vertex eye = *view.GetPosition();
    return std::sqrt(eye.x * eye.x + eye.z * eye.z);
}

}  // namespace

TEST(View3D, StartsThirtyUnitsInFrontOfTheCentre) {
    View3D view;
    ExpectEye(view, 0.0f, 0.0f, 30.0f);
}

TEST(View3D, StartingViewOfTheGameLooksDownFromBehindWhite) {
    View3D view;
    view.MoveY(1.0f);
    view.Pitch(-40.0f);
    ExpectEye(view, 0.0f, 20.284f, 22.981f);
}

TEST(View3D, PansAtFourAndAHalfUnitsASecondWhateverTheFrameRate) {
    for (const int frames : {10, 60, 1000}) {
        View3D view;
        view.SetMoveXPlus(1);
        for (int i = 0; i < frames; ++i)
            view.Update(1.0f / static_cast<float>(frames));
        ExpectEye(view, 4.5f, 0.0f, 30.0f, 0.01f);
    }
}

TEST(View3D, BothKeysOfAPairCancelOut) {
    View3D view;
    view.MoveY(1.0f);
    view.SetMoveZMinus(-1);
    view.SetMoveZPlus(1);
    Hold(view, 1.0f);
    ExpectEye(view, 0.0f, 1.0f, 30.0f);

    view.SetMoveZPlus(0);
    view.Update(1.0f);
    ExpectEye(view, 0.0f, 1.0f, 25.5f);
}

TEST(View3D, ASteppedTimeOfZeroMovesNothing) {
    View3D view;
    view.MoveY(1.0f);
    view.Pitch(-40.0f);
    const Vertex before = *view.GetPosition();
    view.SetMoveXPlus(1);
    view.SetMoveYPlus(1);
    view.SetMoveZPlus(1);
    view.SetPitchMinus(-1);
    view.SetYawPlus(1);
    view.SetZoomPlus(1);
    view.Update(0.0f);
    ExpectEye(view, before.x, before.y, before.z, 0.0f);
}

TEST(View3D, StaysLevelWhenAPitchWouldPassZero) {
    View3D view;
    view.MoveY(1.0f);
    view.Pitch(0.5f);
    ExpectEye(view, 0.0f, 1.0f, 30.0f);
    view.SetPitchPlus(1);
    Hold(view, 1.0f);
    ExpectEye(view, 0.0f, 1.0f, 30.0f);
}

TEST(View3D, APitchBeyondTheTopIsDroppedWhole) {
    View3D view;
    view.Pitch(-80.0f);
    const Vertex before = *view.GetPosition();
    view.Pitch(-20.0f);
    ExpectEye(view, before.x, before.y, before.z, 0.0f);
}

TEST(View3D, LooksStraightDownAtTheLimitAndCanStillTurn) {
    View3D view;
    view.Pitch(-90.0f);
    ExpectEye(view, 0.0f, 30.0f, 0.0f);
    view.Yaw(90.0f);
    ExpectEye(view, 0.0f, 30.0f, 0.0f);
    view.Pitch(45.0f);
    EXPECT_NEAR(DistanceFromAxis(view), 21.213f, 1e-2f);
    EXPECT_NEAR(view.GetPosition()->y, 21.213f, 1e-2f);
}

TEST(View3D, TheEyeMayNotSinkThroughTheBoard) {
    View3D view;
    view.Pitch(-10.0f);
    for (int i = 0; i < 200; ++i) {
        view.Pitch(0.3f);
        EXPECT_GE(view.GetPosition()->y, 0.0f);
    }
}

TEST(View3D, CountsItsPitchFromLevelAfterAStepThatWasDroppedThere) {
    View3D view;
    view.Pitch(5.0f);
    view.Pitch(-89.0f);
    const Vertex before = *view.GetPosition();
    view.Pitch(-5.0f);  // 94 degrees in all
    ExpectEye(view, before.x, before.y, before.z, 0.0f);
}

TEST(View3D, AStepThatWouldSinkTheEyeIsDroppedButCounted) {
    View3D view;
    view.Pitch(-80.0f);
    view.Pitch(-20.0f);  // dropped, and the count stands at the limit
    const Vertex before = *view.GetPosition();
    view.Pitch(85.0f);  // from 80 degrees of height to 5 below the board
    ExpectEye(view, before.x, before.y, before.z, 0.0f);
    view.Pitch(-4.0f);  // the limit is 85 degrees away now
    EXPECT_GT(view.GetPosition()->y, before.y);
}

TEST(View3D, TheCentreStopsAboveTheFloorAndComesBackUp) {
    View3D view;
    view.MoveY(1.0f);
    view.SetMoveYMinus(-1);
    Hold(view, 2.0f);
    const float lowest = view.GetPosition()->y;
    EXPECT_GE(lowest, 0.2f);
    EXPECT_LT(lowest, 0.2f + 4.5f * frame + 1e-4f);

    view.SetMoveYMinus(0);
    view.SetMoveYPlus(1);
    view.Update(0.1f);
    EXPECT_NEAR(view.GetPosition()->y, lowest + 0.45f, 1e-3f);
}

TEST(View3D, APositiveStepIsTakenFromBelowTheFloorToo) {
    View3D view;  // its centre lies at y = 0
    view.MoveX(-1.0f);
    ExpectEye(view, 0.0f, 0.0f, 30.0f);
    view.MoveX(1.0f);
    ExpectEye(view, 1.0f, 0.0f, 30.0f);
}

TEST(View3D, ZoomStopsAtFortyAndComesNearerAtOnce) {
    View3D view;
    view.SetZoomPlus(1);
    Hold(view, 3.0f);
    const float farthest = view.GetPosition()->z;
    EXPECT_GE(farthest, 40.0f);
    EXPECT_LT(farthest, 40.0f + 15.0f * frame + 1e-3f);

    view.SetZoomPlus(0);
    view.SetZoomMinus(-1);
    view.Update(0.1f);
    EXPECT_NEAR(view.GetPosition()->z, farthest - 1.5f, 1e-3f);
}

TEST(View3D, ZoomStopsHalfAUnitAway) {
    View3D view;
    view.SetZoomMinus(-1);
    Hold(view, 4.0f);
    const float nearest = view.GetPosition()->z;
    EXPECT_LE(nearest, 0.5f);
    EXPECT_GT(nearest, 0.5f - 15.0f * frame - 1e-3f);
}

TEST(View3D, AFullTurnBringsTheEyeBackUpToRounding) {
    View3D view;
    view.MoveY(1.0f);
    view.Pitch(-40.0f);
    const Vertex before = *view.GetPosition();
    for (int i = 0; i < 360; ++i)
        view.Yaw(1.0f);
    ExpectEye(view, before.x, before.y, before.z, 0.05f);
    EXPECT_NEAR(DistanceFromAxis(view), before.z, 1e-2f);
}

TEST(View3D, MovesAlongTheTurnedAxes) {
    View3D view;
    view.MoveY(1.0f);
    view.Yaw(90.0f);
    ExpectEye(view, 30.0f, 1.0f, 0.0f);
    view.MoveZ(-10.0f);
    ExpectEye(view, 20.0f, 1.0f, 0.0f);
    view.MoveX(5.0f);
    ExpectEye(view, 20.0f, 1.0f, -5.0f);
}

TEST(View3D, KeepsTheProjectionForPicking) {
    View3D view;
    view.SetPerspective(60.0, 4.0 / 3.0, 0.1, 400.0);
    EXPECT_EQ(view.GetFieldOfView(), 60.0);
    EXPECT_EQ(view.GetNearPlane(), 0.1);
    EXPECT_EQ(view.GetFarPlane(), 400.0);
}

}  // namespace tolvane
