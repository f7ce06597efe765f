#pragma once

#include <array>

#include "assets/Vertex.h"

namespace tolvane {

class Shader;

// What an object is made of, set up right before it is drawn. Colours are red, green, blue and alpha
// from 0 to 1.
class Material {
public:
    void SetDiffuse(float red, float green, float blue, float alpha);
    void SetAmbient(float red, float green, float blue, float alpha);
    void SetSpecular(float red, float green, float blue, float alpha);
    void SetEmission(float red, float green, float blue, float alpha);
    void SetColor(float red, float green, float blue, float alpha);
    void SetShininess(float exponent);
    void SetTextureId(unsigned int id) { textureId = id; }
    void SetNormalMapId(unsigned int id) { normalMapId = id; }

    // The four floats of the current colour, to be read and written in place: a figure fades by them.
    float* GetColor() { return color.data(); }
    const std::array<float, 4>& GetDiffuse() const { return diffuse; }
    const std::array<float, 4>& GetAmbient() const { return ambient; }
    const std::array<float, 4>& GetSpecular() const { return specular; }
    const std::array<float, 4>& GetEmission() const { return emission; }
    float GetShininess() const { return shininess; }
    unsigned int GetTextureId() const { return textureId; }
    unsigned int GetNormalMapId() const { return normalMapId; }

    // Makes this the GL material. With a shader, makes that current and feeds it the texture and the light
    // position in world units; without one, the fixed function draws with colour material.
    void Apply(Shader* shader, const Vertex* eyePosition, const Vertex* lightPosition) const;

private:
    std::array<float, 4> diffuse{1.0f, 1.0f, 1.0f, 1.0f};
    std::array<float, 4> ambient{0.0f, 0.0f, 0.0f, 0.0f};
    std::array<float, 4> specular{1.0f, 1.0f, 1.0f, 1.0f};
    std::array<float, 4> emission{0.0f, 0.0f, 0.0f, 0.0f};
    float shininess = 100.0f;
    std::array<float, 4> color{1.0f, 1.0f, 1.0f, 1.0f};
    unsigned int textureId = 0;
    unsigned int normalMapId = 0;  // loaded with the model, drawn by nobody yet
};

}  // namespace tolvane
