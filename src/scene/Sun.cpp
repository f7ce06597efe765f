#include "scene/Sun.h"

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "scene/DrawInstance.h"
#include "scene/MatrixScope.h"

namespace tolvane {

namespace {

constexpr float degreesPerSecond = 12.5f;

}  // namespace

Sun::Sun(MD2_Instance* sunInstance, Shader* sunShader) : instance(sunInstance), shader(sunShader) {
    TakeBound(*instance);
    instance->GetMaterial()->SetEmission(1.0f, 1.0f, 1.0f, 1.0f);
}

void Sun::Draw(int renderMode, bool, bool selectionPass, bool, const Vertex* eyePosition,
               const Vertex* lightPosition) {
    light.Apply(position.x, position.y, position.z);
    {
        const MatrixScope scope;
        ApplyStandardTransform();
        glDisable(GL_LIGHTING);
        glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
        DrawInstance(*instance, renderMode, selectionPass, shader, eyePosition, lightPosition);
    }
    glEnable(GL_LIGHTING);
}

void Sun::Update(int, float) {}

bool Sun::Spin(float dt) {
    rotationY += degreesPerSecond * dt;
    return false;
}

}  // namespace tolvane
