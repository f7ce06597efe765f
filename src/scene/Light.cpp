#include "scene/Light.h"

#include "assets/Gl.h"

namespace tolvane {

void Light::Apply(float x, float y, float z) const {
    glLightfv(GL_LIGHT0, GL_AMBIENT, ambient.data());
    glLightfv(GL_LIGHT0, GL_DIFFUSE, diffuse.data());
    glLightfv(GL_LIGHT0, GL_SPECULAR, specular.data());
    glLightf(GL_LIGHT0, GL_CONSTANT_ATTENUATION, constantAttenuation);
    glLightf(GL_LIGHT0, GL_LINEAR_ATTENUATION, linearAttenuation);
    glLightf(GL_LIGHT0, GL_QUADRATIC_ATTENUATION, quadraticAttenuation);
    const Values direction{x, y, z, 0.0f};
    glLightfv(GL_LIGHT0, GL_POSITION, direction.data());
    glEnable(GL_LIGHT0);
}

}  // namespace tolvane
