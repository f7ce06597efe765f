#pragma once

#include "assets/OffscreenTarget.h"
#include "scene/DrawAble.h"
#include "scene/TextBox2D.h"

namespace tolvane {

class MD2_Instance;
class ParticleEffect;
class Shader;

// Two engines with flames under them and a glowing screen between them, which turns to face the camera. The
// screen shows two lines of text. It cannot be picked.
class ScoreBoard final : public DrawAble {
public:
    // Owns none of the three; they must outlive the board. The shader may be null. Needs a GL context with
    // the framebuffer object extension.
    ScoreBoard(MD2_Instance* engineInstance, Shader* engineShader, ParticleEffect* flames);

    // Turns to the eye, then draws. The eye position may be null in the selection pass alone.
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    void Update(int renderMode, float dt) override;
    bool UpdateEffects(float dt, const Vertex* eyePosition) override;
    void BuildDisplayLists() override;

    // Takes the two boxes as they now stand into the screen's picture: call it after every change of them.
    // Keeps the modelview matrix; leaves lighting on.
    void RenderScreen();

    TextBox2D turnBox;   // the first line: whose turn it is
    TextBox2D checkBox;  // the second line: check and mate

private:
    void FaceTowards(const Vertex& eye);
    void DrawEngine(const Vertex& offset, int renderMode, bool blending, const Vertex* eyePosition,
                    const Vertex* lightPosition);
    void DrawScreen(bool useDisplayLists, bool blending);
    void DrawScreenQuad() const;

    OffscreenTarget screen;
    Vertex leftOffset{-5.0f, 0.0f, 0.0f};  // of the engines, from the board's position
    Vertex rightOffset{5.0f, 0.0f, 0.0f};
    float screenSize = 8.0f;  // edge, world units
    MD2_Instance* instance;   // shown on both sides
    Shader* shader;
    ParticleEffect* effect;
};

}  // namespace tolvane
