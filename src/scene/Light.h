#pragma once

#include <array>

namespace tolvane {

// The values of GL_LIGHT0.
class Light {
public:
    using Values = std::array<float, 4>;

    void SetDiffuse(float red, float green, float blue, float alpha) { diffuse = {red, green, blue, alpha}; }
    void SetAmbient(float red, float green, float blue, float alpha) { ambient = {red, green, blue, alpha}; }
    void SetSpecular(float red, float green, float blue, float alpha) {
        specular = {red, green, blue, alpha};
    }
    void SetConstantAttenuation(float value) { constantAttenuation = value; }
    void SetLinearAttenuation(float value) { linearAttenuation = value; }
    void SetQuadraticAttenuation(float value) { quadraticAttenuation = value; }

    // Gives the values to GL_LIGHT0 and switches it on. The light is directional: it shines from (x, y, z) of
    // the current modelview matrix towards the origin, at any distance, and the attenuations change nothing.
    void Apply(float x, float y, float z) const;

private:
    Values diffuse{0.8f, 0.8f, 0.8f, 1.0f};
    Values ambient{0.4f, 0.4f, 0.4f, 1.0f};
    Values specular{0.8f, 0.8f, 0.8f, 1.0f};
    float constantAttenuation = 1.0f;
    float linearAttenuation = 0.001f;
    float quadraticAttenuation = 0.0005f;
};

}  // namespace tolvane
