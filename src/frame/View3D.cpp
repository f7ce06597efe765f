#include "frame/View3D.h"

#include <cmath>

#include "assets/Gl.h"
#include "assets/Matrix.h"
#include "assets/Numbers.h"

namespace tolvane {

namespace {

constexpr float startDistance = 30.0f;
constexpr float nearestDistance = 0.5f;
constexpr float farthestDistance = 40.0f;
constexpr float lowestCentre = 0.2f;
constexpr float lowestPitch = -90.0f;
constexpr float speed = 15.0f;     // degrees or units a second
constexpr float panFactor = 0.3f;  // panning is slower than turning and zooming

}  // namespace

View3D::View3D() {
    SetDistance(startDistance);
}

void View3D::SetViewport(int x, int y, int width, int height) {
    glViewport(x, y, width, height);
}

void View3D::SetPerspective(double fieldOfViewDegrees, double aspectRatio, double nearDistance,
                            double farDistance) {
    fieldOfView = fieldOfViewDegrees;
    aspect = aspectRatio;
    nearPlane = nearDistance;
    farPlane = farDistance;
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(fieldOfView, aspect, nearPlane, farPlane);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

void View3D::SetDistance(float value) {
    distance = value;
    PlaceEye();
}

const Vertex* View3D::GetPosition() {
    eyePosition = MakeVertex(eye.GetX(), eye.GetY(), eye.GetZ());
    return &eyePosition;
}

void View3D::ApplyView() {
    glLoadIdentity();
    gluLookAt(eye.GetX(), eye.GetY(), eye.GetZ(), centre.GetX(), centre.GetY(), centre.GetZ(), up.GetX(),
              up.GetY(), up.GetZ());
    ExtractFrustum();
}

void View3D::Update(float dt) {
    const float step = dt * speed;
    if (moveYPlus != 0 || moveYMinus != 0)
        MoveY(static_cast<float>(moveYPlus + moveYMinus) * step * panFactor);
    if (moveXMinus != 0 || moveXPlus != 0)
        MoveX(static_cast<float>(moveXMinus + moveXPlus) * step * panFactor);
    if (moveZMinus != 0 || moveZPlus != 0)
        MoveZ(static_cast<float>(moveZMinus + moveZPlus) * step * panFactor);
    if (pitchMinus != 0 || pitchPlus != 0)
        Pitch(static_cast<float>(pitchMinus + pitchPlus) * step);
    if (yawPlus != 0 || yawMinus != 0)
        Yaw(static_cast<float>(yawPlus + yawMinus) * step);
    if (zoomMinus != 0 || zoomPlus != 0)
        Zoom(static_cast<float>(zoomMinus + zoomPlus) * step);
}

void View3D::MoveX(float a) {
    Pan(right, a);
}

void View3D::MoveY(float a) {
    Pan(worldUp, a);
}

void View3D::MoveZ(float a) {
    Pan(forward, a);
}

void View3D::Pitch(float angle) {
    if (angle == 0.0f)
        return;
    pitchAngle += angle;
    if (pitchAngle > 0.0f) {
        pitchAngle = 0.0f;
        return;
    }
    if (pitchAngle < lowestPitch) {
        pitchAngle = lowestPitch;
        return;
    }
    const float a = static_cast<float>(angle * radiansPerDegree);
    const Vector4 candidate = (direction * std::cos(a) - up * std::sin(a)).Normalized();
    // The eye may not sink through the plane of the board.
    if (candidate.GetY() <= 0.0f && angle >= 0.0f)
        return;
    direction = candidate;
    PlaceEye();
    up = (right.Cross(direction) * -1.0f).Normalized();
}

void View3D::Yaw(float angle) {
    if (angle == 0.0f)
        return;
    yawAngle += angle;
    if (yawAngle == 360.0f)
        yawAngle = 0.0f;
    Matrix rotation;
    rotation.SetRotationY(angle);
    for (Vector4* axis : {&direction, &up, &right, &forward})
        *axis = (rotation * *axis).Normalized();
    PlaceEye();
}

void View3D::Zoom(float a) {
    if (distance <= nearestDistance && a <= 0.0f)
        return;
    if (distance >= farthestDistance && a >= 0.0f)
        return;
    distance += a;
    PlaceEye();
}

void View3D::Pan(const Vector4& axis, float a) {
    if (a == 0.0f)
        return;
    const Vector4 candidate = centre + axis * a;
    // A positive step is always taken, whatever its axis: so a centre below the line can be brought back.
    if (candidate.GetY() >= lowestCentre || a > 0.0f)
        centre = candidate;
    PlaceEye();
}

void View3D::PlaceEye() {
    eye = centre + direction * distance;
}

}  // namespace tolvane
