#include "assets/Material.h"

#include "assets/Gl.h"
#include "assets/Shader.h"

namespace tolvane {

void Material::SetDiffuse(float red, float green, float blue, float alpha) {
    diffuse = {red, green, blue, alpha};
}

void Material::SetAmbient(float red, float green, float blue, float alpha) {
    ambient = {red, green, blue, alpha};
}

void Material::SetSpecular(float red, float green, float blue, float alpha) {
    specular = {red, green, blue, alpha};
}

void Material::SetEmission(float red, float green, float blue, float alpha) {
    emission = {red, green, blue, alpha};
}

void Material::SetColor(float red, float green, float blue, float alpha) {
    color = {red, green, blue, alpha};
}

void Material::SetShininess(float exponent) {
    shininess = exponent;
}

void Material::Apply(Shader* shader, const Vertex* /*eyePosition*/, const Vertex* lightPosition) const {
    glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, ambient.data());
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, diffuse.data());
    glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, specular.data());
    glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, emission.data());
    glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, shininess);
    glColor4fv(color.data());

    if (!shader) {
        glEnable(GL_COLOR_MATERIAL);
        glBindTexture(GL_TEXTURE_2D, textureId);
        return;
    }
    glDisable(GL_COLOR_MATERIAL);
    shader->Enable();
    shader->SetUniform1i("Texture", 0);
    shader->SetActiveTexture(0);
    glBindTexture(GL_TEXTURE_2D, textureId);
    if (lightPosition)
        shader->SetUniform4f("LightPos", lightPosition->x, lightPosition->z, lightPosition->y, 0.0f);
}

}  // namespace tolvane
