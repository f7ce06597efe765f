#pragma once

#include "assets/Vector4.h"
#include "assets/Vertex.h"
#include "frame/Frustum.h"

namespace tolvane {

// The one camera. It orbits a movable centre: the eye is always centre + direction * distance. Keys set the
// motion flags, and Update applies them once a frame. Limits are kept by refusing a step, not by clamping.
class View3D : public Frustum {
public:
    View3D();

    // The projection, in degrees and world units; kept, because picking sets it up once more.
    void SetViewport(int x, int y, int width, int height);
    void SetPerspective(double fieldOfViewDegrees, double aspectRatio, double nearDistance,
                        double farDistance);
    double GetFieldOfView() const { return fieldOfView; }
    double GetNearPlane() const { return nearPlane; }
    double GetFarPlane() const { return farPlane; }

    // Where the camera stands.
    void SetDistance(float value);
    // A copy of the eye, good until the next call.
    const Vertex* GetPosition();
    // Loads the view onto the modelview matrix and takes the frustum from it.
    void ApplyView();

    // Moves the camera by its flags for dt seconds.
    void Update(float dt);
    // Pan the centre along right, world up and forward, in world units.
    void MoveX(float a);
    void MoveY(float a);
    void MoveZ(float a);
    // Turn the eye about the centre, in degrees; a negative pitch lifts it.
    void Pitch(float angle);
    void Yaw(float angle);
    // Lengthens the distance, in world units.
    void Zoom(float a);

    // The motion flags: one named Minus holds 0 or -1, one named Plus holds 0 or 1.
    void SetMoveYPlus(int value) { moveYPlus = value; }
    void SetMoveYMinus(int value) { moveYMinus = value; }
    void SetMoveXMinus(int value) { moveXMinus = value; }
    void SetMoveXPlus(int value) { moveXPlus = value; }
    void SetMoveZMinus(int value) { moveZMinus = value; }
    void SetMoveZPlus(int value) { moveZPlus = value; }
    void SetPitchMinus(int value) { pitchMinus = value; }
    void SetPitchPlus(int value) { pitchPlus = value; }
    void SetYawPlus(int value) { yawPlus = value; }
    void SetYawMinus(int value) { yawMinus = value; }
    void SetZoomMinus(int value) { zoomMinus = value; }
    void SetZoomPlus(int value) { zoomPlus = value; }

private:
    void Pan(const Vector4& axis, float a);
    void PlaceEye();

    double fieldOfView = 0.0;
    double aspect = 0.0;
    double nearPlane = 0.0;
    double farPlane = 0.0;
    Vector4 eye;
    Vertex eyePosition;
    Vector4 direction{0.0f, 0.0f, 1.0f};  // unit, from the centre to the eye
    Vector4 centre{0.0f, 0.0f, 0.0f};
    Vector4 up{0.0f, 1.0f, 0.0f};
    Vector4 right{1.0f, 0.0f, 0.0f};
    Vector4 forward{0.0f, 0.0f, 1.0f};  // horizontal: turns with Yaw, not with Pitch
    Vector4 worldUp{0.0f, 1.0f, 0.0f};
    float pitchAngle = 0.0f;  // degrees, -90 to 0
    float yawAngle = 0.0f;    // degrees
    float distance = 30.0f;   // world units
    int moveYPlus = 0;
    int moveYMinus = 0;
    int moveXMinus = 0;
    int moveXPlus = 0;
    int moveZMinus = 0;
    int moveZPlus = 0;
    int pitchMinus = 0;
    int pitchPlus = 0;
    int yawPlus = 0;
    int yawMinus = 0;
    int zoomMinus = 0;
    int zoomPlus = 0;
};

}  // namespace tolvane
