#include "scene/ChessBoard3D.h"

#include <array>
#include <cmath>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "assets/ParticleEffect.h"
#include "scene/DrawInstance.h"
#include "scene/MatrixScope.h"

namespace tolvane {

namespace {

// Where the corner posts of the model burn; the model is not quite symmetric.
constexpr std::array flamePlaces{
    Vertex{-19.2f, -18.8f, 19.45f},
    Vertex{-19.2f, -18.8f, -18.9f},
    Vertex{18.35f, -18.8f, -19.05f},
    Vertex{18.35f, -18.8f, 19.25f},
};

// The camera is at the board while x and z lie within this of the origin.
constexpr float boardReach = 19.0f;

bool IsAtBoard(const Vertex& eye) {
    return std::fabs(eye.x) <= boardReach && std::fabs(eye.z) <= boardReach;
}

}  // namespace

ChessBoard3D::ChessBoard3D(MD2_Instance* boardInstance, Shader* boardShader, ParticleEffect* flames)
    : instance(boardInstance), shader(boardShader), effect(flames) {
    TakeBound(*instance);
    instance->SetAnimation({"frame0", MD2_AnimationMode::Freeze, 0.0f});

    Material& material = *instance->GetMaterial();
    material.SetAmbient(0.2f, 0.2f, 0.2f, 1.0f);
    material.SetDiffuse(0.3f, 0.3f, 0.3f, 1.0f);
    material.SetSpecular(0.0f, 0.0f, 0.0f, 1.0f);
    material.SetShininess(50.0f);

    busy = true;
    skipWhenOutside = true;
}

void ChessBoard3D::Draw(int renderMode, bool, bool selectionPass, bool blending, const Vertex* eyePosition,
                        const Vertex* lightPosition) {
    if (selectionPass)
        return;

    effect->UpdateParticles(frameTime, eyePosition);
    {
        const MatrixScope scope;
        ApplyStandardTransform();
        DrawInstance(*instance, renderMode, selectionPass, shader, eyePosition, lightPosition);
    }

    flamesVisible = !IsAtBoard(*eyePosition);
    if (!flamesVisible)
        return;
    for (const Vertex& place : flamePlaces) {
        const MatrixScope scope;
        glTranslatef(place.x, place.y, place.z);
        effect->DrawParticles(blending);
    }
}

void ChessBoard3D::Update(int, float) {}

bool ChessBoard3D::UpdateEffects(float dt, const Vertex*) {
    frameTime = dt;
    return false;
}

}  // namespace tolvane
