#include "scene/ScoreBoard.h"

#include <algorithm>
#include <cmath>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "assets/Numbers.h"
#include "assets/ParticleEffect.h"
#include "scene/DisplayList.h"
#include "scene/DrawInstance.h"
#include "scene/Glut.h"
#include "scene/MatrixScope.h"

namespace tolvane {

namespace {

constexpr int pictureSize = 256;   // pixels, and the units of the two boxes
constexpr float flameDrop = 7.5f;  // from an engine down to its flames

void SetUpLine(TextBox2D& box, const Color& color, const char* text, int x, int y) {
    box.SetFont(GLUT_BITMAP_HELVETICA_18, color);
    box.SetText(text, x, y);
    box.SetBackgroundVisible(false);
}

// What glows by itself is drawn between these two.
void LightOff() {
    glDisable(GL_LIGHTING);
    glDisable(GL_LIGHT0);
}

void LightOn() {
    glEnable(GL_LIGHT0);
    glEnable(GL_LIGHTING);
}

}  // namespace

ScoreBoard::ScoreBoard(MD2_Instance* engineInstance, Shader* engineShader, ParticleEffect* flames)
    : turnBox(pictureSize, pictureSize),
      checkBox(pictureSize, pictureSize),
      instance(engineInstance),
      shader(engineShader),
      effect(flames) {
    TakeBound(*instance);
    // The model's own radius leaves the screen and the second engine out.
    boundRadius = Length(Add({instance->minX, instance->maxY, instance->maxZ}, leftOffset));
    screen.Init(pictureSize);

    SetUpLine(turnBox, {0.0f, 1.0f, 0.0f}, "Next: White", 80, 50);
    SetUpLine(checkBox, {1.0f, 0.0f, 0.0f}, "White is CHECK!", 60, 100);
    checkBox.SetVisible(false);

    busy = true;
    skipWhenOutside = true;
    RenderScreen();
    BuildDisplayLists();
}

void ScoreBoard::Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
                      const Vertex* eyePosition, const Vertex* lightPosition) {
    if (selectionPass)
        return;

    FaceTowards(*eyePosition);
    const MatrixScope scope;
    glTranslatef(position.x, position.y, position.z);
    glRotatef(rotationY, 0.0f, 1.0f, 0.0f);
    for (const Vertex& offset : {leftOffset, rightOffset})
        DrawEngine(offset, renderMode, blending, eyePosition, lightPosition);
    DrawScreen(useDisplayLists, blending);
}

void ScoreBoard::Update(int, float) {}

bool ScoreBoard::UpdateEffects(float dt, const Vertex* eyePosition) {
    effect->UpdateParticles(dt, eyePosition);
    return false;
}

void ScoreBoard::BuildDisplayLists() {
    displayList = CompileDisplayList([this] { DrawScreenQuad(); });
}

void ScoreBoard::RenderScreen() {
    const MatrixScope scope;
    LightOff();
    screen.Begin();
    turnBox.Draw(0, false, false, false, nullptr, nullptr);
    checkBox.Draw(0, false, false, false, nullptr, nullptr);
    screen.End();
    LightOn();
}

void ScoreBoard::FaceTowards(const Vertex& eye) {
    constexpr Vertex forward{0.0f, 0.0f, 1.0f};
    const Vertex direction{eye.x - position.x, 0.0f, eye.z - position.z};
    const int side = Sign(direction.x);
    if (side == 0) {
        rotationY = 0.0f;
        return;
    }
    // Rounding may carry the quotient just beyond what acos takes.
    const float cosine =
        std::clamp(Dot(forward, direction) / (Length(forward) * Length(direction)), -1.0f, 1.0f);
    rotationY = static_cast<float>(side * std::acos(cosine) * 180.0 / 3.141592654);
}

void ScoreBoard::DrawEngine(const Vertex& offset, int renderMode, bool blending, const Vertex* eyePosition,
                            const Vertex* lightPosition) {
    const MatrixScope scope;
    glTranslatef(offset.x, offset.y, offset.z);
    DrawInstance(*instance, renderMode, false, shader, eyePosition, lightPosition);
    glTranslatef(0.0f, -flameDrop, 0.0f);
    effect->DrawParticles(blending);
}

void ScoreBoard::DrawScreen(bool useDisplayLists, bool blending) {
    LightOff();
    if (blending) {
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE);
    }
    glColor4f(1.0f, 1.0f, 1.0f, 0.8f);
    glBindTexture(GL_TEXTURE_2D, screen.GetTexture());
    if (useDisplayLists)
        glCallList(displayList);
    else
        DrawScreenQuad();
    glDisable(GL_BLEND);
    LightOn();
}

void ScoreBoard::DrawScreenQuad() const {
    const float half = screenSize / 2.0f;
    glBegin(GL_QUADS);
    glTexCoord2f(0.0f, 1.0f);
    glVertex3f(-half, half, 0.0f);
    glTexCoord2f(1.0f, 1.0f);
    glVertex3f(half, half, 0.0f);
    glTexCoord2f(1.0f, 0.0f);
    glVertex3f(half, -half, 0.0f);
    glTexCoord2f(0.0f, 0.0f);
    glVertex3f(-half, -half, 0.0f);
    glEnd();
}

}  // namespace tolvane
