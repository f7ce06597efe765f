#pragma once

#include <memory>

#include "assets/MD2_Instance.h"
#include "assets/MD2_Model.h"
#include "assets/ParticleEffect.h"
#include "assets/Shader.h"

namespace tolvane::test {

// A plain square of a model in the plane z = 0 that faces +z, with its own file, model and instance.
class SquareProp {
public:
    // The edge in world units; the square lies about the origin.
    SquareProp(float edge, unsigned int texture);

    MD2_Instance* Instance() { return instance.get(); }

private:
    std::unique_ptr<MD2_Model> model;
    std::unique_ptr<MD2_Instance> instance;
};

// An emitter that shows one particle at its origin and keeps it: a red square of two by two units that
// faces the camera, its lower edge one unit above the origin as the camera sees it.
ParticleEffect OneFlame(unsigned int texture);

// Draws everything in one colour: the "LightPos" that it is fed, a hundredth of x, y and z as red, green and
// blue.
class LightPosShader {
public:
    LightPosShader();
    ~LightPosShader() { shader->Free(); }
    LightPosShader(const LightPosShader&) = delete;
    LightPosShader& operator=(const LightPosShader&) = delete;

    Shader* Get() { return shader.get(); }

private:
    std::unique_ptr<Shader> shader;
};

}  // namespace tolvane::test
