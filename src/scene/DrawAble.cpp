#include "scene/DrawAble.h"

#include <cmath>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "assets/Numbers.h"

namespace tolvane {

namespace {

void Turn(float& angle, float degrees) {
    angle += degrees;
    if (std::fabs(angle) >= 360.0f)
        angle -= 360.0f * static_cast<float>(Sign(angle));
}

}  // namespace

void DrawAble::Update(int, float) {}

void DrawAble::RotateX(float degrees) {
    Turn(rotationX, degrees);
}

void DrawAble::RotateY(float degrees) {
    Turn(rotationY, degrees);
}

void DrawAble::RotateZ(float degrees) {
    Turn(rotationZ, degrees);
}

void DrawAble::Translate(float dx, float dy, float dz) {
    position = Add(position, {dx, dy, dz});
}

bool DrawAble::IsFinished() {
    return busy;
}

bool DrawAble::UpdateEffects(float, const Vertex*) {
    return false;
}

Vertex* DrawAble::GetPosition() {
    return &position;
}

float DrawAble::GetRotationX() {
    return rotationX;
}

float DrawAble::GetRotationY() {
    return rotationY;
}

float DrawAble::GetRotationZ() {
    return rotationZ;
}

void DrawAble::BuildDisplayLists() {}

void DrawAble::TakeBound(const MD2_Instance& instance) {
    boundCentre = instance.boundCentre;
    boundRadius = instance.boundRadius;
}

void DrawAble::ApplyStandardTransform() const {
    glTranslatef(position.x, position.y, position.z);
    glRotatef(rotationX, 1.0f, 0.0f, 0.0f);
    glRotatef(rotationY, 0.0f, 1.0f, 0.0f);
    glRotatef(rotationZ, 0.0f, 0.0f, 1.0f);
}

}  // namespace tolvane
